// SPDX-License-Identifier: MIT
#include "shell/mdi1.h"

#include "assist/disclaimer.h"
#include "assist/frm_tip.h"
#include "assist/frm_version.h"
#include "assist/help.h"
#include "inputs/form10.h"
#include "platform/desktop.h"
#include "shell/form1.h"
#include "tools/form23.h"

namespace twk {

const std::vector<MenuEntry>& mdi1::menu() {
    static const std::vector<MenuEntry> entries = {
        {"a", u"&Main Menu", u"", ""},
        {"a2", u"Projects", u"Ctrl+N", "a", true},
        {"kjg", u"-", u"", "a"},
        {"a3", u"Synonyms", u"Ctrl+S", "a", true},
        {"a4", u"Find and Replace", u"", "a", true}, // nothing else opens that screen
        {"b", u"&Help", u"", ""},
        {"b2", u"Help", u"Ctrl+H", "b", true},
        {"b3", u"Tips", u"Ctrl+I", "b", true},
        {"c", u"&About", u"", ""},
        {"c1", u"About", u"", "c", true},
        {"c2", u"Disclaimer", u"Ctrl+D", "c", true},
        {"c9", u"-", u"", "c"}, // two separators in a row are meant
        {"c5", u"-", u"", "c"},
        {"c3", u"TWK WebSite", u"Ctrl+W", "c", true},
        {"win", u"&Windows", u"", ""},
        {"D", u"&Quit", u"", "", true},
    };
    return entries;
}

void mdi1::enumerate(ScreenMap& map) {
    map.events<&mdi1::a2_Click, &mdi1::a3_Click, &mdi1::a4_Click, &mdi1::b2_Click, &mdi1::b3_Click,
               &mdi1::c1_Click, &mdi1::c2_Click, &mdi1::c3_Click, &mdi1::D_Click>(*this);
}

void mdi1::a2_Click() {
    screens().bring_forward<Form1>();
}
void mdi1::a3_Click() {
    screens().bring_forward<Form10>();
}
void mdi1::a4_Click() {
    screens().bring_forward<Form23>();
}
void mdi1::b2_Click() {
    mostrar_ayuda(u"");
}
void mdi1::b3_Click() {
    screens().bring_forward<frmTip>();
}
void mdi1::c1_Click() {
    screens().bring_forward<frmVersion>();
}
void mdi1::c2_Click() {
    screens().show<disclaimer>();
}
void mdi1::c3_Click() {
    open_maker_site();
}
void mdi1::D_Click() {
    desktop().quit();
}

} // namespace twk
