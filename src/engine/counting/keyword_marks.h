// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/pattern_index.h"

#include <optional>

namespace twk {

/// Marks keywords in one text after the other; keeps how to find them while they stay the same.
class KeywordMarks {
  public:
    /// Makes of the text what `plain::highLight` gives, in place. The keywords are those of the time before,
    /// unless `forget` has been called since.
    void highLight(Text& texto, const std::vector<Text>& keywords, TextView opening, TextView closing);
    void forget() { between_blanks_.reset(); }

  private:
    /// The marked form of a keyword, between blanks, and whether it holds none between blanks itself.
    struct Mark {
        Text text{};
        bool made = false, plain = false;
    };

    void learn(const std::vector<Text>& keywords, TextView opening, TextView closing);
    const Mark& mark(int k);
    bool mark_at_once(Text& text);

    const std::vector<Text>* keywords_ = nullptr;
    Text opening_, closing_;
    bool closed_ = false; ///< no keyword can begin or end in what a mark adds
    std::optional<PatternSet> between_blanks_;
    std::vector<Mark> marks_;
    std::vector<PatternSet::Hit> hits_; ///< room that is used again, as is `out_`
    Text out_;
};

} // namespace twk
