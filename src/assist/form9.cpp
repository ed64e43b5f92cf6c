// SPDX-License-Identifier: MIT
#include "assist/form9.h"

#include "platform/desktop.h"
#include "shell/module1.h"

namespace twk {

void Form9::enumerate(ScreenMap& map) {
    map.events<&Form9::Command1_Click>(*this);
}

void Form9::Command1_Click() {
    desktop().navigate(wb1, Text(addresses::maker_site) + u"/help.htm");
}

} // namespace twk
