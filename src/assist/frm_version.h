// SPDX-License-Identifier: MIT
#pragma once

#include "platform/addresses.h"
#include "platform/screens.h"

namespace twk {

/// The About box.
class frmVersion {
  public:
    static constexpr const char* name = "frmVersion";
    static constexpr TextView title = u"About";

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(PictureBox, Picture1);
    TWK_CONTROL(PictureBox, Picture2);
    TWK_CONTROL(Label, Label10, u"Date of this version:     09 - 22 - 2003");
    TWK_CONTROL(Label, Label2, u"Programmers:\nEleanor Marsh\nTomas Ibarra\nPriya Nandakumar");
    TWK_CONTROL(Label, Label5, u"Thanks for your support and suggestions: support@tarnwick.example");
    TWK_CONTROL(Label, Label4, Text(addresses::maker_site));
    TWK_CONTROL(CommandButton, Command1, u"Close");

    void enumerate(ScreenMap& map);
    void Command1_Click();
    void Label4_Click();
};

} // namespace twk
