// SPDX-License-Identifier: MIT
#include "engine/counting/spaced_text.h"

#include "engine/counting/words.h"
#include "platform/numbers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace twk {

namespace {

/// The anchor words. By its first unit and its length most pieces are none.
class Anchors {
  public:
    explicit Anchors(const std::vector<Text>& words) : words_(words) {
        for (const Text& word : words) lengths_[place_of(word)] |= length_bit(word);
    }
    bool holds(TextView pieza) const {
        if ((lengths_[place_of(pieza)] & length_bit(pieza)) == 0) return false;
        return std::any_of(words_.begin(), words_.end(),
                           [pieza](const Text& word) { return same_text(pieza, word); });
    }

  private:
    static std::size_t place_of(TextView word) { return lower(word.front()) % 32; }

    const std::vector<Text>& words_;
    std::array<std::uint64_t, 32> lengths_{}; ///< of the words, by their first unit
};

/// The segments of `Ajustar_KW` while they grow. No blank stands beside another one in `out`: those that the
/// joints bring go in the end anyway.
struct Segments {
    const LinkingSentences& sentences;
    const SpacedText& spaced;
    const Anchors& anchors;
    int w;
    Text out{};
    Text f{};       ///< the sentence chosen last
    int put_in = 0; ///< sentences

    /// Appends the segment from piece `first`, `step` + 1 pieces; false when it was the last one.
    bool append(std::int64_t first, int step) {
        const std::int64_t last = first + step;
        std::int64_t p = first;
        while (p <= last && !anchors.holds(spaced.pieces(p, p))) ++p;
        if (p > last) { // no anchor word: the last sentence, glued to the last word
            append_pieces(first, last);
            append_single(f);
            if (!f.empty()) ++put_in;
            return true;
        }
        append_pieces(first, p - 1);
        f = sentences.drawn();
        ++put_in;
        append_single(u" ");
        append_single(f);
        const bool more = p == last || last < w;
        append_pieces(p, std::max<std::int64_t>(p, more ? last : w - 1));
        return more;
    }

    /// A blank and the pieces `from` to `to`, if there are any.
    void append_pieces(std::int64_t from, std::int64_t to) {
        if (from > to) return;
        const TextView together = spaced.pieces(from, to);
        if (!out.empty() && out.back() != u' ') out.push_back(u' ');
        out.append(together);
    }

    void append_single(TextView added) {
        const auto skip_blanks = [&added] {
            added.remove_prefix(std::min(added.find_first_not_of(u' '), added.size()));
        };
        if (!out.empty() && out.back() == u' ') skip_blanks();
        for (std::size_t doubled; (doubled = position(added, u"  ")) != TextView::npos; skip_blanks()) {
            out.append(added.substr(0, doubled + 1));
            added.remove_prefix(doubled + 1);
        }
        out.append(added);
    }
};

/// Whether `densidad` of a text with single blanks could overflow: occurrences of the keyword, words or their
/// ratio past 16 bits. "No" is certain, "yes" is not.
bool densidad_may_overflow(TextView texto, const TextScan& scan, TextView keyword) {
    constexpr std::int64_t most = 32767;
    const std::int64_t dollars = scan.dollars ? std::count(texto.begin(), texto.end(), u'$') : 0;
    // Pieces that begin behind a blank: one behind each, but the last.
    const std::int64_t starts = scan.blanks - (texto.ends_with(u' ') ? 1 : 0);
    // Once its tags are spaced the text has so many units at most, and so many words at least: every end of a
    // tag takes one piece, a "$$$" stands for a blank.
    const std::int64_t units = std::ssize(texto) + 2 * scan.tag_ends;
    const std::int64_t words = starts - scan.tag_ends - dollars;
    Text counted = Trim(keyword);
    const std::int64_t found = units / std::max<std::int64_t>(1, std::ssize(quitar_dobles(counted)));
    return words < 1 || units / 2 + 1 > most || found > most || found * 100 / words + 1 > most;
}

/// `densidad` for the sake of its faults; its value is not used.
void check_densidad(TextView texto, const TextScan& scan, const Text& keyword) {
    if (!densidad_may_overflow(texto, scan, keyword)) return;
    Text medida = keyword;
    densidad(Text(texto), medida);
}

} // namespace

SpacedText::SpacedText(Text text)
    : texto(std::move(text)), scan(space_for_a_count(texto, u"")), palabras(words_of_spaced(texto, scan)) {
    const TextView kept = trim_view(texto);
    if (kept.empty()) return;
    const auto blank = [](char16_t unit) { return unit == u' '; };
    starts.resize(static_cast<std::size_t>(scan.blanks) + 2);
    const auto in_front = static_cast<std::uint32_t>(kept.data() - texto.data());
    starts.front() = in_front;
    // Written for every unit, kept behind a blank: no branch to be guessed.
    std::size_t n = 1;
    for (std::uint32_t i = 0; i < kept.size(); ++i) {
        starts[n] = in_front + i + 1;
        n += blank(kept[i]) ? 1 : 0;
    }
    starts[n] = in_front + static_cast<std::uint32_t>(kept.size()) + 1;
    starts.resize(n + 1); // a blank at an end begins no piece
}

Text Ajustar_KW(const SpacedText& spaced, const Text& keyword, int densidad_pedida,
                const LinkingSentences& sentences) {
    if (spaced.blank() || densidad_pedida < 1) return {};
    const int w = spaced.palabras;
    const Text k = Trim(keyword);
    check_densidad(spaced.texto, spaced.scan, k);
    const double por_cien = CInt(static_cast<double>(densidad_pedida) * w) / 100.0;
    const int step = w == 0 ? 0 : static_cast<int>(Int(w / por_cien));
    if (step < 2) return {};
    static const std::vector<Text> none; // counts without a keyword
    const Anchors anchors(k.empty() ? none : sentences.anchors);
    Segments segments{sentences, spaced, anchors, w};
    segments.out.reserve(spaced.texto.size() + spaced.texto.size() / 2);
    const auto n = static_cast<int>(Int(por_cien - 1));
    for (int i = 0; i <= n; ++i)
        if (!segments.append(static_cast<std::int64_t>(i) * step, step)) break;
    check_densidad(segments.out, TextScan(segments.out), k);
    if (sentences.put_in != nullptr) *sentences.put_in += segments.put_in;
    return Trim(std::move(segments.out));
}

} // namespace twk
