#pragma once

#include "platform/screens.h"

namespace twk {

/// Picks text up from the web.
class Form11 {
  public:
    static constexpr const char* name = "Form11";
    static constexpr TextView title = u"Web Browser";

    void enumerate(ScreenMap& map);
};

} // namespace twk
