// SPDX-License-Identifier: MIT
#pragma once

#include "engine/boxes.h"
#include "engine/keyword_table.h"
#include "platform/addresses.h"
#include "platform/screens.h"
#include "platform/undo_stack.h"
#include "store/database.h"

#include <array>
#include <cstdint>
#include <map>
#include <vector>

namespace twk {

/// Step 3: the content boxes, their ties to keywords, and the critic that judges the box in the editor.
class Form5 {
  public:
    static constexpr const char* name = "Form5";
    static constexpr TextView title = u"Step 3 of 6 - Content";
    static constexpr bool marked = true;
    static constexpr int least_boxes = 2; ///< that Next lets pass
    static constexpr TextView too_few_boxes = u"You Must enter at least 2 content boxes.";
    static constexpr TextView critic_at_rest = u"Click a content box from the list to calculate.";

    Form5();

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(
        Label, Label1,
        u"Fill one or more Content Boxes to supply content to your gateway pages.  You can copy and paste "
        u"(Ctrl + V) from other sources. <html tags> are allowed. ");
    TWK_CONTROL(RichTextBox, rt1);                     ///< the box editor
    TWK_CONTROL(Label, lbl_unsaved, u"Not saved yet"); ///< shown while the editor differs from the box
    TWK_CONTROL(Label, lbl_live); ///< words and keywords of the editor, counted while one types
    TWK_CONTROL(Timer, tmr_live); ///< counts them once the keys rest
    TWK_CONTROL(ListBox, List1);  ///< the project's boxes
    TWK_CONTROL(CommandButton, Command2, u"Add");
    TWK_CONTROL(CommandButton, Command5, u"Save");
    TWK_CONTROL(CommandButton, Command3, u"Delete");
    TWK_CONTROL(CommandButton, Command8, u"Clear Box");
    TWK_CONTROL(CommandButton, Command11, u"Font");
    TWK_CONTROL(CommandButton, cmdshow, u"Show-Html");
    TWK_CONTROL(Label, Label6, u"Keywords from this project:");
    TWK_CONTROL(ComboBox, lstkeyword, u"Pick a keyword"); ///< entries "keyid-keyword"
    TWK_CONTROL(CommandButton, cmdtie, u"Tie");
    TWK_CONTROL(Label, Label4, u"Import other project's content boxes.");
    TWK_CONTROL(ComboBox, combo1, u"Pick a project");
    TWK_CONTROL(CommandButton, Command7, u"Use");
    TWK_CONTROL(Label, Label2, u"Use the Browser to pick up available text from the WWW.");
    TWK_CONTROL(CommandButton, Command4, u"Go");
    TWK_CONTROL(TextBox, Text2, Text(addresses::maker_site)); ///< start address of the browser
    TWK_CONTROL(CommandButton, Command9, u"Help");
    TWK_CONTROL(CommandButton, Command1, u"Next");
    TWK_CONTROL(Frame, Frame1, u"Content Critic");
    TWK_CONTROL(TextBox, Text3); ///< the critic's report
    TWK_CONTROL(CheckBox, Check1, u"", true);
    TWK_CONTROL(Label, Label5, u"Activate Content Critic");
    TWK_CONTROL(CommandButton, Command6, u"Refresh Content Critic");
    TWK_CONTROL(Label, Label3,
                u"Content Critic cleans the text from invalid characters. Press 'Save' after use.");
    TWK_CONTROL(CommonDialog, CommonDialog1);

    void enumerate(ScreenMap& map);
    void Form_Load();
    void List1_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Command8_Click();
    void Command9_Click();
    void Command11_Click();
    void cmdshow_Click();
    void cmdtie_Click();

    /// Reads the boxes anew and empties the editor. Fault 9 past 101 boxes.
    void refrescar_cajas();
    UndoStack deletions;
    /// Brings back what the last Delete took, and reads the boxes anew.
    void undo_delete();

    /// Tells beside the editor whether it holds changes that no box has; after every write to the editor.
    void show_unsaved();

    static constexpr TextView taken_files = u".txt .htm .html";
    /// Puts the text of a file behind what the editor holds.
    void take_file(const Text& path);

    /// Counts the editor's words and keywords as the critic does, and changes nothing else.
    void tmr_live_Timer();
    /// What is told below a box of the list: its words, its ties, and whether the editor holds changes to it.
    Text note_of(int box);

    /// Judges the box in the editor, and cleans its text there.
    void criticar();

    std::array<Text, max_boxes> caja_texto;         ///< stored text of the box in the same position of List1
    std::array<std::int64_t, max_boxes> caja_cid{}; ///< its key
    KeywordTable tabla_kw; ///< the keywords; the critic lower-cases those it has counted
    std::int16_t pid_form = 0;
    Text RTAux; ///< text of the box as last saved or selected

  private:
    std::array<int, max_boxes> words_{};                ///< of each box, -1 until counted
    std::map<std::int64_t, std::vector<Text>> tied_to_; ///< the keywords of a box, by its key
    void fill_table();
    void delete_box(int index, UndoStack::Command& command);
    bool restore_box(const std::vector<StoredRow>& rows);
    /// Text of the box that the entry of `lstkeyword` is tied to, empty for none.
    Text tied_text(const Text& keyword);
    /// Reads which keywords are tied to which box.
    void read_ties();
    /// Row of the last keyword that the critic looks at.
    int last_judged() const;
    void write_content(Recordset& row);
    void import_boxes(const Text& project);

    Database base_datos_;
};

} // namespace twk
