#pragma once

#include "platform/screens.h"
#include "store/database.h"

#include <array>

namespace twk {

/// Step 2: the project's keywords and, for the selected one, its subkeywords. Writes to the store at once and
/// keeps its lists in step by hand.
class Form3 {
  public:
    static constexpr const char* name = "Form3";
    static constexpr TextView title = u"Step 2 of 6 - Keywords";

    Form3() {
        List1.multi_select = true;
        List2.multi_select = true;
    }

    TextBox Text1; ///< keyword entry
    ListBox List1; ///< the keywords, in store order, then in order of adding
    CommandButton Command2{u"&Add Keyword"};
    CommandButton Command21{u"Edit Keyword"};
    CommandButton Command7{u"Delete &Keyword"};
    TextBox Text2; ///< subkeyword entry
    ListBox List2; ///< subkeywords of the selected keyword
    CommandButton Command3{u"A&dd SubKeyword"};
    CommandButton Command22{u"Edit SubKeyword"};
    CommandButton Command10{u"Delete &SubKeyword"};
    Label keyw, skeyw; ///< counts of the two lists
    CommandButton Command8{u"E&dit Synonym for this Keyword"};
    CommandButton Command6; ///< opens the spider
    CommandButton Command5{u"&Next"};
    CommandButton Command1{u"&Help"};
    ComboBox Combo1{u"Pick a project"};

    // Moving a subkeyword
    CommandButton Command11{u"<<"};
    Frame Frame1{u"Move Keywords and Subkeywords"};
    Label Label5{u"xxxxxxxxxxxxxxxxxxxxxxxxxxxx"};
    std::array<OptionButton, 2> Option1{OptionButton{u"Move as a Keyword"},
                                        OptionButton{u"Move as another's keyword subkeyword."}};
    ListBox List3;
    CommandButton Command15{u"Move this Subkeyword"};
    CommandButton Command13{u"Cancel"};
    CommandButton Command14{u"Help"};

    // Moving a keyword
    CommandButton Command12{u">>"};
    Frame Frame2{u"Move Keywords and Subkeywords"};
    Label Label10{u"xxxxxxxxxxxxxxxxxxxxxxxxxxxx"};
    ListBox List4;
    CommandButton Command16{u"Move this Keyword"};
    CommandButton Command18{u"Cancel"};
    CommandButton Command17{u"Help"};

    // Import and export
    CommandButton cmd_import{u"&Import keyword list"};
    CommandButton Command4{u"&Export keyword list"};
    Frame Frame3{u"Import Keywords"};
    DriveListBox Drive2;
    DirListBox Dir2;
    FileListBox File2{u"*.exp"};
    std::array<OptionButton, 2> op_imp{OptionButton{u"Exported file", true}, OptionButton{u"General"}};
    ComboBox Cmb_separator{u"Enter"};
    CommandButton Command20{u"&Import"};
    CommandButton Command19{u"&Cancel"};
    Frame Frame4{u"Import Keywords"}; ///< "Please Wait......."
    CommonDialog CommonDialog1;

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    /// Adds a keyword as if typed.
    void agregar_keyword(TextView palabra);
};

} // namespace twk
