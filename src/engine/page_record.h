// SPDX-License-Identifier: MIT
#pragma once

#include "engine/page_choices.h"

#include <array>
#include <cstdint>
#include <vector>

namespace twk {

/// How the box of a first-level page was found.
enum class BoxChoice : std::uint8_t { none, tied, densest, drawn };

/// A text brought to a density by sentences.
struct Fitting {
    std::int16_t density = 0;  ///< drawn or asked for, in per cent
    std::int16_t keyword = -1; ///< row of the keyword; -1 for the page's own subkeyword
    bool done = false;         ///< a random page does it by chance
    bool emptied = false;      ///< there was a text before it, and none behind it
};

/// How one page was made: what its routines note while they write it. Small, as a report keeps one for every
/// page. Numbers of boxes and rows of keywords start at 0.
struct PageRecord {
    static constexpr std::uint8_t no_box = 255; ///< a place of the draw that holds none

    std::vector<std::uint8_t> boxes; ///< in the order in which they stand in the text
    std::vector<std::uint8_t> added; ///< those that a text with too few words was grown by
    std::array<Fitting, 2> fittings;
    std::int32_t units = 0;      ///< length of a random page's text when its densities were drawn; 0: no draw
    std::int16_t keyword = -1;   ///< row of the keyword that the page is about
    std::int16_t subkeyword = 0; ///< and column of the subkeyword, 0 for none
    std::int16_t own_count = -1; ///< occurrences of the subkeyword in the text; -1 where it is not counted
    std::int16_t sentences = 0;  ///< put in, repeated ones among them
    std::int16_t replaced = 0;   ///< surplus occurrences of keywords
    Layout layout = Layout::none; ///< the template
    BoxChoice choice = BoxChoice::none;
    bool read_more = false; ///< the text was cut, and a link leads to its page
    bool movie = false;
    bool picture = false;
    bool synonyms = false; ///< words were exchanged for synonyms
    bool index = false;    ///< the index page of a destination
    bool empty_text = false;

    /// Units that parts long texts of random pages from short ones: each have bounds of their own for their
    /// densities. A text of exactly so many is neither.
    static constexpr std::int32_t long_text = 10000;
    bool is_long() const { return units > long_text; }

    void count_replaced(int count) { replaced = static_cast<std::int16_t>(replaced + count); }
};

} // namespace twk
