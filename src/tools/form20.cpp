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
    map.control("wb1", wb1);
    map.control("Text2", Text2);
    map.control("Command8", Command8);
    map.control("Command6", Command6);
    map.control("Command3", Command3);
    map.control("Command4", Command4);
    map.control("Command7", Command7);
    map.control("Command11", Command11);
    map.control("Command5", Command5);
    map.control("Frame1", Frame1);
    map.control("Label2", Label2);
    map.control("Command1", Command1);
    map.control("Frame2", Frame2);
    map.control("Text1", Text1);
    map.control("ProgressBar2", ProgressBar2);
    map.control("Command14", Command14);
    map.control("Command15", Command15);
    map.control("Frame3", Frame3);
    map.control("List1", List1);
    map.control("Command13", Command13);
    map.control("Command12", Command12);
    map.control("Frame5", Frame5);
    map.control("Label1", Label1);
    map.control("Label8", Label8);
    map.control("Inet1", Inet1);
    enumerate_options(map);
    map.event("Command1", "Click", [this] { Command1_Click(); });
    map.event("Command2", "Click", [this] { Command2_Click(); });
    map.event("Command3", "Click", [this] { Command3_Click(); });
    map.event("Command4", "Click", [this] { Command4_Click(); });
    map.event("Command5", "Click", [this] { Command5_Click(); });
    map.event("Command6", "Click", [this] { Command6_Click(); });
    map.event("Command7", "Click", [this] { Command7_Click(); });
    map.event("Command8", "Click", [this] { Command8_Click(); });
    map.event("Command9", "Click", [this] { Command9_Click(); });
    map.event("Command10", "Click", [this] { Command10_Click(); });
    map.event("Command11", "Click", [this] { Command11_Click(); });
    map.event("Command12", "Click", [this] { Command12_Click(); });
    map.event("Command13", "Click", [this] { Command13_Click(); });
    map.event("Command14", "Click", [this] { Command14_Click(); });
    map.event("Command15", "Click", [this] { Command15_Click(); });
    map.event("Label8", "Click", [this] { Label8_Click(); });
    map.event("Text2", "Enter", [this] { Command8_Click(); });
}

void Form20::enumerate_options(ScreenMap& map) {
    map.control("Frame4", Frame4);
    map.control("Label3", Label3);
    map.control("combo1", combo1);
    map.control("Label5", Label5);
    map.control("Check1", Check1);
    map.control("List2", List2);
    map.control("Text3", Text3);
    map.control("Command9", Command9);
    map.control("Command10", Command10);
    map.control("Label6", Label6);
    map.control("Check2", Check2);
    map.control("lbl_related", lbl_related);
    map.control("Label7", Label7);
    map.control("Text4", Text4);
    map.control("Command2", Command2);
}

} // namespace twk
