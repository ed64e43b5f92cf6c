#pragma once

#include "platform/screens.h"

namespace twk {

/// The whole synonym dictionary.
class Form10 {
  public:
    static constexpr const char* name = "Form10";
    static constexpr TextView title = u"Synonym Dictionary";

    void enumerate(ScreenMap& map);
};

} // namespace twk
