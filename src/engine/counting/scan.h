// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>

/// What the counts ask of a text before they count, and the form that they bring it to: every tag with a
/// blank on both sides and no blank behind another.
namespace twk {

/// Opening of a keyword highlight; the counts do not see it.
inline constexpr TextView highlight_opening = uR"(<span style="background-color: #FFFF97">)";

/// Stands for a blank inside a keyword while it is counted; a count turns it to a blank.
inline constexpr TextView keyword_joint = u"$$$";

/// What one pass over a text finds.
struct TextScan {
    bool spaced = true;      ///< every tag has its blanks, and no blank follows another
    bool opens_tags = false; ///< there is a "<"
    bool dollars = false;    ///< there is a "$"
    std::int64_t blanks = 0;
    std::int64_t tag_ends = 0; ///< "<" and ">"

    explicit TextScan(TextView texto);
};

/// Whether a count leaves the text, which the scan is of, as it is: spaced, without highlight openings and
/// joints.
bool survives_a_count(TextView texto, const TextScan& scan);

/// Brings a text to the form in which it is counted, each highlight opening replaced; tells what it holds
/// then. In place.
TextScan space_for_a_count(Text& texto, TextView for_opening);
/// The same for a text that the scan is of.
TextScan space_for_a_count(Text& texto, TextScan scan, TextView for_opening);

/// Collapses runs of blanks in place; returns the argument.
Text& quitar_dobles(Text& texto);

/// Puts a blank before every "<" and behind every ">", then collapses runs of blanks. In place.
void space_tags(Text& texto);

/// A bit for the length of a word, the last for all from 63 on: the bits of many words rule out most others.
inline std::uint64_t length_bit(TextView word) {
    return std::uint64_t{1} << (word.size() < 63 ? word.size() : 63);
}

/// Number of units of which the test holds; blocks with small counters, which compilers vectorise.
template <class Test> std::int64_t count_units(TextView texto, Test test) {
    constexpr std::size_t block = 4096;
    std::int64_t all = 0;
    for (std::size_t from = 0; from < texto.size(); from += block) {
        unsigned short count = 0;
        for (const char16_t unit : texto.substr(from, block))
            count = static_cast<unsigned short>(count + (test(unit) ? 1 : 0));
        all += count;
    }
    return all;
}

} // namespace twk
