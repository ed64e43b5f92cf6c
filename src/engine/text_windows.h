#pragma once

#include "platform/text.h"

#include <cstdint>
#include <vector>

namespace twk {

/// Every four units that stand together in a text, by their hashes: tells of most words that the text does
/// not hold, without another walk over it.
class TextWindows {
  public:
    TextWindows() = default;
    explicit TextWindows(TextView text);

    /// False when the text certainly does not hold `what`.
    bool may_hold(TextView what) const;

  private:
    std::vector<std::uint64_t> bits_;
    unsigned shift_ = 0;
};

} // namespace twk
