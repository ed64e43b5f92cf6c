// SPDX-License-Identifier: MIT
#include "assist/frm_version.h"

#include "assist/help.h"

namespace twk {

void frmVersion::enumerate(ScreenMap& map) {
    map.control("Picture1", Picture1);
    map.control("Picture2", Picture2);
    map.control("Label10", Label10);
    map.control("Label2", Label2);
    map.control("Label5", Label5);
    map.control("Label4", Label4);
    map.control("Command1", Command1);
    map.event("Command1", "Click", [this] { Command1_Click(); });
    map.event("Label4", "Click", [this] { Label4_Click(); });
}

void frmVersion::Command1_Click() {
    screens().unload<frmVersion>();
}
void frmVersion::Label4_Click() {
    open_maker_site();
}

} // namespace twk
