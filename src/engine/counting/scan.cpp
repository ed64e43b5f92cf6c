// SPDX-License-Identifier: MIT
#include "engine/counting/scan.h"

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

/// The first place from `at` on with an end of a tag, or with a blank that another one follows. Looks at
/// blocks without an early exit, which compilers vectorise.
std::size_t next_to_space(TextView text, std::size_t at) {
    constexpr std::size_t block = 32;
    const auto wanted = [](char16_t here, char16_t next) {
        return (here == u'<') | (here == u'>') | ((here == u' ') & (next == u' '));
    };
    for (; at + block < text.size(); at += block) {
        unsigned short found = 0;
        for (std::size_t i = at; i < at + block; ++i)
            found = static_cast<unsigned short>(found | wanted(text[i], text[i + 1]));
        if (found != 0) break;
    }
    while (at < text.size() && !wanted(text[at], at + 1 < text.size() ? text[at + 1] : u'\0')) ++at;
    return at;
}

} // namespace

void space_tags(Text& texto) {
    const auto tag_end = [](char16_t c) { return c == u'<' || c == u'>'; };
    Text out;
    out.reserve(texto.size() +
                2 * static_cast<std::size_t>(std::count_if(texto.begin(), texto.end(), tag_end)));
    const auto blank_behind = [&out] { return !out.empty() && out.back() == u' '; };
    for (std::size_t from = 0; from < texto.size();) {
        if (texto[from] == u' ' && blank_behind()) {
            ++from;
            continue;
        }
        const std::size_t at = next_to_space(texto, from);
        out.append(texto, from, at - from);
        if (at == texto.size()) break;
        if (texto[at] == u'<' && !blank_behind()) out.push_back(u' ');
        out.push_back(texto[at]);
        if (texto[at] == u'>') out.push_back(u' ');
        from = at + 1;
    }
    texto = std::move(out);
}

} // namespace twk
