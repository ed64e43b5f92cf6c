// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"
#include "store/database.h"

#include <cstdint>

namespace twk {

/// Step 4: the directories that will serve the pages. The run reads `Text2` and `List1` here, not the store.
class Form7 {
  public:
    static constexpr const char* name = "Form7";
    static constexpr TextView title = u"Step 4 of 6 - Hosts and Domains";
    static constexpr bool marked = true;

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Label, lbl_main,
                u"Main gateway directory to host gateway pages (if other than target site).");
    TWK_CONTROL(TextBox, Text2); ///< main gateway directory
    TWK_CONTROL(
        Label, lbl_main_note,
        u"This directory will host the hallway page and the primary and secondary level gateway pages.");
    TWK_CONTROL(
        Label, lbl_separate,
        u"You can host all the generated gateway pages in a separated directory, for easy maintenance. For "
        u"PageRank purposes the root directory is better.");
    TWK_CONTROL(
        Label, lbl_target,
        u"Target Site or Target URL, as defined in Step 2, is the address where gateway pages point to, while "
        u"Gateway Directories are the WWW locations of the Gateway pages. A Gateway directory can be the same as "
        u"a Target Directory, or a different directory, domain or subdomain.");
    TWK_CONTROL(TextBox, Text1, u"http://"); ///< entry of a secondary one
    TWK_CONTROL(ListBox, List1);             ///< the secondary directories
    TWK_CONTROL(CommandButton, Command2, u"Add secondary gateway domain/directory");
    TWK_CONTROL(CommandButton, Command3, u"Delete");
    TWK_CONTROL(
        Label, lbl_folders,
        u"If you define one or more gateway directories TWK will create additional folders to facilitate FTP "
        u"uploading.");
    TWK_CONTROL(CommandButton, Command1, u"Next");
    TWK_CONTROL(CommandButton, Command7, u"Help");

    std::int16_t pid_form = 0;
    int status = 1; ///< 2 once adding has been refused
    Database base_datos;

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command7_Click();
    /// What Next would say to a main directory beside these secondary ones; empty when it would go on.
    static Text directory_refusal(const Text& main, const std::vector<Text>& others);

  private:
    bool main_directory_valid();
    bool entry_valid();
};

} // namespace twk
