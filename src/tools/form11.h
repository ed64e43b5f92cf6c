// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

namespace twk {

/// Surfs, and carries the text of a page into the box editor of Step 3.
class Form11 {
  public:
    static constexpr const char* name = "Form11";
    static constexpr TextView title = u"Web Browser";

    WebBrowser wb1;
    TextBox Text1; ///< address; follows the page that has loaded
    CommandButton Command5{u"Go!"};
    CommandButton Command2{u"Back"};
    CommandButton Command3{u"Forward"};
    CommandButton Command4{u"Home"};
    CommandButton Command1{u"Pick up DOCUMENT TEXT and copy to content box"};

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void wb1_NavigateComplete();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
};

} // namespace twk
