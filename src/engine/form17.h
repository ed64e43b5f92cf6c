// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

namespace twk {

/// Step 6, inside the run: the names of the random pages, to be changed, saved and loaded.
class Form17 {
  public:
    static constexpr const char* name = "Form17";
    static constexpr TextView title = u"Step 6 of 6 - Random Pages Filename Save/Load";
    static constexpr bool marked = true;
    static constexpr bool shown_when_loaded = false; // the run fills it first and shows it modal

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Label, Label46); ///< how many pages there will be
    TWK_CONTROL(Label, Label1,
                u"To modify a file name click it in the side box and type your modifications in the above "
                uR"(text-box, then click in the "Update" button.)");
    TWK_CONTROL(ListBox, List1); ///< file names
    TWK_CONTROL(ListBox, List2); ///< their hosts
    TWK_CONTROL(Label, Label2, u"HOST:");
    TWK_CONTROL(Label, Label3);
    TWK_CONTROL(TextBox, Text1); ///< the name being edited
    TWK_CONTROL(CommandButton, Command2, u"Update");
    TWK_CONTROL(CommandButton, Command3, u"Load from file");
    TWK_CONTROL(CommandButton, Command4, u"Save to file");
    TWK_CONTROL(CommandButton, Command6, u"Find/Replace");
    TWK_CONTROL(CommandButton, Command5, u"Help");
    TWK_CONTROL(CommandButton, Command1, u"Next");
    TWK_CONTROL(CommandButton, Command9, u"Cancel");

    TWK_CONTROL(Frame, Frame1, u"Find/Replace in File Names");
    TWK_CONTROL(Label, lbl_find, u"Find:");
    TWK_CONTROL(Label, lbl_replace, u"Replace:");
    TWK_CONTROL(TextBox, Text2);
    TWK_CONTROL(TextBox, Text3);
    TWK_CONTROL(CommandButton, Command8, u"Find/Replace");
    TWK_CONTROL(CommandButton, Command7, u"Cancel");

    TWK_CONTROL(Frame, Frame2, u"Setp 6 - Help"); ///< the caption's own spelling
    TWK_CONTROL(Label, Label7, u"Random Pages Name (Step 6)");
    TWK_CONTROL(
        Label, lbl_help_names,
        u"TWK generates file names for 1st and 2nd level pages that correspond to the keyword for which they "
        u"are optimized. Random pages use randomly taken keyword  pairs, adding the js letters at the end to "
        u"identify pages that use Javascript redirection. Thus, a new page generation process can use "
        u"different file names.");
    TWK_CONTROL(
        Label, lbl_help_lists,
        u"This option helps to repeat the gateway generation process keeping the file names constant. Thus, "
        u"those pages that already obtained a good SE ranking are preserved. If there are too few or too many "
        u"names in the list, the TWK software will make up for the difference.");
    TWK_CONTROL(Label, lbl_help_replace,
                u"Use the Find/Replace of this Step to shorten long file names when one keyphrase "
                u"repeats in many of them.");
    TWK_CONTROL(CommandButton, Command11, u"Close");
    TWK_CONTROL(CommonDialog, CommonDialog1);

    Text project_name; ///< trimmed; set by the run that shows the screen

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Activate();
    /// Leaves the mark of a Cancel, whatever the reason of the unload.
    void Form_Unload();
    void List1_Click();
    void Command1_Click();
    void Command2_Click();
    /// Loads names from a list file. Any fault, a cancelled dialog among them, is told and brings the names
    /// back as they were.
    void Command3_Click();
    /// Saves the names to a list file; any fault ends it quietly.
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Command8_Click();
    void Command9_Click();
    void Command11_Click();
};

} // namespace twk
