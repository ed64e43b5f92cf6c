// SPDX-License-Identifier: MIT
#include "shell/side_tools.h"

#include "platform/screens.h"

namespace twk {

namespace {

/// The screen that has the button, null when the button cannot be pressed.
Screen* opener_of(const SideTool& tool) {
    Screen* const opener = tool.opener != nullptr ? screens().find(std::string(tool.opener)) : nullptr;
    if (opener == nullptr) return nullptr;
    const ScreenMap::Control* const control = opener->map.find_control(tool.button);
    if (control == nullptr) return opener; // an entry of the menu
    const auto* const button = std::get_if<CommandButton*>(&control->ref);
    return button != nullptr && (*button)->enabled() && (*button)->visible() ? opener : nullptr;
}

} // namespace

const std::vector<SideTool>& side_tools() {
    static const std::vector<SideTool> tools = {
        {"Form10", u"Synonyms", "mdi1", "a3", u""},
        {"Form20", u"Spider", "Form3", "Command6", u"Opens from Step 2"},
        {"Form19", u"Keyword wizard", "Form3", "cmd_wizard", u"Opens from Step 2"},
        {"Form11", u"Pick up text", "Form5", "Command4", u"Opens from Step 3"},
        {"Form23", u"Find and replace", "mdi1", "a4", u""},
        {"Form12", u"Report", nullptr, "", u"Opens when pages are generated"},
    };
    return tools;
}

bool can_open(const SideTool& tool) {
    return screens().find(std::string(tool.screen)) != nullptr || opener_of(tool) != nullptr;
}

void open_tool(const SideTool& tool) {
    if (Screen* const open = screens().find(std::string(tool.screen)))
        screens().bring_forward(*open);
    else if (Screen* const opener = opener_of(tool))
        screens().fire(*opener, tool.button, "Click");
}

} // namespace twk
