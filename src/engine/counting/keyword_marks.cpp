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

} // namespace

void KeywordMarks::learn(const std::vector<Text>& keywords, TextView opening, TextView closing) {
    keywords_ = &keywords;
    if (between_blanks_ && opening == opening_ && closing == closing_) return;
    std::vector<Text> patterns;
    patterns.reserve(keywords.size());
    for (const Text& keyword : keywords) patterns.push_back(u" " + Trim(keyword) + u" ");
    const PatternSet& set = between_blanks_.emplace(std::move(patterns));
    opening_ = opening;
    closing_ = closing;
    closed_ =
        !opening.empty() && !closing.empty() && !set.holds(opening.front()) && !set.holds(closing.back());
    marks_.assign(keywords.size(), {});
}

const KeywordMarks::Mark& KeywordMarks::mark(int k) {
    Mark& mark = at(marks_, k);
    if (!mark.made) {
        mark.text.append(u" ").append(opening_).append(at(*keywords_, k)).append(closing_).append(u" ");
        Hits within;
        between_blanks_->find(mark.text, 0, mark.text.size(), within);
        mark.plain = within.empty();
        mark.made = true;
    }
    return mark;
}

/// Marks all keywords in one pass. That gives what one keyword after the other gives as long as no mark makes
/// a new occurrence: it begins and ends, within its blanks, with units that no keyword holds, and holds no
/// keyword between blanks itself. Leaves the text alone, and is false, where that is not certain.
bool KeywordMarks::mark_at_once(Text& text) {
    const std::optional<Hits> hits = closed_ ? independent(*between_blanks_, hits_) : std::nullopt;
    if (!hits) return false;
    for (const PatternSet::Hit& hit : *hits)
        if (!mark(hit.pattern).plain) return false;
    out_.clear();
    std::size_t from = 0;
    for (const PatternSet::Hit& hit : *hits) {
        const TextView mark = at(marks_, hit.pattern).text;
        const bool shares_blank = hit.at < from;
        if (!shares_blank) out_.append(text, from, hit.at - from);
        out_.append(mark.substr(shares_blank ? 1 : 0));
        from = hit.at + between_blanks_->pattern(hit.pattern).size();
    }
    out_.append(text, from);
    text.swap(out_);
    return true;
}

void KeywordMarks::highLight(Text& texto, const std::vector<Text>& keywords, TextView opening,
                             TextView closing) {
    learn(keywords, opening, closing);
    hits_.clear();
    between_blanks_->find(texto, 0, texto.size(), hits_);
    if (!hits_.empty() && !mark_at_once(texto))
        texto = plain::highLight(std::move(texto), keywords, opening, closing);
}

} // namespace twk
