// SPDX-License-Identifier: MIT
#include "engine/counting/keyword_marks.h"

#include "engine/counting/plain.h"
#include "platform/subscript.h"

namespace twk {

namespace {

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

/// The marked form of each keyword, between blanks.
std::vector<Text> marked(const std::vector<Text>& keywords, TextView opening, TextView closing) {
    std::vector<Text> marks;
    marks.reserve(keywords.size());
    for (const Text& keyword : keywords)
        marks.push_back(Text(u" ").append(opening).append(keyword).append(closing).append(u" "));
    return marks;
}

/// Marks all keywords in one pass. That gives what one keyword after the other gives as long as no mark makes
/// a new occurrence: it begins and ends, within its blanks, with units that no keyword holds, and holds no
/// keyword between blanks itself. Nothing where that is not certain.
std::optional<Text> marked_at_once(const PatternSet& set, const std::vector<Text>& marks, const Hits& all,
                                   TextView text) {
    const std::optional<Hits> hits = independent(set, all);
    if (!hits) return std::nullopt;
    std::size_t size = text.size();
    for (const PatternSet::Hit& hit : *hits) size += at(marks, hit.pattern).size();
    Text out;
    out.reserve(size);
    Hits within;
    std::size_t from = 0;
    for (const PatternSet::Hit& hit : *hits) {
        const TextView mark = at(marks, hit.pattern);
        set.find(mark, 0, mark.size(), within);
        if (!within.empty()) return std::nullopt;
        const bool shares_blank = hit.at < from;
        if (!shares_blank) out.append(text, from, hit.at - from);
        out.append(mark.substr(shares_blank ? 1 : 0));
        from = hit.at + set.pattern(hit.pattern).size();
    }
    return out.append(text, from);
}

} // namespace

Text KeywordMarks::highLight(TextView texto, const std::vector<Text>& keywords, TextView opening,
                             TextView closing) {
    if (!between_blanks_ || keywords != keywords_) {
        std::vector<Text> patterns;
        patterns.reserve(keywords.size());
        for (const Text& keyword : keywords) patterns.push_back(u" " + Trim(keyword) + u" ");
        between_blanks_.emplace(std::move(patterns));
        keywords_ = keywords;
    }
    const PatternSet& set = *between_blanks_;
    Hits hits;
    set.find(texto, 0, texto.size(), hits);
    if (hits.empty()) return Text(texto);
    const bool closed =
        !opening.empty() && !closing.empty() && !set.holds(opening.front()) && !set.holds(closing.back());
    if (closed)
        if (std::optional<Text> r = marked_at_once(set, marked(keywords, opening, closing), hits, texto))
            return std::move(*r);
    return plain::highLight(Text(texto), keywords, opening, closing);
}

} // namespace twk
