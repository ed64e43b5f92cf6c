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

    WebBrowser wb1;
    Label Label1{u"Help"};
    Label Label5{u"Tarnwick"};
    Label Label2{u"Visit " + Text(addresses::maker_site) + u" for updates of help.htm."};
    PictureBox Picture1;
    CommandButton Command1{u"Check this topic in the Online Help"};

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void Command1_Click();
};

} // namespace twk
