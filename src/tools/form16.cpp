// SPDX-License-Identifier: MIT
#include "tools/form16.h"

namespace twk {

void Form16::Command1_Click() {
    screens().unload<Form16>();
}

void Form16::enumerate(ScreenMap& map) {
    map.control("Label1", Label1);
    map.control("Text1", Text1);
    map.control("Command1", Command1);
    map.event("Command1", "Click", [this] { Command1_Click(); });
}

} // namespace twk
