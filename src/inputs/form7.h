#pragma once

#include "platform/screens.h"
#include "store/database.h"

namespace twk {

/// Step 4: the directories that will serve the pages.
class Form7 {
  public:
    static constexpr const char* name = "Form7";
    static constexpr TextView title = u"Step 4 of 6 - Hosts and Domains";

    TextBox Text2;             ///< main gateway directory
    TextBox Text1{u"http://"}; ///< entry of a secondary one
    ListBox List1;             ///< the secondary directories
    CommandButton Command2{u"Add secondary gateway domain/directory"};
    CommandButton Command3{u"Delete"};
    CommandButton Command1{u"Next"};
    CommandButton Command7{u"Help"};

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command7_Click();

    std::int16_t pid_form = 0;
    int estado = 1; ///< 2 once a check has refused
    Database base_datos;
};

} // namespace twk
