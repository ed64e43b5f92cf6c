// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"
#include "store/database.h"

#include <array>
#include <cstddef>
#include <map>
#include <vector>

namespace twk {

/// Finds and replaces in the files of a folder; a second mode lays out the replacement of placeholders and
/// changes no file.
class Form23 {
  public:
    static constexpr const char* name = "Form23";
    static constexpr TextView title = u"PlaceHolders / Find & Replace";

    /// Places in `Frame1`.
    enum FrameIndex : std::size_t { all_files, placeholders, grid, results };

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROLS(Frame, 4, Frame1, u"All File - Find and Replace", u"TWK Generated HTM - PlaceHolders",
                 u"PlaceHolders", u"Results");

    TWK_CONTROL(Label, Label46, u"Select the paht in which you will be looking for PlaceHolders...");
    TWK_CONTROL(DriveListBox, Drive2);
    TWK_CONTROL(DirListBox, Dir2);
    TWK_CONTROL(TextBox, Text1); ///< the folder
    TWK_CONTROL(Label, Label1, u"Insert a criteria to select files...");
    TWK_CONTROL(TextBox, Text2, u"*.htm");
    TWK_CONTROL(CheckBox, Check1, u"Recurse Subdirectories?");
    TWK_CONTROLS(OptionButton, 2, Option1, u"All Files - Find and Replace",
                 u"TWK Generatd HTM - PlaceHolders");

    TWK_CONTROL(Label, Label2, u"Insert a string to FIND ...");
    TWK_CONTROL(TextBox, Text3);
    TWK_CONTROL(Label, Label3, u"Insert a string to REPLACE ...");
    TWK_CONTROL(TextBox, Text4);
    TWK_CONTROL(CheckBox, Check2, u"Case-Sensitive Match?"); ///< nothing reads it
    TWK_CONTROL(CheckBox, Check3, u"Find Only?");
    TWK_CONTROL(CommandButton, cmdFindAll, u"Find and Replace");
    TWK_CONTROL(
        Label, lbl_warning,
        u"Lines without the text to find are lost from the files, and there is no backup. Run it with "
        u"\"Find Only?\" first.");

    TWK_CONTROL(Label, Label4, u"Select a project to use its keywords...");
    TWK_CONTROL(ComboBox, combo1, u"Pick a project");
    TWK_CONTROL(Label, Label5, u"Select elements to replace...");
    TWK_CONTROL(ListBox, List1);
    TWK_CONTROL(CommandButton, cmdTWK, u"Next");

    TWK_CONTROL(Grid, gridReplace);
    TWK_CONTROL(CommandButton, Command1, u"Find and Replace");
    TWK_CONTROL(CommandButton, Command5, u"Close/Cancel");

    TWK_CONTROL(TextBox, Text5); ///< the log
    TWK_CONTROL(ProgressBar, ProgressBar1);
    TWK_CONTROL(CommandButton, Command2, u"Close");

    TWK_CONTROL(CommandButton, Command7, u"Help");
    TWK_CONTROL(CommandButton, Command3, u"Exit");
    TWK_CONTROL(DirListBox, dir_escondido);
    TWK_CONTROL(FileListBox, file_escondido);

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Drive2_Change();
    void Dir2_Change();
    void Option1_Click(int index);
    void Check3_Click();
    void cmdFindAll_Click();
    void cmdTWK_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command5_Click();
    void Command7_Click() {}

    std::vector<Text> archivos; ///< full paths of the files that the criteria selected

  private:
    /// What a pass was started with. It lets other events run, which may list other files, type other texts,
    /// and start a pass of their own.
    struct Pass {
        std::vector<Text> files;
        Text folder, find, replace;
        bool replacing = false;
        std::map<Text, int> replaced; ///< files that are done, with their lines: a link may name one again
    };
    void list_files_to_treat();
    void treat_files();
    static int treat_file(const Pass& pass, const Text& path);
    static int replace_in(Pass& pass, const Text& path);
    void log(Text entry);

    Database base_datos_;
};

} // namespace twk
