// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

namespace twk {

/// The terms, as a text to read.
class disclaimer {
  public:
    static constexpr const char* name = "disclaimer";
    static constexpr TextView title = u"Disclaimer";

    RichTextBox RichTextBox1;

    void enumerate(ScreenMap& map);
    void Form_Load();
};

} // namespace twk
