// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/pattern_index.h"

#include <optional>

namespace twk {

/// Marks keywords in one text after the other; keeps how to find them while they stay the same.
class KeywordMarks {
  public:
    /// What `plain::highLight` gives.
    Text highLight(TextView texto, const std::vector<Text>& keywords, TextView opening, TextView closing);

  private:
    std::vector<Text> keywords_;
    std::optional<PatternSet> between_blanks_;
};

} // namespace twk
