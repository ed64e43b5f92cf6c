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

    WebBrowser wb1; ///< the results page
    TextBox Text2;  ///< address
    CommandButton Command8{u"Go!"};
    CommandButton Command6{u"Back"};
    CommandButton Command3{u"Forward"};
    CommandButton Command4{u"Home"};
    CommandButton Command7{u"Spider"}; ///< reads "Cancell" while a pass runs, and that is all that tells so
    CommandButton Command11{u"Configure Spider"};
    CommandButton Command5{u"Close"};

    Frame Frame1{u"Spider Instructions"};
    Label Label2{
        u"Load any Search Engine and click \"Spider\". TWK will extract the contents of the keyword metatags "
        u"in the results page."};
    CommandButton Command1{u"Help"};

    Frame Frame2{u"Spider Process"};
    TextBox Text1; ///< the log, newest entry first
    ProgressBar ProgressBar2;
    CommandButton Command14{u"View Log"};
    CommandButton Command15{u"Reset"};

    Frame Frame3{u"Spider Results"};
    ListBox List1;
    CommandButton Command13{u"Send to project"};
    CommandButton Command12{u"Reset"};

    Frame Frame4{u"Spider Options"};
    Label Label3{u"Max. # of pages to spider:"};
    ComboBox combo1;
    Label Label5{u"Exclude URLs with these words:"};
    CheckBox Check1{u"", true};
    ListBox List2;
    TextBox Text3;
    CommandButton Command9{u"Add"};
    CommandButton Command10{u"Delete"};
    Label Label6{u"Don't spider related URLs"};
    CheckBox Check2{u"", true};
    Label lbl_related{
        u"A results page may show several URLs for one site: its plain address and a \"related:\" address "
        u"among them."};
    Label Label7{u"Request TimeOut (seconds):"};
    TextBox Text4{u"60"};
    CommandButton Command2{u"Go back"};

    Frame Frame5{u"Wait"};
    Label Label1{u"Please wait..."};
    Label Label8{u"The TWK Keyword Thief is working. "}; ///< a click hides the frame
    Inet Inet1;

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
    void enumerate_options(ScreenMap& map);
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
