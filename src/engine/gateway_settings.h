// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <array>
#include <cstdint>

namespace twk {

/// What a settings file sets and no control shows. Numbers start at 0 and texts empty; what no file sets
/// stays.
struct GatewaySettings {
    std::int16_t min_palabras = 0;             ///< 1.a  least words of a content box
    std::int16_t max_palabras = 0;             ///< 1.b  above it text moves to a read-more page
    std::int16_t max_repeticiones = 0;         ///< 1.c  most occurrences of the keyword under Check8
    std::int16_t tope_largo1 = 0;              ///< 1.d  bound of the first density, text over 10000 units
    std::int16_t tope_corto1 = 0;              ///< 1.e  the same, text under 10000 units
    std::int16_t tope_largo2 = 0;              ///< 1.f  bound of the second density, text over 10000 units
    std::int16_t tope_corto2 = 0;              ///< 1.g  the same, text under 10000 units
    std::int16_t indice_extra = 0;             ///< 2.g  1: an index page per random folder
    std::int16_t palabras_extracto = 0;        ///< 3.d  word limit of a composed title
    std::int16_t palabras_minimas = 0;         ///< 3.e  a keyword of so many words is the title alone
    std::int16_t revisit_dias = 0;             ///< 5.j
    Text robot_valor;                          ///< 5.k
    Text meta_atributo;                        ///< 5.l  attribute that carries a meta tag's value
    std::array<std::int16_t, 11> numeros_6a{}; ///< 6.a  kept, used by nothing
    std::array<Text, 11> palabras_ancla;       ///< 6.b  words at which a sentence may be inserted
    std::array<Text, 11> frases_link;          ///< 6.c  sentences with "*LINK*" and "*KEYWORD*"
    Text hl_abre;                              ///< 6.d
    Text hl_cierra;                            ///< 6.e
    Text kw_sustituto;                         ///< 6.f  stands for a surplus keyword
    Text rotulo_lista;                         ///< 6.g
    Text rotulo_subject;                       ///< 6.h
    Text rotulo_category;                      ///< 6.i
    Text rotulo_description;                   ///< 6.j
    Text rotulo_webmaster;                     ///< 6.k
    std::array<Text, 10> frases;               ///< 7.a to 7.j
    /// Switches of the meta tags, on at exactly 1.
    float meta_keywords = 0;       ///< 8.a
    float meta_sin_uso = 0;        ///< 8.b
    float meta_description = 0;    ///< 8.c
    float meta_author = 0;         ///< 8.d
    float meta_robot = 0;          ///< 8.e
    float meta_rating = 0;         ///< 8.f
    float meta_abstract = 0;       ///< 8.g
    float meta_language = 0;       ///< 8.h
    float meta_generator = 0;      ///< 8.i
    float meta_classification = 0; ///< 8.j
    float meta_title = 0;          ///< 8.k  read, never written
};

} // namespace twk
