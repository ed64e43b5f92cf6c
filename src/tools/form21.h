// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

namespace twk {

/// Previews a content box as a page and lets its HTML be edited.
class Form21 {
  public:
    static constexpr const char* name = "Form21";
    static constexpr TextView title = u"Web Browser";

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(WebBrowser, WebBrowser1);
    TWK_CONTROL(TextBox, Text1); ///< the HTML of the box
    TWK_CONTROL(CommandButton, cmdrefresh, u"Refresh");
    TWK_CONTROL(CommandButton, cmdgoback, u"Go Back");

    void enumerate(ScreenMap& map);
    void cmdrefresh_Click();
    void cmdgoback_Click();
};

/// Path of the file that a preview is shown from.
Text preview_file();

} // namespace twk
