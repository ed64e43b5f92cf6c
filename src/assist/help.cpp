// SPDX-License-Identifier: MIT
#include "assist/help.h"

#include "assist/form9.h"
#include "platform/addresses.h"
#include "platform/desktop.h"

namespace twk {

void mostrar_ayuda(const Text& anchor) {
    Form9& help = screen<Form9>();
    screens().show<Form9>();
    help.wb1.address_bar = true;
    desktop().navigate(help.wb1, beside_program(u"help.htm#") + anchor);
}

void open_maker_site() {
    desktop().start(Text(addresses::maker_site));
}

} // namespace twk
