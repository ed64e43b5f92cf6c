// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

#include <array>

namespace twk {

/// The template editor. Nothing shows it; it stays out of the wizard's chain.
class Form4 {
  public:
    static constexpr const char* name = "Form4";
    static constexpr TextView title = u"Template Editor / Properties";
    static constexpr bool marked = true;
    static constexpr std::size_t frames = 3;

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROLS(Frame, frames, Frame1, u"Element Properties", u"Element Properties", u"Element Properties");
    TWK_CONTROLS(TextBox, frames, Text1);
    TWK_CONTROLS(Label, frames, Label2, u"<!--LinksToPrimary-->", u"<!--LinksToPrimary-->",
                 u"<!--LinksToPrimary-->");
    TWK_CONTROL(CommandButton, Command7, u"Help");
    TWK_CONTROL(CommandButton, Command3, u"Next");
    TWK_CONTROL(CommandButton, Command1, u"Cancel");

    void enumerate(ScreenMap& map);
    void Command1_Click();
    /// Hides every frame.
    void invFrames();
    /// Index of the first visible frame, -1 when all are hidden.
    int frameActivo() const;
};

} // namespace twk
