// SPDX-License-Identifier: MIT
#include "tools/form20.h"

#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "platform/addresses.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "shell/module1.h"
#include "store/database.h"
#include "store/statements.h"
#include "store/stores.h"
#include "tools/form16.h"

namespace twk {

namespace {

constexpr double bar_at_rest = 0.001;

} // namespace

Form20::Form20() {
    Text1.read_only = true;
    List1.tick_marks = true;
    Frame4.visible = false;
    Frame5.visible = false;
    for (const TextView pages : {u"10", u"25", u"50", u"75", u"100"}) combo1.add_item(Text(pages));
    combo1.text = u"25";
    for (const TextView word : {u"google", u"aol", u".doc", u".xls", u".pdf"}) List2.add_item(Text(word));
}

void Form20::Form_Load() {
    // Read here only: the box may change later without effect.
    Inet1.request_timeout = static_cast<int>(Int(Val(Text4.text())));
    Inet1.protocol = http_protocol;
    Text1.text = u"";
    Text2.text = Text(addresses::spider_start);
    desktop().navigate(wb1, Text2.text());
    ProgressBar2.set_value(bar_at_rest);
}

void Form20::Form_Unload() {
    Command7.caption = u"Spider"; // a pass under way ends
    desktop().cancel(Inet1);
}

void Form20::Command8_Click() {
    desktop().navigate(wb1, Trim(Text2.text()));
}
void Form20::Command6_Click() {
    desktop().go_back(wb1);
}
void Form20::Command3_Click() {
    desktop().go_forward(wb1);
}
void Form20::Command4_Click() {
    desktop().go_home(wb1);
}
void Form20::Command5_Click() {
    screens().unload<Form20>();
}
void Form20::Command11_Click() {
    Frame4.visible = true;
}
void Form20::Command2_Click() {
    Frame4.visible = false;
}
void Form20::Label8_Click() {
    Frame5.visible = false;
}
void Form20::Command12_Click() {
    List1.clear();
}
void Form20::Command15_Click() {
    ProgressBar2.set_value(bar_at_rest);
    Text1.text = u"";
}

void Form20::Command14_Click() {
    Form16& log = screen<Form16>();
    screens().record<Form16>().caption = u"View Log";
    log.Label1.caption = u"Log for the Spider Process";
    log.Text1.text = Trim(Text1.text());
    screens().show<Form16>();
}

void Form20::Command13_Click() {
    Form3& step2 = screen<Form3>(); // before the first word is stored: it lists what the store has
    Database base_datos = open_hive();
    const std::int16_t pid = module1().pid_actual;
    int sent = 0;
    for (int i = 0; i < List1.list_count(); ++i) {
        const Text word = Trim(List1.list(i));
        if (!List1.selected(i) || Len(word) < 3) continue;
        Text counted = word;
        if (contar_palabras(counted) > 20) continue;
        if (is_reserved(word)) continue;
        if (!base_datos.OpenRecordset(statements::keyword_of(pid, word)).eof()) continue;
        base_datos.Execute(statements::insert_keyword(pid, word));
        step2.list_keyword(word);
        ++sent;
    }
    say(sent_to_step2(sent));
}

void Form20::enumerate(ScreenMap& map) {
    map.event("Text2", "Enter", [this] { Command8_Click(); });
    map.events<
        &Form20::Command1_Click, &Form20::Command2_Click, &Form20::Command3_Click, &Form20::Command4_Click,
        &Form20::Command5_Click, &Form20::Command6_Click, &Form20::Command7_Click, &Form20::Command8_Click,
        &Form20::Command9_Click, &Form20::Command10_Click, &Form20::Command11_Click, &Form20::Command12_Click,
        &Form20::Command13_Click, &Form20::Command14_Click, &Form20::Command15_Click, &Form20::Label8_Click>(
        *this);
}

} // namespace twk
