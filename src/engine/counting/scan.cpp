// SPDX-License-Identifier: MIT
#include "engine/counting/scan.h"

#include "platform/eight_units.h"
#include "platform/wide.h"

#include <algorithm>

namespace twk {

namespace {

/// What stands in a text behind its first unit. Each unit is looked at with the one before it, without an
/// early exit and with small counters: compilers vectorise that.
struct Pairs {
    unsigned short wrong = 0, opens = 0, dollars = 0;
    std::int64_t blanks = 0, tag_ends = 0;
};

TWK_WIDE Pairs look_at_pairs(TextView texto) {
    Pairs pairs;
    unsigned short wrong = 0, open = 0, dollar = 0;
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
        pairs.blanks += some_blanks;
        pairs.tag_ends += some_ends;
    }
    pairs.wrong = wrong & 1;
    pairs.opens = open;
    pairs.dollars = dollar;
    return pairs;
}

} // namespace

TextScan::TextScan(TextView texto) {
    if (texto.empty()) return;
    const Pairs pairs = look_at_pairs(texto);
    const char16_t first = texto.front();
    blanks = pairs.blanks + (first == u' ' ? 1 : 0);
    tag_ends = pairs.tag_ends + (first == u'<' || first == u'>' ? 1 : 0);
    // A tag at an end of the text lacks a neighbour.
    spaced = pairs.wrong == 0 && first != u'<' && texto.back() != u'>';
    opens_tags = pairs.opens != 0 || first == u'<';
    dollars = pairs.dollars != 0 || first == u'$';
}

bool survives_a_count(TextView texto, const TextScan& scan) {
    return scan.spaced && !(scan.opens_tags && contains(texto, highlight_opening)) &&
           !(scan.dollars && contains(texto, keyword_joint));
}

TextScan space_for_a_count(Text& texto, TextView for_opening) {
    return space_for_a_count(texto, TextScan(texto), for_opening);
}

TextScan space_for_a_count(Text& texto, TextScan scan, TextView for_opening) {
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
    return FoundUnits((here == eight_of(u'<')) | (here == eight_of(u'>')) |
                      ((here == eight_of(u' ')) & (next == eight_of(u' '))))
        .any();
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
