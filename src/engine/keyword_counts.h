#pragma once

#include "engine/text_windows.h"

namespace twk {

/// Counts many keywords in one text, one after the other, each with the result and the side effects of
/// `contar_kw`. Keywords that the text does not hold are mostly told without another walk over it.
class KeywordCounts {
  public:
    /// The text must outlive the object.
    explicit KeywordCounts(Text& text) : text_(text) {}

    /// As `contar_kw`; faults likewise.
    std::int16_t count(Text& keyword);

    /// To be called when the text has been changed from outside.
    void text_changed() { plain_ = false; }

  private:
    void learn();

    Text& text_;
    bool plain_ = false; ///< `windows_` is of the present text, which a count without a find leaves as it is
    TextWindows windows_;
};

} // namespace twk
