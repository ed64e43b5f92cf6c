// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/scan.h"

/// What "word" and "occurrence of a keyword" mean for the whole program. `plain.h` says the same step by
/// step.
namespace twk {

/// Number of words: pieces between blanks that neither begin with "<" nor end with ">", once every tag has a
/// blank on both sides. The text keeps that spacing and loses its highlight openings. Fault 6 past 32767.
std::int16_t contar_palabras(Text& texto);
/// The same for a text in that form, which the scan is of.
std::int16_t words_of_spaced(TextView text, const TextScan& scan);

/// The same for a text of lines, which end with CR LF, as if a blank stood for each line end. The scan is of
/// the text as it is.
std::int16_t words_of_lines(const Text& texto, const TextScan& scan);

/// Occurrences of the keyword, as a substring in the text's own case. The keyword becomes trimmed lower case
/// (single blanks, if it is a phrase); the text gets blanks around tags, single blanks, and its "$$$" become
/// blanks. Fault 6 past 32767.
std::int16_t contar_kw(Text& texto, Text& keyword);
/// The same for a text that has its blanks, which the scan is of.
std::int16_t contar_kw_in_spaced(Text& texto, const TextScan& scan, Text& keyword);

/// Whole per cent of `cuenta` among `palabras`, halves to even; 0 when there are no words.
double por_ciento(std::int16_t cuenta, std::int16_t palabras);

/// Whole per cent of occurrences among words, halves to even. The keyword is changed as by `contar_kw`.
double densidad(const Text& texto, Text& keyword);

/// The form of reports and critic: whole per cent of `cuenta` among the pieces between blanks less one. In
/// the text the keyword's blanks become "$$$". Fault 6 from 328 occurrences on.
double densidad2(std::int16_t cuenta, Text& texto, const Text& keyword);

/// Whether two occurrences of a phrase with this text between them are counted as two whatever the search
/// does at the first one's end.
bool are_apart(TextView between, TextView keyword);

} // namespace twk
