// SPDX-License-Identifier: MIT
#include "assist/frm_version.h"

#include "assist/help.h"

namespace twk {

void frmVersion::enumerate(ScreenMap& map) {
    map.events<&frmVersion::Command1_Click, &frmVersion::Label4_Click>(*this);
}

void frmVersion::Command1_Click() {
    screens().unload<frmVersion>();
}
void frmVersion::Label4_Click() {
    open_maker_site();
}

} // namespace twk
