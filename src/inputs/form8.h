#pragma once

#include "platform/screens.h"

namespace twk {

/// The synonyms of the keyword selected in Step 2.
class Form8 {
  public:
    static constexpr const char* name = "Form8";
    static constexpr TextView title = u"Synonym";

    void enumerate(ScreenMap& map);
};

} // namespace twk
