#pragma once

#include "platform/screens.h"

namespace twk {

/// Step 6, inside the run: the names of the random pages, to be changed, saved and loaded.
class Form17 {
  public:
    static constexpr const char* name = "Form17";
    static constexpr TextView title = u"Step 6 of 6 - Random Pages Filename Save/Load";
    static constexpr bool shown_when_loaded = false; // the run fills it first and shows it modal

    Label Label46;
    ListBox List1; ///< file names
    ListBox List2; ///< their hosts
    Label Label2{u"HOST:"};
    Label Label3;
    TextBox Text1;
    CommandButton Command2{u"Update"};
    CommandButton Command3{u"Load from file"};
    CommandButton Command4{u"Save to file"};
    CommandButton Command6{u"Find/Replace"};
    CommandButton Command5{u"Help"};
    CommandButton Command1{u"Next"};
    CommandButton Command9{u"Cancel"};
    Frame Frame1{u"Find/Replace in File Names"};
    TextBox Text2, Text3;
    CommandButton Command8{u"Find/Replace"};
    CommandButton Command7{u"Cancel"};
    Frame Frame2{u"Setp 6 - Help"};
    Label Label7{u"Random Pages Name (Step 6)"};
    CommandButton Command11{u"Close"};
    Label Label1;
    CommonDialog CommonDialog1;

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Activate();
    void Form_Unload();
};

} // namespace twk
