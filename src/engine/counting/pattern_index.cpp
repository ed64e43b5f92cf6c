// SPDX-License-Identifier: MIT
#include "engine/counting/pattern_index.h"

#include <algorithm>
#include <utility>

namespace twk {

PatternSet::PatternSet(std::vector<Text> patterns)
    : patterns_(std::move(patterns)), begins_(buckets), steps_(buckets) {
    order_patterns();
    grow_tree();
    measure_steps();
}

bool PatternSet::holds(char16_t unit) const {
    return std::any_of(patterns_.begin(), patterns_.end(),
                       [unit](const Text& pattern) { return pattern.find(unit) != Text::npos; });
}

void PatternSet::order_patterns() {
    for (int number = 0; number < size(); ++number) {
        if (!findable(number)) continue;
        order_.push_back(number);
        const std::size_t length = pattern(number).size();
        longest_ = std::max(longest_, length);
        shortest_ = shortest_ == 0 ? length : std::min(shortest_, length);
    }
    std::stable_sort(order_.begin(), order_.end(), [this](int a, int b) { return pattern(a) < pattern(b); });
    for (const int number : order_) begins_[beginning_of(pattern(number), 0)] = 1;
}

/// Level by level, so that the children of a node stand side by side.
void PatternSet::grow_tree() {
    const auto nth = [this](int place) -> const Text& {
        return pattern(order_[static_cast<std::size_t>(place)]);
    };
    nodes_.push_back({0, static_cast<int>(order_.size()), 0});
    units_.push_back(0);
    std::size_t depth = 0, level_end = nodes_.size();
    for (std::size_t grown = 0; grown < nodes_.size(); ++grown) {
        if (grown == level_end) {
            ++depth;
            level_end = nodes_.size();
        }
        Node node = nodes_[grown];
        while (node.begin + node.ends < node.end && nth(node.begin + node.ends).size() == depth) ++node.ends;
        node.child = static_cast<int>(nodes_.size());
        for (int from = node.begin + node.ends; from < node.end; ++node.children) {
            const char16_t unit = nth(from)[depth];
            int end = from;
            while (end < node.end && nth(end)[depth] == unit) ++end;
            nodes_.push_back({from, end, 0});
            units_.push_back(unit);
            from = end;
        }
        nodes_[grown] = node;
    }
}

/// Index of the child; 0 when there is none.
int PatternSet::child_of(const Node& node, char16_t unit) const {
    const auto first = units_.begin() + node.child, end = first + node.children;
    const auto found = node.children < 8 ? std::find(first, end, unit) : std::lower_bound(first, end, unit);
    return found != end && *found == unit ? static_cast<int>(found - units_.begin()) : 0;
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
        if (step == 0 && begins_[beginning_of(text, at)] != 0) follow(text, at, hits);
        at += std::max<std::size_t>(step, 1);
    }
}

void PatternSet::follow(TextView text, std::size_t at, std::vector<Hit>& hits) const {
    int node = 0;
    for (std::size_t i = at; i < text.size(); ++i) {
        node = child_of(nodes_[static_cast<std::size_t>(node)], text[i]);
        if (node == 0) return;
        const Node& here = nodes_[static_cast<std::size_t>(node)];
        for (int ended = here.begin; ended < here.begin + here.ends; ++ended)
            hits.push_back({at, order_[static_cast<std::size_t>(ended)]});
    }
}

PatternIndex::PatternIndex(const PatternSet& set, Text& text) : set_(set), text_(text) {
    set_.find(text_, 0, text_.size(), hits_);
    link();
}

void PatternIndex::link() {
    ends_.assign(static_cast<std::size_t>(set_.size()), {});
    next_.assign(hits_.size(), -1);
    for (std::size_t hit = 0; hit < hits_.size(); ++hit) {
        Ends& ends = ends_[static_cast<std::size_t>(hits_[hit].pattern)];
        (ends.last < 0 ? ends.first : next_[static_cast<std::size_t>(ends.last)]) = static_cast<int>(hit);
        ends.last = static_cast<int>(hit);
    }
}

std::vector<std::size_t> PatternIndex::from_right(int number, std::size_t most) const {
    std::vector<std::size_t> all, places;
    const std::size_t length = set_.pattern(number).size();
    each_hit(number, [&all](std::size_t at) { all.push_back(at); });
    for (auto at = all.rbegin(); at != all.rend() && places.size() < most; ++at)
        if (places.empty() || *at + length <= places.back()) places.push_back(*at);
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
    link();
}

} // namespace twk
