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
    static constexpr bool marked = true;

    Form10() {
        Data1.visible = false;
        MSFlexGrid1.visible = false;
    }

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(ListBox, List1); ///< the words, in their order
    TWK_CONTROL(TextBox, Text2); ///< word to add
    TWK_CONTROL(CommandButton, Command2, u"Add Word");
    TWK_CONTROL(TextBox, Text1); ///< synonym text of the selected word
    TWK_CONTROL(CommandButton, Command3, u"Modify Synonym");
    TWK_CONTROL(CommandButton, Command4, u"Delete Word");
    TWK_CONTROL(CommandButton, Command5, u"Help");
    TWK_CONTROL(CommandButton, Command1, u"Exit");
    TWK_CONTROL(Label, Data1);      ///< laid out, used by nothing
    TWK_CONTROL(Grid, MSFlexGrid1); ///< likewise

    TWK_CONTROL(Label, lbl_format, Text(synonym_format));
    TWK_CONTROL(Label, lbl_example, synonym_example({}, {})); ///< of the entry as typed

    void enumerate(ScreenMap& map);
    void Form_Load();
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
