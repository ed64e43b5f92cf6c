// SPDX-License-Identifier: MIT
#pragma once

#include "platform/addresses.h"
#include "platform/screens.h"

namespace twk {

/// The help browser.
class Form9 {
  public:
    static constexpr const char* name = "Form9";
    static constexpr TextView title = u"TWK Help";
    static constexpr bool marked = true;

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(WebBrowser, wb1);
    TWK_CONTROL(Label, Label1, u"Help");
    TWK_CONTROL(Label, Label5, u"Tarnwick");
    TWK_CONTROL(Label, Label2, u"Visit " + Text(addresses::maker_site) + u" for updates of help.htm.");
    TWK_CONTROL(PictureBox, Picture1);
    TWK_CONTROL(CommandButton, Command1, u"Check this topic in the Online Help");

    void enumerate(ScreenMap& map);
    void Command1_Click();
};

} // namespace twk
