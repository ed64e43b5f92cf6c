// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/text.h"

/// A settings file (".dat"): one strategy, a setting a line, "1.a = 300". Reader and writer do not agree in
/// every key; `key_table` says where.
namespace twk {

class Form6;
struct GatewaySettings;

/// Loads a settings file (full path) into controls and record. A missing file is told and closes the screen.
/// What the file does not set stays. Faults 9 (a twelfth entry of 6.a to 6.c), 13 and 6 (no number, or none
/// of 16 bits) end the load where they occur.
void tomar_de_dat(Form6& form, const Text& nombre);

/// Writes the present state by way of a sibling "aux"; ".dat" is added when the name holds none. Any failure
/// is told, none comes out.
void guardar_dat(Form6& form, const Text& nombre);

/// Value of a line: what stands behind its last "=", less one unit. The line is changed in place.
Text valor1(Text& linea);

/// Adds the entries of a list to the combo; a starred entry becomes its text, too. A list without ";" adds
/// none.
void cargar_combo(Text linea, ComboBox& combo);

/// On when the value is the number 1, otherwise off.
void cargar_check(Text linea, CheckBox& check);

/// Stores a value of the record: 1 to 3 are 6.a to 6.c, 4 to 6 are 6.d to 6.f, 7 and 8 are 5.k and 5.l, 10 is
/// 8.j, 11 to 20 are 8.a to 8.i and 8.k, 21 to 25 are 6.g to 6.k. Other numbers do nothing.
void cargar_valor(GatewaySettings& settings, Text linea, int indice);

/// Stores a phrase of the pages, 0 to 9.
void cargar_frase(GatewaySettings& settings, Text linea, int indice);

} // namespace twk
