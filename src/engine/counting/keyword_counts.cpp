// SPDX-License-Identifier: MIT
#include "engine/counting/keyword_counts.h"

#include "engine/counting/words.h"
#include "platform/faults.h"
#include "platform/numbers.h"

#include <algorithm>
#include <utility>

namespace twk {

namespace {

Text as_counted(TextView keyword) {
    Text form = Trim(LCase(keyword));
    return quitar_dobles(form);
}

std::vector<Text> all_as_counted(const std::vector<Text>& keywords) {
    std::vector<Text> patterns;
    patterns.reserve(keywords.size());
    for (const Text& keyword : keywords) patterns.push_back(as_counted(keyword));
    return patterns;
}

} // namespace

KeywordSet::KeywordSet(const std::vector<Text>& keywords) : patterns_(all_as_counted(keywords)) {
    for (int k = 0; k < size(); ++k) {
        known_.push_back(keyword(k).empty() || (patterns_.findable(k) && !contains(keyword(k), u"$")));
        phrases_.push_back(contains(keyword(k), u" "));
    }
}

int replace_last(Text& text, TextView find, TextView with, int count) {
    if (count < -1) throw RuntimeFault(fault_argument);
    if (count == 0 || find.empty()) return 0;
    std::vector<std::size_t> all; // overlapping ones among them
    for (std::size_t at = 0; (at = position(text, find, at)) != TextView::npos; ++at) all.push_back(at);
    std::vector<std::size_t> places; // from the end
    for (auto at = all.rbegin(); at != all.rend() && static_cast<int>(places.size()) != count; ++at)
        if (places.empty() || *at + find.size() <= places.back()) places.push_back(*at);
    if (places.empty()) return 0;
    Text out;
    out.reserve(text.size());
    std::size_t from = 0;
    std::reverse(places.begin(), places.end());
    for (const std::size_t place : places) {
        out.append(text, from, place - from).append(with);
        from = place + find.size();
    }
    text = out.append(text, from);
    return static_cast<int>(places.size());
}

std::optional<std::int64_t> KeywordCounts::counted(int k) const {
    const Text& keyword = set_.keyword(k);
    if (keyword.empty() || !index_->occurs(k)) return 0;
    std::int64_t count = 0;
    std::size_t end = 0; // of the occurrence before
    bool apart = true;
    index_->each_from_left(k, [&](std::size_t at) {
        if (count != 0 && set_.is_phrase(k))
            apart = apart && are_apart(TextView(text_).substr(end, at - end), keyword);
        end = at + keyword.size();
        ++count;
    });
    return apart ? std::optional(count) : std::nullopt;
}

std::int16_t KeywordCounts::contar(int k, Text& keyword) {
    absent_ = false;
    keyword = set_.keyword(k);
    if (!set_.known(k)) {
        changed();
        return contar_kw(text_, keyword);
    }
    bool stands = index_.has_value();
    if (!stands && passes_left_ > 0) {
        // A count begins with the blanks; a text that is not in its form then is counted without an index.
        const std::optional<TextScan> known = std::exchange(scan_, {});
        const TextScan before = known ? *known : TextScan(text_);
        stands = survives_a_count(text_, before);
        const TextScan spaced = stands ? before : space_for_a_count(text_, before, u" ");
        if (!stands && !survives_a_count(text_, spaced)) return contar_kw_in_spaced(text_, spaced, keyword);
        --passes_left_;
        index_.emplace(set_.patterns(), text_);
    }
    const std::optional<std::int64_t> count = index_ ? counted(k) : std::nullopt;
    if (!count) return contar_kw(text_, keyword);
    absent_ = stands && *count == 0;
    return CInt(static_cast<double>(*count));
}

namespace {

/// Whether a count takes nothing away at the ends of a text that is put in, whatever surrounds it, but for a
/// tag.
bool keeps_the_form(TextView with) {
    const TextScan scan(with);
    return !with.empty() && with.front() != u' ' && with.back() != u' ' && scan.spaced &&
           scan.tag_ends == 0 && !scan.dollars && !contains(highlight_opening, with);
}

} // namespace

/// What was put in may stand close to a tag, or be, with what is around it, what a count takes away. `places`
/// are those before the replacement.
bool KeywordCounts::survives_around(const std::vector<std::size_t>& places, std::size_t old_size,
                                    TextView with) const {
    constexpr std::size_t reach = highlight_opening.size() - 1;
    const bool plain = keeps_the_form(with);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const std::size_t place = places[i] + i * with.size() - i * old_size;
        const std::size_t behind = place + with.size();
        if (plain) {
            if ((place > 0 && text_[place - 1] == u'>') || (behind < text_.size() && text_[behind] == u'<'))
                return false;
            continue;
        }
        std::size_t from = place - std::min(place, reach);
        std::size_t end = std::min(behind + reach, text_.size());
        // Tags at the ends of a part have their blanks outside.
        while (from > 0 && text_[from] == u'<') --from;
        while (end < text_.size() && text_[end - 1] == u'>') ++end;
        const TextView around = TextView(text_).substr(from, end - from);
        if (!survives_a_count(around, TextScan(around))) return false;
    }
    return true;
}

int KeywordCounts::replace_last(int k, TextView with, int count) {
    if (count < -1) throw RuntimeFault(fault_argument);
    if (count == 0 || set_.keyword(k).empty()) return 0;
    if (!set_.known(k) || !index_) {
        changed();
        return twk::replace_last(text_, set_.keyword(k), with, count);
    }
    const auto most = count < 0 ? text_.size() : static_cast<std::size_t>(count);
    const std::vector<std::size_t> places = index_->from_right(k, most);
    if (places.empty()) return 0;
    index_->replace(k, places, with);
    if (!survives_around(places, set_.keyword(k).size(), with)) changed();
    return static_cast<int>(places.size());
}

} // namespace twk
