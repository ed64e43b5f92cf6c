// SPDX-License-Identifier: MIT
#pragma once

#include "inputs/synonym_example.h"
#include "platform/screens.h"
#include "store/database.h"

namespace twk {

/// The whole synonym dictionary, one for all projects.
class Form10 {
  public:
    static constexpr const char* name = "Form10";
    static constexpr TextView title = u"Synonym Dictionary";

    Form10() {
        Data1.visible = false;
        MSFlexGrid1.visible = false;
    }

    ListBox List1; ///< the words, in their order
    TextBox Text2; ///< word to add
    CommandButton Command2{u"Add Word"};
    TextBox Text1; ///< synonym text of the selected word
    CommandButton Command3{u"Modify Synonym"};
    CommandButton Command4{u"Delete Word"};
    CommandButton Command5{u"Help"};
    CommandButton Command1{u"Exit"};
    Label Data1;      ///< laid out, used by nothing
    Grid MSFlexGrid1; ///< likewise

    Label lbl_format{Text(synonym_format)};
    Label lbl_example{synonym_example({}, {})}; ///< of the entry as typed

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    /// Refills the list and empties both boxes.
    void refrescar_sinonimos();
    void List1_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();

    void show_example();

  private:
    Database synonyms_;
};

} // namespace twk
