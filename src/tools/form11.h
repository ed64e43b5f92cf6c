// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

namespace twk {

/// Surfs, and carries the text of a page into the box editor of Step 3.
class Form11 {
  public:
    static constexpr const char* name = "Form11";
    static constexpr TextView title = u"Web Browser";
    static constexpr bool marked = true;

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(WebBrowser, wb1);
    TWK_CONTROL(TextBox, Text1); ///< address; follows the page that has loaded
    TWK_CONTROL(CommandButton, Command5, u"Go!");
    TWK_CONTROL(CommandButton, Command2, u"Back");
    TWK_CONTROL(CommandButton, Command3, u"Forward");
    TWK_CONTROL(CommandButton, Command4, u"Home");
    TWK_CONTROL(CommandButton, Command1, u"Pick up DOCUMENT TEXT and copy to content box");

    void enumerate(ScreenMap& map);
    void Form_Load();
    void wb1_NavigateComplete();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
};

} // namespace twk
