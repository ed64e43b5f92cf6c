// SPDX-License-Identifier: MIT
#include "assist/form4.h"

#include "shell/module1.h"

namespace twk {

void Form4::enumerate(ScreenMap& map) {
    map.controls("Frame1", Frame1);
    map.controls("Text1", Text1);
    map.controls("Label2", Label2);
    map.control("Command7", Command7);
    map.control("Command3", Command3);
    map.control("Command1", Command1);
    map.event("Command1", "Click", [this] { Command1_Click(); });
}

void Form4::Form_Load() {
    marcar_forma(4, true);
}
void Form4::Form_Unload() {
    marcar_forma(4, false);
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
