// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <array>
#include <cstdint>
#include <vector>

/// Finds many patterns in one pass over a text: what `plain::occurrences` finds by looking at every place.
namespace twk {

/// Patterns of two units or more, by number; shorter ones are never found.
class PatternSet {
  public:
    explicit PatternSet(std::vector<Text> patterns);

    int size() const { return static_cast<int>(patterns_.size()); }
    const Text& pattern(int number) const { return patterns_[static_cast<std::size_t>(number)]; }
    bool findable(int number) const { return pattern(number).size() >= 2; }
    /// Units of the longest pattern that can be found; 0 when there is none.
    std::size_t longest() const { return longest_; }
    /// Whether a pattern holds the unit.
    bool holds(char16_t unit) const;

    /// An occurrence: where it begins, counted from 0, and of which pattern.
    struct Hit {
        std::size_t at;
        int pattern;
    };

    /// Appends the occurrences that begin in [from, end), overlapping ones among them, in the order of
    /// places.
    void find(TextView text, std::size_t from, std::size_t end, std::vector<Hit>& hits) const;

  private:
    /// A node of the tree of all patterns: those that begin alike, as a range of `order_`, with what they
    /// have in common behind the unit that leads here. Its children stand side by side, by their units.
    struct Node {
        int begin = 0, end = 0; ///< in `order_`
        int ends = 0;           ///< so many of them, the first, end here
        std::size_t label = 0;  ///< place in `labels_`
        std::size_t length = 0; ///< of the label
        int child = 0;          ///< the first one
        int children = 0;
        int table = -1; ///< in `tables_`, of a node with many children
    };
    /// Number of the child that a unit leads to, counted from 1; 0 for none.
    using ChildTable = std::array<std::uint8_t, 128>;

    static constexpr std::size_t buckets = 8192; ///< few enough to stay close to the processor

    /// Bucket of the first units: as many as the search looks at together.
    template <int Units> static std::size_t bucket_of(const char16_t* at) {
        const std::size_t pair = at[0] * 0x9E37u + at[1];
        return (Units < 3 ? pair : pair * 0x9E37u + at[2]) % buckets;
    }
    std::size_t bucket_of(const char16_t* at) const {
        return units_together() < 3 ? bucket_of<2>(at) : bucket_of<3>(at);
    }
    std::size_t units_together() const { return shortest_ < 3 ? 2 : 3; }
    void order_patterns();
    void grow_tree();
    void grow_node(std::size_t number, std::vector<std::size_t>& depths);
    void measure_steps();
    int child_of(const Node& node, char16_t unit) const;
    void follow(TextView text, std::size_t at, std::vector<Hit>& hits) const;
    template <int Units>
    void find_in_stretch(TextView text, std::size_t from, std::size_t end, std::vector<Hit>& hits) const;

    std::vector<Text> patterns_;
    std::vector<int> order_; ///< the patterns that can be found, by their units, then by number
    std::vector<Node> nodes_;
    std::vector<char16_t> units_; ///< that lead to each node
    Text labels_;
    std::vector<ChildTable> tables_;
    std::vector<std::uint8_t> begins_; ///< whether a pattern begins so, by bucket
    /// How far the units at the end of the shortest pattern's length let the search step, by bucket; 0 where
    /// it must look.
    std::vector<std::uint8_t> steps_;
    std::size_t longest_ = 0;
    std::size_t shortest_ = 0;
};

/// A text with the places of all patterns, kept up to date while occurrences are replaced.
class PatternIndex {
  public:
    PatternIndex(const PatternSet& set, Text& text);

    /// Whether the pattern occurs at all.
    bool occurs(int number) const { return ends_[static_cast<std::size_t>(number)].first >= 0; }
    /// Calls `visit` with the places of the pattern from the left, none overlapping the one before.
    template <class Visit> void each_from_left(int number, Visit visit) const {
        const std::size_t length = set_.pattern(number).size();
        std::size_t end = 0;
        each_hit(number, [&](std::size_t at) {
            if (at < end) return;
            end = at + length;
            visit(at);
        });
    }
    /// Places from the right, at most `most`, none overlapping the one before; the leftmost comes first.
    std::vector<std::size_t> from_right(int number, std::size_t most) const;
    /// Puts `with` in the place of the pattern at places that rise and do not overlap.
    void replace(int number, const std::vector<std::size_t>& places, TextView with);

  private:
    template <class Visit> void each_hit(int number, Visit visit) const {
        for (int hit = ends_[static_cast<std::size_t>(number)].first; hit >= 0;
             hit = next_[static_cast<std::size_t>(hit)])
            visit(hits_[static_cast<std::size_t>(hit)].at);
    }
    void link();

    /// The first and last hit of a pattern; -1 for none.
    struct Ends {
        int first = -1, last = -1;
    };

    const PatternSet& set_;
    Text& text_;
    std::vector<PatternSet::Hit> hits_;  ///< by place
    std::vector<PatternSet::Hit> later_; ///< those behind a replacement, while it is made
    std::vector<int> next_;              ///< the next hit of the same pattern, -1 behind the last
    std::vector<Ends> ends_;             ///< by pattern
};

} // namespace twk
