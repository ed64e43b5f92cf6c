// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/words.h"

#include <functional>

/// Small services around page text, which is HTML mixed with plain words. Where an argument is changed, it is
/// a reference and said so.
namespace twk {

/// The first words: at most `limite` pieces, tags and empty pieces among them.
Text cortar_palabras(TextView texto, int limite);

/// Collapses blanks, points and empty paragraphs; spaces tags. Returns the trimmed text; the argument keeps
/// the untrimmed form.
Text limpiar_html(Text& texto);

/// Text of a box to page text: line ends to " <p> ", blanks around parentheses and tags, no double quotes.
/// Returns it with single blanks and trimmed; the argument keeps the form before that.
Text preparar_texto(Text& texto);
/// The same for a text that the caller does not keep.
Text preparar_texto(Text&& texto);

/// A whole number from 0 to n - 1; 0, without a draw, when n is 0.
int xrnum(int n);

/// Letter of the number, "a" for 0. Above 25 the number loses 25 (in place): 26 gives "b". Fault 9 past 50.
Text letra(int& n);

/// Whether the word, blanks around it and case aside, is the name of a page that every site has.
bool is_reserved(TextView word);

/// The trimmed word, or an empty text after a message when it is no word of letters, digits, blank, dash and
/// underscore, is reserved, or is shorter than 3. The argument is trimmed when it passes the first two tests.
Text validar_palabra(Text& palabra);

/// Path in the form that the system's open command takes.
Text ruta_corta(const Text& ruta);

/// Waits so many seconds. Where there are windows they stay alive, and the wait ends as soon as `enough` says
/// so.
void esperar(int segundos, const std::function<bool()>& enough = {});

} // namespace twk
