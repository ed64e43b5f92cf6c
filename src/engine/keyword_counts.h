#pragma once

#include "platform/text.h"

#include <cstdint>
#include <vector>

namespace twk {

/// Counts many keywords in one text, one after the other, each with the result and the side effects of
/// `contar_kw`. Keywords whose pieces the text does not hold are told at once, without another walk over it.
class KeywordCounts {
  public:
    /// The text must outlive the object.
    explicit KeywordCounts(Text& text) : text_(text) {}

    /// As `contar_kw`; faults likewise.
    std::int16_t count(Text& keyword);

    /// To be called when the text has been changed from outside.
    void text_changed() { known_ = false; }

  private:
    void learn();
    bool may_hold(TextView keyword) const;

    Text& text_;
    bool known_ = false;                 ///< `windows_` is of the present text
    bool plain_ = false;                 ///< a count of a keyword that is not there leaves the text as it is
    std::vector<std::uint64_t> windows_; ///< a bit for the hash of every window of four units
    unsigned shift_ = 0;
};

} // namespace twk
