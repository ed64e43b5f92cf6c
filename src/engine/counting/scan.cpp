// SPDX-License-Identifier: MIT
#include "engine/counting/scan.h"

#include "platform/eight_units.h"

#include <algorithm>

namespace twk {

// Looks at every unit with the one before it, without an early exit and with small counters: compilers
// vectorise that.
TextScan::TextScan(TextView texto) {
    if (texto.empty()) return;
    const auto count = [this](char16_t unit) {
        blanks += unit == u' ' ? 1 : 0;
        tag_ends += unit == u'<' || unit == u'>' ? 1 : 0;
    };
    count(texto.front());
    unsigned short wrong = 0, open = texto.front() == u'<', dollar = texto.front() == u'$';
    constexpr std::size_t block = 16384; // no counter overflows
    for (std::size_t from = 1; from < texto.size(); from += block) {
        const std::size_t end = std::min(texto.size(), from + block);
        unsigned short some_blanks = 0, some_ends = 0;
        for (std::size_t i = from; i < end; ++i) {
            const char16_t before = texto[i - 1], here = texto[i];
            const unsigned short blank = here == u' ', opens = here == u'<', closes = here == u'>';
            const unsigned short behind_blank = before == u' ', behind_close = before == u'>';
            wrong = static_cast<unsigned short>(wrong | (opens & ~behind_blank) | (behind_close & ~blank) |
                                                (behind_blank & blank));
            open = static_cast<unsigned short>(open | opens);
            dollar = static_cast<unsigned short>(dollar | (here == u'$'));
            some_blanks = static_cast<unsigned short>(some_blanks + blank);
            some_ends = static_cast<unsigned short>(some_ends + opens + closes);
        }
        blanks += some_blanks;
        tag_ends += some_ends;
    }
    // A tag at an end of the text lacks a neighbour.
    spaced = (wrong & 1) == 0 && texto.front() != u'<' && texto.back() != u'>';
    opens_tags = open != 0;
    dollars = dollar != 0;
}

bool survives_a_count(TextView texto) {
    const TextScan scan(texto);
    return scan.spaced && !(scan.opens_tags && contains(texto, highlight_opening)) &&
           !(scan.dollars && contains(texto, keyword_joint));
}

TextScan space_for_a_count(Text& texto, TextView for_opening) {
    TextScan scan(texto);
    if (scan.opens_tags && replace_all(texto, highlight_opening, for_opening)) {
        space_tags(texto);
        return TextScan(texto);
    }
    if (scan.spaced) return scan;
    space_tags(texto); // which changes only the blanks
    scan.spaced = true;
    scan.blanks = count_units(texto, [](char16_t unit) { return unit == u' '; });
    return scan;
}

Text& quitar_dobles(Text& texto) {
    const auto doubled = [](char16_t a, char16_t b) { return a == u' ' && b == u' '; };
    unsigned short found = 0;
    for (std::size_t i = 1; i < texto.size(); ++i)
        found = static_cast<unsigned short>(found | (int{texto[i - 1] == u' '} & int{texto[i] == u' '}));
    // cppcheck-suppress knownConditionTrueFalse ; it takes the loop for one that never runs
    if (found != 0) texto.erase(std::unique(texto.begin(), texto.end(), doubled), texto.end());
    return texto;
}

namespace {

constexpr std::ptrdiff_t at_once = 8;

/// Whether one of the next eight units is an end of a tag, or a blank that another one follows.
bool any_to_space(const char16_t* at) {
    const EightUnits here = eight_at(at), next = eight_at(at + 1);
    return FoundUnits((here == u'<') | (here == u'>') | ((here == u' ') & (next == u' '))).any();
}

} // namespace

void space_tags(Text& texto) {
    const std::size_t size = texto.size();
    const auto tag_end = [](char16_t unit) { return unit == u'<' || unit == u'>'; };
    // The text is put behind a gap that its new form never outgrows, not even where it is copied by eight
    // units.
    const auto gap = static_cast<std::size_t>(count_units(texto, tag_end) + at_once);
    texto.insert(0, gap, u' ');
    char16_t* const begin = texto.data();
    char16_t* to = begin;
    const char16_t* from = begin + gap;
    const char16_t* const end = from + size;
    while (from != end) {
        const std::ptrdiff_t some = std::min(end - from, at_once);
        if (end - from > at_once && !any_to_space(from)) {
            to = std::copy_n(from, at_once, to);
            from += at_once;
            continue;
        }
        for (const char16_t* const stop = from + some; from < stop;) {
            const char16_t unit = *from++;
            if (unit == u'<' && (to == begin || to[-1] != u' ')) *to++ = u' ';
            *to++ = unit;
            if (unit == u'>') *to++ = u' ';
            if (to[-1] == u' ')
                while (from != end && *from == u' ') ++from;
        }
    }
    texto.resize(static_cast<std::size_t>(to - begin));
}

} // namespace twk
