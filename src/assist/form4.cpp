// SPDX-License-Identifier: MIT
#include "assist/form4.h"

#include "shell/module1.h"

namespace twk {

void Form4::enumerate(ScreenMap& map) {
    map.events<&Form4::Command1_Click>(*this);
}

void Form4::Command1_Click() {
    screens().unload<Form4>();
}

void Form4::invFrames() {
    for (Frame& frame : Frame1) frame.visible = false;
}

int Form4::frameActivo() const {
    for (std::size_t i = 0; i < Frame1.size(); ++i)
        if (Frame1[i].visible()) return static_cast<int>(i);
    return -1;
}

} // namespace twk
