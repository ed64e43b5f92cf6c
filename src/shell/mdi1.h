#pragma once

#include "platform/screens.h"

#include <vector>

namespace twk {

/// An entry of the main menu. A top entry has no parent; "-" is a separator.
struct MenuEntry {
    const char* name;
    const char* parent;
    TextView caption;
    TextView shortcut;
};

/// The main window: contains all other screens, and has a menu for its only controls. Every entry with a
/// command has a Click event of its name.
class mdi1 {
  public:
    static constexpr const char* name = "mdi1";
    static constexpr TextView title = u"Tarnwick";

    /// Top to bottom.
    static const std::vector<MenuEntry>& menu();

    void enumerate(ScreenMap& map);
    void Form_Load() {}
    void a2_Click(); ///< projects
    void a3_Click(); ///< synonyms
    void a4_Click(); ///< find and replace
    void b2_Click(); ///< help
    void b3_Click(); ///< tips
    void c1_Click(); ///< about
    void c2_Click(); ///< disclaimer
    void c3_Click(); ///< the maker's site
    void D_Click();  ///< ends the program, whatever is open
};

} // namespace twk
