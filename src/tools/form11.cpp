// SPDX-License-Identifier: MIT
#include "tools/form11.h"

#include "inputs/form5.h"
#include "platform/addresses.h"
#include "platform/desktop.h"
#include "shell/module1.h"

namespace twk {

void Form11::Form_Load() {
    wb1.silent = true;
    desktop().navigate(wb1, screen<Form5>().Text2.text());
}

void Form11::wb1_NavigateComplete() {
    Text1.text = wb1.location_url();
}

void Form11::Command5_Click() {
    if (!trim_view(Text1.text()).empty()) desktop().navigate(wb1, Text1.text());
}

void Form11::Command2_Click() {
    desktop().go_back(wb1);
}

void Form11::Command3_Click() {
    desktop().go_forward(wb1);
}

void Form11::Command4_Click() {
    desktop().navigate(wb1, Text(addresses::maker_site));
}

void Form11::Command1_Click() {
    Text texto = desktop().inner_text(wb1);
    replace_all(texto, vbCr, u"<p>");
    replace_all(texto, vbCrLf, u""); // finds none: of a line end only the line feed is left, and it stays
    Form5& step3 = screen<Form5>();
    step3.rt1.text = texto;
    step3.show_unsaved();
    say(u"Text picked up into the content box of Step 3");
}

void Form11::enumerate(ScreenMap& map) {
    map.event("Text1", "Enter", [this] { Command5_Click(); });
    map.events<&Form11::wb1_NavigateComplete, &Form11::Command1_Click, &Form11::Command2_Click,
               &Form11::Command3_Click, &Form11::Command4_Click, &Form11::Command5_Click>(*this);
}

} // namespace twk
