// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <vector>

namespace twk {

/// A screen beside the wizard, and the button or menu entry that opens it.
struct SideTool {
    const char* screen; ///< "Form20"
    TextView name;      ///< "Spider"
    const char* opener; ///< screen of the button, null when the run alone opens it
    const char* button; ///< "Command6"
    TextView hint;      ///< what opens it, for a person who cannot yet
};

const std::vector<SideTool>& side_tools();

/// Whether it is open, or its button could be pressed now.
bool can_open(const SideTool& tool);
/// Brings it forward; one that is not open is opened by its own button. Nothing happens when that cannot be.
void open_tool(const SideTool& tool);

} // namespace twk
