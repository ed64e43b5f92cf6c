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
    static const std::vector<MenuEntry> entries{
        {"a", "", u"&Main Menu", u""},
        {"a2", "a", u"Projects", u"Ctrl+N"},
        {"kjg", "a", u"-", u""},
        {"a3", "a", u"Synonyms", u"Ctrl+S"},
        {"a4", "a", u"Find && Replace in Files", u""},
        {"b", "", u"&Help", u""},
        {"b2", "b", u"Help", u"Ctrl+H"},
        {"b3", "b", u"Tips", u"Ctrl+I"},
        {"c", "", u"&About", u""},
        {"c1", "c", u"About", u""},
        {"c2", "c", u"Disclaimer", u"Ctrl+D"},
        {"c9", "c", u"-", u""},
        {"c5", "c", u"-", u""},
        {"c3", "c", u"TWK WebSite", u"Ctrl+W"},
        {"win", "", u"&Windows", u""}, // the front end lists the open screens in it
        {"D", "", u"&Quit", u""},
    };
    return entries;
}

void mdi1::enumerate(ScreenMap& map) {
    map.event("a2", "Click", [this] { a2_Click(); });
    map.event("a3", "Click", [this] { a3_Click(); });
    map.event("a4", "Click", [this] { a4_Click(); });
    map.event("b2", "Click", [this] { b2_Click(); });
    map.event("b3", "Click", [this] { b3_Click(); });
    map.event("c1", "Click", [this] { c1_Click(); });
    map.event("c2", "Click", [this] { c2_Click(); });
    map.event("c3", "Click", [this] { c3_Click(); });
    map.event("D", "Click", [this] { D_Click(); });
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
