// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

namespace twk {

/// A plain window that shows a log.
class Form16 {
  public:
    static constexpr const char* name = "Form16";
    static constexpr TextView title = u"View Log";

    Form16() { Text1.read_only = true; }

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Label, Label1);
    TWK_CONTROL(TextBox, Text1); ///< the log
    TWK_CONTROL(CommandButton, Command1, u"Close");

    void enumerate(ScreenMap& map);
    void Command1_Click();
};

} // namespace twk
