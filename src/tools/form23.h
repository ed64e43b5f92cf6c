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

    std::array<Frame, 4> Frame1{Frame{u"All File - Find and Replace"},
                                Frame{u"TWK Generated HTM - PlaceHolders"}, Frame{u"PlaceHolders"},
                                Frame{u"Results"}};

    Label Label46{u"Select the paht in which you will be looking for PlaceHolders..."};
    DriveListBox Drive2;
    DirListBox Dir2;
    TextBox Text1; ///< the folder
    Label Label1{u"Insert a criteria to select files..."};
    TextBox Text2{u"*.htm"};
    CheckBox Check1{u"Recurse Subdirectories?"};
    std::array<OptionButton, 2> Option1{OptionButton{u"All Files - Find and Replace", true},
                                        OptionButton{u"TWK Generatd HTM - PlaceHolders"}};

    Label Label2{u"Insert a string to FIND ..."};
    TextBox Text3;
    Label Label3{u"Insert a string to REPLACE ..."};
    TextBox Text4;
    CheckBox Check2{u"Case-Sensitive Match?"}; ///< nothing reads it
    CheckBox Check3{u"Find Only?"};
    CommandButton cmdFindAll{u"Find and Replace"};
    Label lbl_warning{
        u"Lines without the text to find are lost from the files, and there is no backup. Run it with "
        u"\"Find Only?\" first."};

    Label Label4{u"Select a project to use its keywords..."};
    ComboBox combo1{u"Pick a project"};
    Label Label5{u"Select elements to replace..."};
    ListBox List1;
    CommandButton cmdTWK{u"Next"};

    Grid gridReplace;
    CommandButton Command1{u"Find and Replace"};
    CommandButton Command5{u"Close/Cancel"};

    TextBox Text5; ///< the log
    ProgressBar ProgressBar1;
    CommandButton Command2{u"Close"};

    CommandButton Command7{u"Help"};
    CommandButton Command3{u"Exit"};
    DirListBox dir_escondido;
    FileListBox file_escondido;

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
