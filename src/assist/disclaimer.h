// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

namespace twk {

/// The terms, as a text to read.
class disclaimer {
  public:
    static constexpr const char* name = "disclaimer";
    static constexpr TextView title = u"Disclaimer";

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(RichTextBox, RichTextBox1);

    void Form_Load();
};

} // namespace twk
