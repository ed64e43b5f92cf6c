// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/sentences.h"
#include "platform/text.h"

#include <cstdint>
#include <utility>
#include <vector>

/// What the routines of this folder mean, step by step and without a thought for speed. The fast ones fall
/// back on these where they cannot be sure, and are compared with them on random texts.
namespace twk::plain {

/// Highlight openings replaced, blanks around tags, single blanks. In place.
void space_for_a_count(Text& texto, TextView for_opening);

/// The pieces of a text that are no tags. In place: the text is spaced.
std::int64_t contar_palabras(Text& texto);

/// Occurrences of the keyword. In place: the text is spaced, the keyword becomes lower case with single
/// blanks.
std::int64_t contar_kw(Text& texto, Text& keyword);

/// The same for a text that is spaced already: each match takes the search on by the length that the keyword
/// has with four units for each of its blanks.
std::int64_t count_in_spaced(Text& texto, Text& keyword);

/// Every place in [from, end) where one of the patterns begins, with its number; one of less than two units
/// is passed over. By place, then by number.
std::vector<std::pair<std::size_t, int>> occurrences(TextView text, const std::vector<Text>& patterns,
                                                     std::size_t from, std::size_t end);

/// Replaces the last `count` occurrences, all for -1: those that a search of the reversed text meets first.
/// Fault 5 for a count below that.
void replace_last(Text& text, TextView find, TextView with, int count);

/// Every keyword that stands between blanks between opening and closing, one keyword after the other.
Text highLight(Text texto, const std::vector<Text>& keywords, TextView opening, TextView closing);

/// The text with its sentences. In place: the text is spaced. Faults 6 and 9, and those of the sentences.
Text Ajustar_KW(Text& texto, const Text& keyword, int densidad_pedida, const LinkingSentences& sentences);

} // namespace twk::plain
