// SPDX-License-Identifier: MIT
#include "assist/form9.h"

#include "platform/desktop.h"
#include "shell/module1.h"

namespace twk {

void Form9::enumerate(ScreenMap& map) {
    map.control("wb1", wb1);
    map.control("Label1", Label1);
    map.control("Label5", Label5);
    map.control("Label2", Label2);
    map.control("Picture1", Picture1);
    map.control("Command1", Command1);
    map.event("Command1", "Click", [this] { Command1_Click(); });
}

void Form9::Form_Load() {
    marcar_forma(9, true);
}
void Form9::Form_Unload() {
    marcar_forma(9, false);
}

void Form9::Command1_Click() {
    desktop().navigate(wb1, Text(addresses::maker_site) + u"/help.htm");
}

} // namespace twk
