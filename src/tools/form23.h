#pragma once

#include "platform/screens.h"

namespace twk {

/// Finds and replaces in files.
class Form23 {
  public:
    static constexpr const char* name = "Form23";
    static constexpr TextView title = u"PlaceHolders / Find & Replace";

    void enumerate(ScreenMap& map);
};

} // namespace twk
