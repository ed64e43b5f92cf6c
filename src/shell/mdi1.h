// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

#include <vector>

namespace twk {

/// One entry of the main window's menu, as a front end shows it.
struct MenuEntry {
    const char* name;
    TextView caption;     ///< "-" for a separator; "&" marks the letter of the shortcut
    TextView shortcut;    ///< "Ctrl+N", empty for none
    const char* parent;   ///< name of the top entry it belongs to, empty for a top entry
    bool command = false; ///< choosing it fires the event (name, "Click")
};

/// The main window: a menu, and the room in which the other screens stand.
class mdi1 {
  public:
    static constexpr const char* name = "mdi1";
    static constexpr TextView title = u"Tarnwick";

    /// The menu, top to bottom. The front end keeps the list of open screens under `win`.
    static const std::vector<MenuEntry>& menu();

    void enumerate(ScreenMap& map);
    void a2_Click(); ///< Projects
    void a3_Click(); ///< Synonyms
    void a4_Click(); ///< Find and Replace
    void b2_Click(); ///< Help
    void b3_Click(); ///< Tips
    void c1_Click(); ///< About
    void c2_Click(); ///< Disclaimer
    void c3_Click(); ///< the maker's site
    void D_Click();  ///< ends the program at once, whatever is open
};

} // namespace twk
