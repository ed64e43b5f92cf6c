// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

#include <cstdint>
#include <vector>

namespace twk {

/// A tip of the day, drawn from a file with one tip a line.
class frmTip {
  public:
    static constexpr const char* name = "frmTip";
    static constexpr TextView title = u"Tip of the Day";

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Label, Label1, u"Did you know...");
    TWK_CONTROL(Label, lblTipText);
    TWK_CONTROL(PictureBox, Picture1);
    TWK_CONTROL(CommandButton, cmdNextTip, u"&Next Tip");
    TWK_CONTROL(CommandButton, cmdOK, u"OK");

    std::vector<Text> tips;
    std::int32_t tip_actual = 0; ///< 1 for the first

    void enumerate(ScreenMap& map);
    void Form_Load();
    void cmdNextTip_Click();
    void cmdOK_Click();
    /// Loads the tips of a file and shows one; false when there is no such file.
    bool LoadTips(const Text& path);
    /// Draws a tip, perhaps the same again, and shows it.
    void siguiente_tip();
    void DisplayCurrentTip();
};

} // namespace twk
