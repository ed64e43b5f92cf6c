// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace twk {

/// Asks a term suggestion service for terms related to the project's keywords. Whoever shows it sets
/// `modo_asistente` and calls `tomar_web`.
class Form19 {
  public:
    static constexpr const char* name = "Form19";
    static constexpr TextView title = u"Keywords Wizard";

    Form19() { List1.tick_marks = true; }

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(WebBrowser, wb1);
    TWK_CONTROL(Label, Label4, u"This list of keywords and subkeywords can be usefull in your project.");
    TWK_CONTROL(ListBox, List1); ///< the suggestions
    TWK_CONTROL(CommandButton, Command5, u"Use keywords");
    TWK_CONTROL(CommandButton, Command1, u"Help");
    TWK_CONTROL(CommandButton, Command4, u"Cancel");
    TWK_CONTROL(Frame, Frame2, u"Help");
    TWK_CONTROL(Label, Label7, u"Keyword Wizard");
    TWK_CONTROL(
        Label, Label6,
        u"This feature provides you a list of suggested keywords and subkeywords for your project according "
        u"to the keywords you have previously added. Just check or uncheck the keywords you want to export "
        u"from this screen into your keywords list by clicking \"Use Keywords\".");
    TWK_CONTROL(CommandButton, Command11, u"Close");

    void enumerate(ScreenMap& map);
    void Form_Load();
    void Command1_Click();
    void Command4_Click();
    void Command5_Click();
    void Command11_Click();

    /// Runs the lookups of the current mode, for the words that are there when it is called.
    void tomar_web();
    /// One lookup in that mode, whatever the present one is by then. A suggestion without "&mkt" behind its
    /// term is fault 5.
    void buscar_termino(const Text& term, int mode);

    std::int16_t modo_asistente = 1; ///< 1 keywords, 2 subkeywords
    /// Mode 2: the words to look up in column 0, behind each the suggestions found.
    std::vector<std::vector<Text>> tabla_asistente;

  private:
    int asked_ = 0; ///< counts the pages that lookups have asked the browser for

    bool is_over() const;
    bool wait_for_browser(const std::function<bool()>& enough);
    void take_suggestion(const Text& address, const Text& term, int mode);
    bool is_known(const Text& suggestion) const;
};

} // namespace twk
