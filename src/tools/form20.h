// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

#include <cstdint>
#include <vector>

namespace twk {

/// The spider: takes the links of a results page, downloads each, and lists the words of their keyword tags.
class Form20 {
  public:
    static constexpr const char* name = "Form20";
    static constexpr TextView title = u"Spider";
    static constexpr int http_protocol = 4; ///< of `Inet1`

    Form20();

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(WebBrowser, wb1); ///< the results page
    TWK_CONTROL(TextBox, Text2);  ///< address
    TWK_CONTROL(CommandButton, Command8, u"Go!");
    TWK_CONTROL(CommandButton, Command6, u"Back");
    TWK_CONTROL(CommandButton, Command3, u"Forward");
    TWK_CONTROL(CommandButton, Command4, u"Home");
    TWK_CONTROL(CommandButton, Command7,
                u"Spider"); ///< reads "Cancell" while a pass runs, and that is all that tells so
    TWK_CONTROL(CommandButton, Command11, u"Configure Spider");
    TWK_CONTROL(CommandButton, Command5, u"Close");

    TWK_CONTROL(Frame, Frame1, u"Spider Instructions");
    TWK_CONTROL(
        Label, Label2,
        u"Load any Search Engine and click \"Spider\". TWK will extract the contents of the keyword metatags "
        u"in the results page.");
    TWK_CONTROL(CommandButton, Command1, u"Help");

    TWK_CONTROL(Frame, Frame2, u"Spider Process");
    TWK_CONTROL(TextBox, Text1); ///< the log, newest entry first
    TWK_CONTROL(ProgressBar, ProgressBar2);
    TWK_CONTROL(CommandButton, Command14, u"View Log");
    TWK_CONTROL(CommandButton, Command15, u"Reset");

    TWK_CONTROL(Frame, Frame3, u"Spider Results");
    TWK_CONTROL(ListBox, List1);
    TWK_CONTROL(CommandButton, Command13, u"Send to project");
    TWK_CONTROL(CommandButton, Command12, u"Reset");

    TWK_CONTROL(Frame, Frame4, u"Spider Options");
    TWK_CONTROL(Label, Label3, u"Max. # of pages to spider:");
    TWK_CONTROL(ComboBox, combo1);
    TWK_CONTROL(Label, Label5, u"Exclude URLs with these words:");
    TWK_CONTROL(CheckBox, Check1, u"", true);
    TWK_CONTROL(ListBox, List2);
    TWK_CONTROL(TextBox, Text3);
    TWK_CONTROL(CommandButton, Command9, u"Add");
    TWK_CONTROL(CommandButton, Command10, u"Delete");
    TWK_CONTROL(Label, Label6, u"Don't spider related URLs");
    TWK_CONTROL(CheckBox, Check2, u"", true);
    TWK_CONTROL(
        Label, lbl_related,
        u"A results page may show several URLs for one site: its plain address and a \"related:\" address "
        u"among them.");
    TWK_CONTROL(Label, Label7, u"Request TimeOut (seconds):");
    TWK_CONTROL(TextBox, Text4, u"60");
    TWK_CONTROL(CommandButton, Command2, u"Go back");

    TWK_CONTROL(Frame, Frame5, u"Wait");
    TWK_CONTROL(Label, Label1, u"Please wait...");
    TWK_CONTROL(Label, Label8, u"The TWK Keyword Thief is working. "); ///< a click hides the frame
    TWK_CONTROL(Inet, Inet1);

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Form_Unload();
    void Command1_Click() {}
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Command7_Click();
    void Command8_Click();
    void Command9_Click() {}
    void Command10_Click() {}
    void Command11_Click();
    void Command12_Click();
    void Command13_Click();
    void Command14_Click();
    void Command15_Click();
    void Label8_Click();

    /// One harvested word.
    struct Word {
        Text word;
        std::int16_t times = 0; ///< how often it was met
        Text key;               ///< the word trimmed and in lower case, for comparing
    };

    /// Links of the results page that are to be fetched.
    std::vector<Text> enlaces;
    std::vector<Word> palabras;
    std::int16_t max_filas = 1000;
    std::int16_t n_palabras = 0;
    int time_outs = 0; ///< time-outs of the pass

  private:
    bool running() const;
    void log(const Text& entry);
    void take_links(int limit);
    bool wanted(const Text& address) const;
    void fetch_links();
    void fetch_page(const Text& address);
    void harvest(Text page, const Text& address);
    void count_word(TextView piece);
    void list_words();
};

} // namespace twk
