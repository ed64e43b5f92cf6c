#pragma once

#include "platform/screens.h"

namespace twk {

/// Previews a content box.
class Form21 {
  public:
    static constexpr const char* name = "Form21";
    static constexpr TextView title = u"Web Browser";

    void enumerate(ScreenMap& map);
};

} // namespace twk
