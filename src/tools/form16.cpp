// SPDX-License-Identifier: MIT
#include "tools/form16.h"

namespace twk {

void Form16::Command1_Click() {
    screens().unload<Form16>();
}

void Form16::enumerate(ScreenMap& map) {
    map.events<&Form16::Command1_Click>(*this);
}

} // namespace twk
