// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_system.h"
#include "platform/screens.h"
#include "platform/undo_stack.h"
#include "store/database.h"

#include <array>
#include <cstdint>

namespace twk {

/// Step 2: the project's keywords and, for the selected one, its subkeywords. Writes to the store at once and
/// keeps its lists in step by hand.
class Form3 {
  public:
    static constexpr const char* name = "Form3";
    static constexpr TextView title = u"Step 2 of 6 - Keywords";
    static constexpr bool marked = true;
    static constexpr int least_keywords = 3; ///< that Next lets pass, whatever its words say
    static constexpr TextView too_few_keywords = u"You must provide more than 3 keywords";

    static constexpr int most_subkeywords = 99; ///< by hand; an import may bring more

    Form3();

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Label, lbl_keywords, u"Keywords / Keyword Phrases.");
    TWK_CONTROL(
        Label, lbl_intro,
        u"You can create 3 kinds of gateway pages: first level (based on primary keywords),  second level "
        u"(based in subkeywords) and random (all keywords). Each type of page has different structure "
        u"and linking profile. Use all the possible, relevant keywords.");
    TWK_CONTROL(
        Label, lbl_advice,
        u"Use Keywords or keyword phrases for important concepts and add SubKeywords to them for added "
        u"weight.");
    TWK_CONTROL(TextBox, Text1); ///< keyword entry
    TWK_CONTROL(ListBox, List1); ///< the keywords, in store order, then in order of adding
    TWK_CONTROL(CommandButton, Command2, u"&Add Keyword");
    TWK_CONTROL(CommandButton, Command21, u"Edit Keyword");
    TWK_CONTROL(CommandButton, Command7, u"Delete &Keyword");
    TWK_CONTROL(TextBox, Text2); ///< subkeyword entry
    TWK_CONTROL(ListBox, List2); ///< subkeywords of the selected keyword
    TWK_CONTROL(CommandButton, Command3, u"A&dd SubKeyword");
    TWK_CONTROL(CommandButton, Command22, u"Edit SubKeyword");
    TWK_CONTROL(CommandButton, Command10, u"Delete &SubKeyword");
    TWK_CONTROL(Label, lbl_keyw, u"Keywords: ");
    TWK_CONTROL(Label, lbl_skeyw, u"Subkeywords:");
    TWK_CONTROL(Label, keyw);
    TWK_CONTROL(Label, skeyw); ///< counts of the two lists
    TWK_CONTROL(CommandButton, Command8, u"E&dit Synonym for this Keyword");
    TWK_CONTROL(CommandButton, Command6); ///< opens the spider
    TWK_CONTROL(CommandButton, cmd_wizard, u"Keyword Wizard");
    TWK_CONTROL(CommandButton, cmd_wizard_sub, u"Subkeyword Wizard");
    TWK_CONTROL(CommandButton, Command5, u"&Next");
    TWK_CONTROL(CommandButton, Command1, u"&Help");
    TWK_CONTROL(Label, lbl_copy, u"Use keywords from another project?");
    TWK_CONTROL(ComboBox, Combo1, u"Pick a project");

    // Moving a subkeyword
    TWK_CONTROL(CommandButton, Command11, u"<<");
    TWK_CONTROL(Frame, Frame1, u"Move Keywords and Subkeywords");
    TWK_CONTROL(Label, Label5, u"xxxxxxxxxxxxxxxxxxxxxxxxxxxx");
    TWK_CONTROLS(OptionButton, 2, Option1, u"Move as a Keyword", u"Move as another's keyword subkeyword.");
    TWK_CONTROL(ListBox, List3);
    TWK_CONTROL(CommandButton, Command15, u"Move this Subkeyword");
    TWK_CONTROL(CommandButton, Command13, u"Cancel");
    TWK_CONTROL(CommandButton, Command14, u"Help");

    // Moving a keyword
    TWK_CONTROL(CommandButton, Command12, u">>");
    TWK_CONTROL(Frame, Frame2, u"Move Keywords and Subkeywords");
    TWK_CONTROL(Label, Label10, u"xxxxxxxxxxxxxxxxxxxxxxxxxxxx");
    TWK_CONTROL(Label, lbl_pick, u"Pick a keyword from this list.");
    TWK_CONTROL(ListBox, List4);
    TWK_CONTROL(CommandButton, Command16, u"Move this Keyword");
    TWK_CONTROL(CommandButton, Command18, u"Cancel");
    TWK_CONTROL(CommandButton, Command17, u"Help");

    // Import and export
    TWK_CONTROL(CommandButton, cmd_import, u"&Import keyword list");
    TWK_CONTROL(CommandButton, Command4, u"&Export keyword list");
    TWK_CONTROL(Frame, Frame3, u"Import Keywords");
    TWK_CONTROL(DriveListBox, Drive2);
    TWK_CONTROL(DirListBox, Dir2);
    TWK_CONTROL(FileListBox, File2, u"*.exp");
    TWK_CONTROLS(OptionButton, 2, op_imp, u"Exported file", u"General");
    TWK_CONTROL(Label, lbl_separator, u"Separation Method:");
    TWK_CONTROL(ComboBox, Cmb_separator, u"Enter");
    TWK_CONTROL(CommandButton, Command20, u"&Import");
    TWK_CONTROL(CommandButton, Command19, u"&Cancel");
    TWK_CONTROL(Frame, Frame4, u"Import Keywords");
    TWK_CONTROL(Label, lbl_wait, u"Please Wait.......");
    TWK_CONTROL(CommonDialog, CommonDialog1);

    void enumerate(ScreenMap& map);
    void Form_Load();

    void Text1_Click(); ///< entering the box ends the selection of List1
    void Text2_Change() {}
    void List1_Click();
    void List2_Click();
    void Command2_Click();
    void Command21_Click();
    void Command7_Click();
    void Command3_Click();
    void Command22_Click();
    void Command10_Click();
    void Command8_Click();
    void Command6_Click();
    void cmd_wizard_Click();
    void cmd_wizard_sub_Click();
    void Command5_Click();
    void Command1_Click();

    void Command11_Click();
    void Command12_Click();
    void Option1_Click(int index);
    void Command13_Click();
    void Command14_Click();
    void Command15_Click();
    void Command16_Click();
    void Command17_Click();
    void Command18_Click();
    void Combo1_Click();

    void cmd_import_Click();
    void Command4_Click();
    void Drive2_Change();
    void Dir2_Change();
    void op_imp_Click(int index);
    void Command19_Click();
    void Command20_Click();

    /// Adds a keyword as if typed.
    void agregar_keyword(TextView word);
    /// Adds each line of a text as a keyword, or as a subkeyword, as if typed. Those that are refused are
    /// told in one message.
    void add_keywords(const Text& lines);
    void add_subkeywords(const Text& lines);
    /// Chooses a file to import in the panel for it.
    static constexpr TextView taken_files = u".exp .txt";
    void take_file(const Text& path);
    /// Lists a keyword that another screen has stored.
    void list_keyword(const Text& word);

    UndoStack deletions;
    /// Brings back what the last Delete took, and reads the lists anew.
    void undo_delete();

    std::int16_t pid_form = 0; ///< key of the project as read at load
    std::int16_t keyid = 0;    ///< key of the keyword selected last
    int status = 1;            ///< 1 at the start of a check, 2 once a check has refused
    std::int16_t silent = 0;   ///< 1 while importing: some refusals of keywords are not shown

  private:
    void enumerate_moves(ScreenMap& map);
    void enumerate_lists(ScreenMap& map);
    void open_store();
    void show_counts();
    /// Shows the message unless the silent switch is on.
    void warn(TextView message) const;
    /// Rows of the project's keyword of that name.
    Recordset keyword_rows(const Text& word);
    /// Key of the project's keyword of that name, 0 when there is none.
    std::int16_t find_keyid(const Text& word);
    bool too_many_words();
    bool delete_keyword(const Text& word, UndoStack::Command& command);
    void delete_subkeyword(const Text& word, std::int16_t catid, UndoStack::Command& command);
    bool restore_keyword(const Text& word, const std::vector<StoredRow>& rows);
    bool restore_subkeyword(const Text& word, std::int16_t catid, const std::vector<StoredRow>& rows);
    /// Tells the message; false, for a deletion that cannot be taken back now.
    static bool in_the_way(TextView message);
    void list_keywords();
    void list_subkeywords();
    void unlist_keyword(int index);
    Recordset element_rows(std::int16_t catid, const Text& word);
    bool has_element(std::int16_t catid, const Text& word);
    /// Stores a keyword of the project and lists it.
    void insert_keyword(const Text& word);
    void insert_element(std::int16_t catid, const Text& word);
    /// Gives the ties that went.
    std::vector<StoredRow> delete_ties_and_row(std::int16_t key, const Text& word);
    static void clear_selection(ListBox& list);

    void add_lines(const Text& lines, TextBox& box, void (Form3::*add)(), TextView what);
    void llenar_proyectos();
    /// What a frame has been opened for.
    struct Move {
        Text word;
        std::int16_t key = 0; ///< of the keyword, or of the subkeyword's keyword
    };
    void open_move(ListBox& from, ListBox& to, Label& label, TextView what, Frame& frame, Move& move);
    void move_as_keyword(const Move& moved);
    void move_as_subkeyword(const Move& moved);
    bool repeated_at(std::int16_t catid, TextView word);
    bool move_subkeywords(std::int16_t from, std::int16_t destination);
    void delete_moved_subkeyword(const Move& moved);
    Move keyword_to_move_, subkeyword_to_move_;

    void export_list();
    void export_keyword(TextStream& out, int number, const Text& word);
    void import_chosen();
    void let_events_run();
    void import_general(const Text& path, const Text& separator);
    void import_exported(const Text& path);
    void import_line(const Text& line, std::int16_t& current);

    Database base_datos_;
};

} // namespace twk
