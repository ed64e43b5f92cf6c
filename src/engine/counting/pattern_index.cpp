// SPDX-License-Identifier: MIT
#include "engine/counting/pattern_index.h"

#include <algorithm>
#include <utility>

namespace twk {

namespace {

constexpr int many_children = 4;      ///< from here on a table leads to a child
constexpr std::size_t lanes = 4;      ///< of a search
constexpr std::size_t stretch = 1024; ///< places that are searched at a time

} // namespace

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
    for (const int number : order_) begins_[bucket_of(pattern(number).data())] = 1;
}

/// Level by level, so that the children of a node stand side by side.
void PatternSet::grow_tree() {
    nodes_.push_back({.end = static_cast<int>(order_.size())});
    units_.push_back(0);
    std::vector<std::size_t> depths{0}; // of what leads to each node
    for (std::size_t grown = 0; grown < nodes_.size(); ++grown)
        if (nodes_[grown].begin != nodes_[grown].end) grow_node(grown, depths);
}

void PatternSet::grow_node(std::size_t number, std::vector<std::size_t>& depths) {
    const auto nth = [this](int place) -> const Text& {
        return pattern(order_[static_cast<std::size_t>(place)]);
    };
    Node node = nodes_[number];
    // Sorted as they are, the first and the last one tell what all have in common.
    const Text &first = nth(node.begin), &last = nth(node.end - 1);
    const auto from = static_cast<std::ptrdiff_t>(depths[number]);
    const auto differs = std::mismatch(first.begin() + from, first.end(), last.begin() + from, last.end());
    const auto depth = static_cast<std::size_t>(differs.first - first.begin());
    node.label = labels_.size();
    node.length = depth - depths[number];
    labels_.append(first, depths[number], node.length);
    while (node.begin + node.ends < node.end && nth(node.begin + node.ends).size() == depth) ++node.ends;
    node.child = static_cast<int>(nodes_.size());
    for (int child = node.begin + node.ends; child < node.end; ++node.children) {
        const char16_t unit = nth(child)[depth];
        int end = child;
        while (end < node.end && nth(end)[depth] == unit) ++end;
        nodes_.push_back({.begin = child, .end = end});
        units_.push_back(unit);
        depths.push_back(depth + 1);
        child = end;
    }
    if (node.children >= many_children) {
        node.table = static_cast<int>(tables_.size());
        ChildTable& table = tables_.emplace_back();
        for (int child = 0; child < node.children; ++child)
            if (const char16_t unit = units_[static_cast<std::size_t>(node.child + child)];
                unit < table.size())
                table[unit] = static_cast<std::uint8_t>(child + 1);
    }
    nodes_[number] = node;
}

/// Index of the child; 0 when there is none.
int PatternSet::child_of(const Node& node, char16_t unit) const {
    if (node.table >= 0) {
        const ChildTable& table = tables_[static_cast<std::size_t>(node.table)];
        if (unit < table.size()) return table[unit] == 0 ? 0 : node.child + table[unit] - 1;
    }
    const auto first = units_.begin() + node.child, end = first + node.children;
    const auto found = node.table < 0 ? std::find(first, end, unit) : std::lower_bound(first, end, unit);
    return found != end && *found == unit ? static_cast<int>(found - units_.begin()) : 0;
}

/// Units that stand together nowhere in the first units of any pattern let the search pass over all places
/// whose first units would hold them.
void PatternSet::measure_steps() {
    if (shortest_ == 0) return;
    const std::size_t together = units_together();
    const auto step_behind = [this](std::size_t end) {
        return static_cast<std::uint8_t>(std::min<std::size_t>(255, shortest_ - end));
    };
    std::fill(steps_.begin(), steps_.end(), step_behind(together - 1));
    for (const int number : order_) {
        const Text& each = pattern(number);
        for (std::size_t end = together; end <= shortest_; ++end) {
            std::uint8_t& step = steps_[bucket_of(each.data() + end - together)];
            step = std::min(step, step_behind(end));
        }
    }
}

void PatternSet::find(TextView text, std::size_t from, std::size_t end, std::vector<Hit>& hits) const {
    if (shortest_ == 0 || text.size() < shortest_) return;
    end = std::min(end, text.size() - (shortest_ - 1));
    for (; from < end; from += stretch) {
        const std::size_t to = std::min(from + stretch, end);
        if (units_together() < 3)
            find_in_stretch<2>(text, from, to, hits);
        else
            find_in_stretch<3>(text, from, to, hits);
    }
}

/// The stretch is searched in several lanes at a time: where the next step of one leads hangs on what it has
/// just read, and the processor need not wait for that while it has the others.
template <int Units>
void PatternSet::find_in_stretch(TextView text, std::size_t from, std::size_t end,
                                 std::vector<Hit>& hits) const {
    struct Lane {
        const char16_t* at = nullptr;
        const char16_t* end = nullptr;
        std::uint16_t* places = nullptr; ///< where a pattern may begin, counted from the stretch
        int found = 0;
    };
    std::uint16_t places[stretch];
    const char16_t* const begin = text.data() + from;
    const std::size_t ahead = shortest_ - Units;
    const auto step = [&](Lane& lane) {
        const std::size_t further = steps_[bucket_of<Units>(lane.at + ahead)];
        lane.places[lane.found] = static_cast<std::uint16_t>(lane.at - begin);
        lane.found += int{further == 0} & int{begins_[bucket_of<Units>(lane.at)]};
        lane.at += std::max<std::size_t>(further, 1);
    };
    const std::size_t share = (end - from + lanes - 1) / lanes;
    Lane all[lanes];
    for (std::size_t i = 0; i < lanes; ++i)
        all[i] = {begin + std::min(i * share, end - from), begin + std::min((i + 1) * share, end - from),
                  places + i * (stretch / lanes)};
    while ((all[0].at < all[0].end) & (all[1].at < all[1].end) & (all[2].at < all[2].end) &
           (all[3].at < all[3].end))
        for (Lane& lane : all) step(lane);
    for (Lane& lane : all) {
        while (lane.at < lane.end) step(lane);
        for (int i = 0; i < lane.found; ++i) follow(text, from + lane.places[i], hits);
    }
}

void PatternSet::follow(TextView text, std::size_t at, std::vector<Hit>& hits) const {
    const char16_t* here = text.data() + at;
    const char16_t* const end = text.data() + text.size();
    for (const Node* node = &nodes_.front();;) {
        if (std::cmp_less(end - here, node->length) ||
            !std::equal(here, here + node->length, labels_.data() + node->label))
            return;
        here += node->length;
        for (int ended = node->begin; ended < node->begin + node->ends; ++ended)
            hits.push_back({at, order_[static_cast<std::size_t>(ended)]});
        if (node->children == 0 || here == end) return;
        const int child = child_of(*node, *here++);
        if (child == 0) return;
        node = &nodes_[static_cast<std::size_t>(child)];
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

namespace {

/// Puts `with` in the place of `length` units at each of the places, which rise. Returns where it stands
/// then.
std::vector<std::size_t> put_in_place(Text& text, const std::vector<std::size_t>& places, std::size_t length,
                                      TextView with) {
    const std::size_t size = text.size(), count = places.size();
    const auto moved = [&](std::size_t i) { return places[i] + i * with.size() - i * length; };
    std::vector<std::size_t> put(count);
    for (std::size_t i = 0; i < count; ++i) put[i] = moved(i);
    // What stands behind each place, up to the next one or the end.
    const auto behind = [&](std::size_t i) { return places[i] + length; };
    const auto units_behind = [&](std::size_t i) {
        return (i + 1 < count ? places[i + 1] : size) - behind(i);
    };
    const auto move_behind = [&](std::size_t i) {
        Text::traits_type::move(&text[put[i] + with.size()], &text[behind(i)], units_behind(i));
    };
    // From the side on which nothing is overwritten that is still to be moved.
    if (with.size() > length) {
        text.resize(size + count * (with.size() - length));
        for (std::size_t i = count; i-- > 0;) move_behind(i);
    } else if (with.size() < length) {
        for (std::size_t i = 0; i < count; ++i) move_behind(i);
        text.resize(size - count * (length - with.size()));
    }
    for (const std::size_t place : put) with.copy(&text[place], with.size());
    return put;
}

} // namespace

void PatternIndex::replace(int number, const std::vector<std::size_t>& places, TextView with) {
    if (places.empty()) return;
    const std::size_t length = set_.pattern(number).size();
    // Whatever begins less than the longest pattern before a place may reach into it.
    const std::size_t reach = set_.longest() - 1;
    const std::vector<std::size_t> put = put_in_place(text_, places, length, with);
    const auto untouched = [&](const PatternSet::Hit& hit) { return hit.at + reach < places.front(); };
    const auto first = std::partition_point(hits_.begin(), hits_.end(), untouched);
    later_.assign(first, hits_.end());
    hits_.erase(first, hits_.end());
    auto old = later_.begin();
    std::size_t found_to = 0; // places of the new text before it have been looked at
    for (std::size_t i = 0; i < places.size(); ++i) {
        // Hits before the reach of the place stay, moved with the text.
        for (; old != later_.end() && old->at + reach < places[i]; ++old)
            hits_.push_back({old->at + put[i] - places[i], old->pattern});
        while (old != later_.end() && old->at < places[i] + length) ++old;
        const std::size_t begin = std::max(found_to, put[i] - std::min(reach, put[i]));
        const std::size_t end = put[i] + with.size();
        set_.find(text_, begin, end, hits_);
        found_to = std::max(found_to, end);
    }
    const std::size_t last_old = places.back() + length, last_new = put.back() + with.size();
    for (; old != later_.end(); ++old) hits_.push_back({old->at - last_old + last_new, old->pattern});
    link();
}

} // namespace twk
