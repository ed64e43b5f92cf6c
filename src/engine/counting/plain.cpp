// SPDX-License-Identifier: MIT
#include "engine/counting/plain.h"

#include "engine/counting/words.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

#include <algorithm>

namespace twk::plain {

namespace {

Text& collapse(Text& text) {
    while (replace_all(text, u"  ", u" ")) {
    }
    return text;
}

Text reversed(TextView text) {
    return {text.rbegin(), text.rend()};
}

} // namespace

void space_for_a_count(Text& texto, TextView for_opening) {
    replace_all(texto, highlight_opening, for_opening);
    replace_all(texto, u"<", u" <");
    replace_all(texto, u">", u"> ");
    collapse(texto);
}

std::int64_t contar_palabras(Text& texto) {
    space_for_a_count(texto, u"");
    std::int64_t words = 0;
    for (const TextView piece : split_views(trim_view(texto)))
        if (!piece.starts_with(u'<') && !piece.ends_with(u'>')) ++words;
    return words;
}

std::int64_t contar_kw(Text& texto, Text& keyword) {
    space_for_a_count(texto, u" ");
    return count_in_spaced(texto, keyword);
}

std::int64_t count_in_spaced(Text& texto, Text& keyword) {
    keyword = Trim(LCase(keyword));
    collapse(keyword);
    const Text joined = Replace(keyword, u" ", keyword_joint);
    const std::size_t step = Replace(keyword, u" ", u"$$$$").size();
    if (joined != keyword) replace_all(texto, keyword, joined);
    std::int64_t count = 0;
    for (std::size_t at = 0; step != 0 && (at = position(texto, joined, at)) != TextView::npos; at += step)
        ++count;
    replace_all(texto, keyword_joint, u" ");
    return count;
}

std::vector<std::pair<std::size_t, int>> occurrences(TextView text, const std::vector<Text>& patterns,
                                                     std::size_t from, std::size_t end) {
    std::vector<std::pair<std::size_t, int>> found;
    for (std::size_t at = from; at < std::min(end, text.size()); ++at)
        for (int number = 0; std::cmp_less(number, patterns.size()); ++number)
            if (const Text& pattern = twk::at(patterns, number);
                pattern.size() >= 2 && text.substr(at).starts_with(pattern))
                found.emplace_back(at, number);
    return found;
}

void replace_last(Text& text, TextView find, TextView with, int count) {
    text = reversed(Replace(reversed(text), reversed(find), reversed(with), count));
}

Text highLight(Text texto, const std::vector<Text>& keywords, TextView opening, TextView closing) {
    for (const Text& keyword : keywords)
        replace_all(texto, u" " + Trim(keyword) + u" ",
                    u" " + Text(opening) + keyword + Text(closing) + u" ");
    return texto;
}

Text Ajustar_KW(Text& texto, const Text& keyword, int densidad_pedida, const LinkingSentences& sentences) {
    if (trim_view(texto).empty() || densidad_pedida < 1) return {};
    const int w = twk::contar_palabras(texto);
    Text k = Trim(keyword);
    densidad(texto, k); // for its faults
    const double due = CInt(static_cast<double>(densidad_pedida) * w) / 100.0;
    const int step = w == 0 ? 0 : static_cast<int>(Int(w / due));
    if (step < 2) return {};
    const std::vector<Text> pieces = Split(Trim(texto));
    const auto anchor = [&](const Text& piece) {
        return !trim_view(keyword).empty() &&
               std::any_of(sentences.anchors.begin(), sentences.anchors.end(),
                           [&](const Text& each) { return LCase(piece) == LCase(each); });
    };
    Text out, sentence;
    for (int i = 0, last = static_cast<int>(Int(due - 1)); i <= last; ++i) {
        Text segment;
        bool pending = true;
        for (int p = i * step; p <= i * step + step; ++p) {
            if (!pending && p >= w) { // the words are over once a sentence stands
                i = last;
                break;
            }
            Text piece = at(pieces, p);
            if (pending && anchor(piece)) {
                pending = false;
                sentence = sentences.drawn();
                piece = sentence + u" " + piece;
            }
            segment += u" " + piece;
        }
        out = Trim(out + u" " + segment);
        if (pending) out += sentence; // the last one again, glued to the last word
    }
    Text counted = Trim(keyword);
    densidad(out, counted);
    return Trim(quitar_dobles(out));
}

} // namespace twk::plain
