// SPDX-License-Identifier: MIT
#include "engine/density.h"
#include "engine/pattern_index.h"
#include "engine/run.h"

namespace twk {

namespace {

/// Every keyword between blanks.
const PatternSet& highlighted(Run& run) {
    const auto holds = [&run](int k) {
        const TextView keyword = trim_view(run.tabla_kw.at(k));
        const Text& pattern = run.highlighted->pattern(k);
        return TextView(pattern).substr(1, pattern.size() - 2) == keyword;
    };
    bool right = run.highlighted && run.highlighted->size() == run.n_keywords;
    for (int k = 0; right && k < run.n_keywords; ++k) right = holds(k);
    if (!right) {
        std::vector<Text> patterns;
        patterns.reserve(static_cast<std::size_t>(run.n_keywords));
        for (int k = 0; k < run.n_keywords; ++k) patterns.push_back(u" " + Trim(run.tabla_kw.at(k)) + u" ");
        run.highlighted = std::make_shared<PatternSet>(std::move(patterns));
    }
    return *run.highlighted;
}

Text marked(const Run& run, int k) {
    return u" " + run.settings.hl_abre + run.tabla_kw.at(k) + run.settings.hl_cierra + u" ";
}

using Hits = std::vector<PatternSet::Hit>;

/// The occurrences that one replacement after the other would meet, when it does not matter in which order
/// they are made: at most a blank is shared by two of them. Nothing otherwise.
std::optional<Hits> independent(const PatternSet& set, const Hits& hits) {
    Hits kept;
    kept.reserve(hits.size());
    std::vector<std::size_t> ends(static_cast<std::size_t>(set.size())); // of each keyword's last occurrence
    std::size_t end = 0;
    for (const PatternSet::Hit& hit : hits) {
        std::size_t& own_end = ends[static_cast<std::size_t>(hit.pattern)];
        if (hit.at < own_end) continue; // as a search from the left passes over it
        if (hit.at + 1 < end) return std::nullopt;
        end = own_end = hit.at + set.pattern(hit.pattern).size();
        kept.push_back(hit);
    }
    return kept;
}

/// Marks all keywords in one pass. That gives what one keyword after the other gives as long as no mark makes
/// a new occurrence: it begins and ends, within its blanks, with units that no keyword holds, and holds no
/// keyword between blanks itself. Nothing where that is not certain.
std::optional<Text> marked_at_once(const Run& run, const PatternSet& set, const Hits& all, TextView text) {
    const Text& opening = run.settings.hl_abre;
    const Text& closing = run.settings.hl_cierra;
    if (opening.empty() || closing.empty() || set.holds(opening.front()) || set.holds(closing.back()))
        return std::nullopt;
    const std::optional<Hits> hits = independent(set, all);
    if (!hits) return std::nullopt;
    Text out;
    out.reserve(text.size() + hits->size() * (opening.size() + closing.size() + 16));
    Hits within;
    std::size_t from = 0;
    for (const PatternSet::Hit& hit : *hits) {
        const Text mark = marked(run, hit.pattern);
        set.find(mark, 0, mark.size(), within);
        if (!within.empty()) return std::nullopt;
        const bool shares_blank = hit.at < from;
        if (!shares_blank) out.append(text, from, hit.at - from);
        out.append(TextView(mark).substr(shares_blank ? 1 : 0));
        from = hit.at + set.pattern(hit.pattern).size();
    }
    return out.append(text, from);
}

} // namespace

Text highLight(Run& run, TextView texto) {
    const PatternSet& set = highlighted(run);
    Hits hits;
    set.find(texto, 0, texto.size(), hits);
    if (hits.empty()) return Text(texto);
    if (std::optional<Text> r = marked_at_once(run, set, hits, texto)) return std::move(*r);
    Text r(texto);
    PatternIndex index(set, r);
    for (int k = 0; k < run.n_keywords; ++k)
        if (index.occurs(k)) index.replace(k, index.from_left(k), marked(run, k));
    return r;
}

} // namespace twk
