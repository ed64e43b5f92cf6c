// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/pattern_index.h"
#include "engine/counting/scan.h"

#include <cstdint>
#include <optional>

/// Counts of many keywords in one text: what `contar_kw` gives for one keyword after the other, from one
/// pass. Where that is not certain they fall back on `contar_kw`.
namespace twk {

/// The keywords that are counted together, in the form that a count leaves them in.
class KeywordSet {
  public:
    explicit KeywordSet(const std::vector<Text>& keywords);

    int size() const { return patterns_.size(); }
    const Text& keyword(int k) const { return patterns_.pattern(k); }
    /// Whether the index tells all: an empty keyword, or one of two units and more without a "$".
    bool known(int k) const { return known_[static_cast<std::size_t>(k)]; }
    /// Whether it has more words than one.
    bool is_phrase(int k) const { return phrases_[static_cast<std::size_t>(k)]; }
    const PatternSet& patterns() const { return patterns_; }

  private:
    PatternSet patterns_;
    std::vector<bool> known_, phrases_;
};

/// Replaces the last `count` occurrences, case-sensitive, looked for from the end: what `plain::replace_last`
/// gives without reversing the text. 0 leaves the text alone, -1 replaces all, below that is fault 5. Returns
/// how many there were to replace.
int replace_last(Text& text, TextView find, TextView with, int count);

/// Counts in one text. Whatever else changes the text makes the object useless.
class KeywordCounts {
  public:
    /// `scan` is of the text, where there is one.
    KeywordCounts(const KeywordSet& set, Text& text, std::optional<TextScan> scan = {})
        : set_(set), text_(text), scan_(scan) {}

    /// `contar_kw` of the text and keyword `k` of the set, with all it does to both. `keyword` is the
    /// caller's variable.
    std::int16_t contar(int k, Text& keyword);
    /// Whether the last count found the text in the form that it stays in, and no occurrence.
    bool absent() const { return absent_; }
    /// `replace_last` of keyword `k` in the text.
    int replace_last(int k, TextView with, int count);
    /// The text has been changed by someone else.
    void changed() {
        index_.reset();
        scan_.reset();
    }

  private:
    /// From the index; nothing when matches of a phrase stand close enough to play into each other.
    std::optional<std::int64_t> counted(int k) const;
    bool survives_around(const std::vector<std::size_t>& places, std::size_t old_size, TextView with) const;

    const KeywordSet& set_;
    Text& text_;
    std::optional<TextScan> scan_; ///< until the text is changed
    std::optional<PatternIndex> index_;
    int passes_left_ = 3; ///< a text that keeps losing its form is counted keyword by keyword
    bool absent_ = false;
};

} // namespace twk
