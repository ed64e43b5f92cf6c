#pragma once

#include "platform/screens.h"

namespace twk {

/// Step 3: the content boxes.
class Form5 {
  public:
    static constexpr const char* name = "Form5";
    static constexpr TextView title = u"Step 3 of 6 - Content";

    void enumerate(ScreenMap& map);
};

} // namespace twk
