#pragma once

#include "platform/screens.h"

#include <array>

namespace twk {

/// Step 1: the project's name and the properties of the target site. The only place where a project's row is
/// made or changed.
class Form2 {
  public:
    static constexpr const char* name = "Form2";
    static constexpr TextView title = u"Step 1 of 6 - Project Properties";

    std::array<TextBox, 1> txt_name;
    std::array<TextBox, 1> Text2;
    std::array<TextBox, 3> txt_url{TextBox{u"http://"}, TextBox{u"http://"}, TextBox{u"http://"}};
    std::array<TextBox, 3> txt_dat; ///< subject, category, description
    TextBox Text7;                  ///< webmaster's name
    ListBox List1;                  ///< the other target URLs
    CommandButton Command7{u"Add"};
    CommandButton Command8{u"Delete"};
    CommandButton Command2{u"&Next"};
    CommandButton Command1{u"&Exit"};
    CommandButton Command3{u"&Help"};

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void Text2_LostFocus(int index);
    void txt_url_LostFocus(int index);
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command7_Click();
    void Command8_Click();
    /// 1 when the Target Site Name was refused (told, emptied, focused), 0 when it passed. Looks at
    /// `Text2[0]` whatever is passed in.
    int Revisar_Target(TextView text);
};

} // namespace twk
