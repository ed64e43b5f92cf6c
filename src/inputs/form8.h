// SPDX-License-Identifier: MIT
#pragma once

#include "inputs/synonym_example.h"
#include "platform/screens.h"
#include "store/database.h"

#include <cstdint>

namespace twk {

/// The synonyms of the keyword that is selected in Step 2.
class Form8 {
  public:
    static constexpr const char* name = "Form8";
    static constexpr TextView title = u"Synonym";
    static constexpr bool marked = true;

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Label, Label1, u"Synonyms for "); ///< and the keyword
    TWK_CONTROL(TextBox, Text1);
    TWK_CONTROL(CommandButton, Command2, u"Set as Synonym");
    TWK_CONTROL(CommandButton, Command3, u"Delete");
    TWK_CONTROL(CommandButton, Command1, u"Exit - Go Back");

    TWK_CONTROL(Label, lbl_format, Text(synonym_format));
    TWK_CONTROL(Label, lbl_example, synonym_example({}, {})); ///< of the entry as typed

    void enumerate(ScreenMap& map);
    void Form_Load();
    /// Shows the keyword that is selected in Step 2 now; text typed for that very one stays.
    void follow_selection();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

    void show_example();

  private:
    void show_keyword();

    Database base_datos_;
    Database synonyms_;
    Text keyword_;                ///< as selected when the screen was last asked for
    std::int16_t pid_form_ = 0;   ///< kept, used by nothing
    std::int16_t keyid_form_ = 0; ///< likewise
};

} // namespace twk
