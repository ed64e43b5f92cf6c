// SPDX-License-Identifier: MIT
#include "engine/counting/words.h"

#include "engine/counting/plain.h"
#include "platform/numbers.h"
#include "platform/wide.h"

#include <algorithm>
#include <optional>

namespace twk {

namespace {

std::int16_t as_count(std::int64_t count) {
    return CInt(static_cast<double>(count));
}

/// Tags without a blank in them.
std::int64_t whole_tags(TextView text) {
    std::int64_t count = 0;
    for (std::size_t at = 0; (at = position(text, u"<", at)) != TextView::npos;) {
        while (at < text.size() && text[at] != u' ' && text[at] != u'>') ++at;
        if (at < text.size() && text[at] == u'>') ++count;
    }
    return count;
}

} // namespace

std::int16_t words_of_spaced(TextView text, const TextScan& scan) {
    if (trim_view(text).empty()) return 0;
    const std::int64_t blanks = scan.blanks - (text.front() == u' ' ? 1 : 0) - (text.back() == u' ' ? 1 : 0);
    if (scan.tag_ends == 0) return as_count(blanks + 1);
    return as_count(blanks + 1 - (scan.tag_ends - whole_tags(text)));
}

std::int16_t contar_palabras(Text& texto) {
    const TextScan scan = space_for_a_count(texto, u"");
    return words_of_spaced(texto, scan);
}

namespace {

/// Whether a piece between blanks and line ends begins with `here`, behind `first` and `before`.
unsigned short begins_piece(char16_t first, char16_t before, char16_t here, char16_t next) {
    const unsigned short behind = (before == u' ') | ((before == u'\n') & (first == u'\r'));
    const unsigned short parts =
        (here == u' ') | ((here == u'\n') & (before == u'\r')) | ((here == u'\r') & (next == u'\n'));
    return static_cast<unsigned short>(behind & ~parts);
}

/// Pieces of the text between blanks and line ends. All but its ends is one pass with small counters, which
/// compilers vectorise.
TWK_WIDE std::int64_t pieces_of_lines(TextView text) {
    constexpr std::size_t block = 16384; // no counter overflows
    const auto unit = [text](std::size_t at) { return at < text.size() ? text[at] : u' '; };
    const auto begins_at = [&unit](std::size_t at) {
        return begins_piece(unit(at - 2), unit(at - 1), unit(at), unit(at + 1));
    };
    std::int64_t pieces = begins_at(0) + begins_at(1);
    if (text.size() < 3) return pieces;
    const std::size_t last = text.size() - 1;
    for (std::size_t from = 2; from < last; from += block) {
        const std::size_t end = std::min(last, from + block);
        unsigned short begun = 0;
        for (std::size_t i = from; i < end; ++i)
            begun = static_cast<unsigned short>(begun +
                                                begins_piece(text[i - 2], text[i - 1], text[i], text[i + 1]));
        pieces += begun;
    }
    return pieces + begins_at(last);
}

} // namespace

std::int16_t words_of_lines(const Text& texto, const TextScan& scan) {
    if (scan.tag_ends == 0) return as_count(pieces_of_lines(texto));
    Text in_one_line = Replace(texto, u"\r\n", u" ");
    return contar_palabras(in_one_line);
}

bool are_apart(TextView between, TextView keyword) {
    const auto blank = [](char16_t c) { return c == u' '; };
    // The longer step passes over one unit for each blank. A match across both would hold what is between
    // them in one of its words.
    return between.size() >= keyword.size() ||
           (std::ssize(between) >= count_units(keyword, blank) && contains(between, u" "));
}

namespace {

/// Occurrences without touching the text, where that is certain to give what the plain count gives: nothing
/// when two matches of a phrase stand so close that the longer step, or a match across both, can play a part.
std::optional<std::int64_t> count_apart(TextView texto, TextView keyword, bool phrase) {
    std::int64_t count = 0;
    std::size_t end = 0;
    for (std::size_t at = 0; (at = position(texto, keyword, end)) != TextView::npos; ++count) {
        if (count != 0 && phrase && !are_apart(texto.substr(end, at - end), keyword)) return std::nullopt;
        end = at + keyword.size();
    }
    return count;
}

} // namespace

std::int16_t contar_kw(Text& texto, Text& keyword) {
    const TextScan scan = space_for_a_count(texto, u" ");
    return contar_kw_in_spaced(texto, scan, keyword);
}

std::int16_t contar_kw_in_spaced(Text& texto, const TextScan& scan, Text& keyword) {
    keyword = Trim(LCase(keyword));
    const bool phrase = contains(keyword, u" ");
    if (phrase) quitar_dobles(keyword);
    // A "$" beside a joint would make the joint another one.
    const bool joints = (scan.dollars && contains(texto, keyword_joint)) || contains(keyword, u"$");
    if (!joints && keyword.empty()) return 0;
    const std::optional<std::int64_t> count = joints ? std::nullopt : count_apart(texto, keyword, phrase);
    return as_count(count ? *count : plain::count_in_spaced(texto, keyword));
}

double por_ciento(std::int16_t cuenta, std::int16_t palabras) {
    if (cuenta == 0 || palabras == 0) return 0;
    return CInt(Replace(Format(Round(cuenta * 100.0 / palabras), u"###,0"), u",", u""));
}

double densidad(const Text& texto, Text& keyword) {
    if (trim_view(texto).empty()) return 0;
    Text copia = texto;
    const std::int16_t cuenta = contar_kw(copia, keyword);
    return por_ciento(cuenta, contar_palabras(copia));
}

double densidad2(std::int16_t cuenta, Text& texto, const Text& keyword) {
    replace_all(texto, keyword, Replace(keyword, u" ", keyword_joint));
    const std::int64_t blanks = std::count(texto.begin(), texto.end(), u' ');
    // One less than the pieces, of which an empty text has none.
    const double piezas = texto.empty() ? -1 : blanks == 0 ? 1 : static_cast<double>(blanks);
    const double valor = CInt(static_cast<double>(cuenta) * 100) / piezas;
    if (valor == 0) return 0;
    return CInt(Format(valor, u"##.##"));
}

} // namespace twk
