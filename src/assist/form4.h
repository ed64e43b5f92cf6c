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
    static constexpr std::size_t frames = 3;

    std::array<Frame, frames> Frame1{Frame{u"Element Properties"}, Frame{u"Element Properties"},
                                     Frame{u"Element Properties"}};
    std::array<TextBox, frames> Text1;
    std::array<Label, frames> Label2{Label{u"<!--LinksToPrimary-->"}, Label{u"<!--LinksToPrimary-->"},
                                     Label{u"<!--LinksToPrimary-->"}};
    CommandButton Command7{u"Help"};
    CommandButton Command3{u"Next"};
    CommandButton Command1{u"Cancel"};

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void Command1_Click();
    /// Hides every frame.
    void invFrames();
    /// Index of the first visible frame, -1 when all are hidden.
    int frameActivo() const;
};

} // namespace twk
