// SPDX-License-Identifier: MIT
#include "engine/counting/pattern_index.h"

#include <algorithm>
#include <utility>

namespace twk {

PatternSet::PatternSet(std::vector<Text> patterns)
    : patterns_(std::move(patterns)), nodes_(1), begins_(pairs), steps_(pairs) {
    for (int number = 0; number < size(); ++number)
        if (findable(number)) add(number);
    measure_steps();
}

bool PatternSet::holds(char16_t unit) const {
    return std::any_of(patterns_.begin(), patterns_.end(),
                       [unit](const Text& pattern) { return pattern.find(unit) != Text::npos; });
}

int PatternSet::child_of(int node, char16_t unit) const {
    int child = nodes_[static_cast<std::size_t>(node)].child;
    while (child != 0 && nodes_[static_cast<std::size_t>(child)].unit != unit)
        child = nodes_[static_cast<std::size_t>(child)].next;
    return child;
}

void PatternSet::add(int number) {
    const Text& added = pattern(number);
    longest_ = std::max(longest_, added.size());
    shortest_ = shortest_ == 0 ? added.size() : std::min(shortest_, added.size());
    begins_[pair_of(added[0], added[1])] = 1;
    int node = 0;
    for (const char16_t unit : added) {
        int child = child_of(node, unit);
        if (child == 0) {
            child = static_cast<int>(nodes_.size());
            Node& parent = nodes_[static_cast<std::size_t>(node)];
            const int before = std::exchange(parent.child, child);
            nodes_.push_back({unit, 0, before, {}});
        }
        node = child;
    }
    nodes_[static_cast<std::size_t>(node)].ends.push_back(number);
}

/// A pair that stands nowhere in the first units of any pattern lets the search pass over all places whose
/// first units would hold it.
void PatternSet::measure_steps() {
    if (shortest_ == 0) return;
    const auto step_at = [this](std::size_t second) {
        return static_cast<std::uint8_t>(std::min<std::size_t>(255, shortest_ - 1 - second));
    };
    std::fill(steps_.begin(), steps_.end(), step_at(0));
    for (int number = 0; number < size(); ++number) {
        if (!findable(number)) continue;
        const Text& each = pattern(number);
        for (std::size_t second = 1; second < shortest_; ++second) {
            std::uint8_t& step = steps_[pair_of(each[second - 1], each[second])];
            step = std::min(step, step_at(second));
        }
    }
}

void PatternSet::find(TextView text, std::size_t from, std::size_t end, std::vector<Hit>& hits) const {
    if (shortest_ == 0 || text.size() < shortest_) return;
    const std::size_t ahead = shortest_ - 1;
    end = std::min(end, text.size() - ahead);
    for (std::size_t at = from; at < end;) {
        const std::size_t step = steps_[pair_of(text[at + ahead - 1], text[at + ahead])];
        if (step == 0 && begins_[pair_of(text[at], text[at + 1])] != 0) follow(text, at, hits);
        at += std::max<std::size_t>(step, 1);
    }
}

void PatternSet::follow(TextView text, std::size_t at, std::vector<Hit>& hits) const {
    int node = 0;
    for (std::size_t i = at; i < text.size(); ++i) {
        node = child_of(node, text[i]);
        if (node == 0) return;
        for (const int number : nodes_[static_cast<std::size_t>(node)].ends) hits.push_back({at, number});
    }
}

PatternIndex::PatternIndex(const PatternSet& set, Text& text) : set_(set), text_(text) {
    set_.find(text_, 0, text_.size(), hits_);
    count();
}

void PatternIndex::count() {
    counts_.assign(static_cast<std::size_t>(set_.size()), 0);
    for (const PatternSet::Hit& hit : hits_) ++counts_[static_cast<std::size_t>(hit.pattern)];
}

std::vector<std::size_t> PatternIndex::from_right(int number, std::size_t most) const {
    std::vector<std::size_t> places;
    const std::size_t length = set_.pattern(number).size();
    for (auto hit = hits_.rbegin(); hit != hits_.rend() && places.size() < most; ++hit)
        if (hit->pattern == number && (places.empty() || hit->at + length <= places.back()))
            places.push_back(hit->at);
    std::reverse(places.begin(), places.end());
    return places;
}

void PatternIndex::replace(int number, const std::vector<std::size_t>& places, TextView with) {
    if (places.empty()) return;
    const std::size_t length = set_.pattern(number).size();
    // Whatever begins less than the longest pattern before a place may reach into it.
    const std::size_t reach = set_.longest() - 1;
    Text out;
    out.reserve(text_.size() + (with.size() > length ? places.size() * (with.size() - length) : 0));
    std::vector<PatternSet::Hit> hits;
    hits.reserve(hits_.size());
    auto old = hits_.begin();
    std::vector<std::size_t> put; // where `with` stands in the new text
    std::size_t from = 0;
    for (const std::size_t place : places) {
        out.append(text_, from, place - from);
        put.push_back(out.size());
        out.append(with);
        from = place + length;
    }
    out.append(text_, from);
    text_ = std::move(out);

    std::size_t found_to = 0; // places of the new text before it have been looked at
    for (std::size_t i = 0; i < places.size(); ++i) {
        // Hits before the reach of the place stay, moved with the text.
        for (; old != hits_.end() && old->at + reach < places[i]; ++old)
            hits.push_back({old->at + put[i] - places[i], old->pattern});
        while (old != hits_.end() && old->at < places[i] + length) ++old;
        const std::size_t begin = std::max(found_to, put[i] - std::min(reach, put[i]));
        const std::size_t end = put[i] + with.size();
        set_.find(text_, begin, end, hits);
        found_to = std::max(found_to, end);
    }
    const std::size_t last_old = places.back() + length, last_new = put.back() + with.size();
    for (; old != hits_.end(); ++old) hits.push_back({old->at - last_old + last_new, old->pattern});
    hits_ = std::move(hits);
    count();
}

} // namespace twk
