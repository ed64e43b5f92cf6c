// SPDX-License-Identifier: MIT
#include "inputs/form10.h"

#include "assist/help.h"
#include "platform/desktop.h"
#include "shell/module1.h"
#include "store/stores.h"

namespace twk {

namespace {

constexpr int screen_number = 10;

} // namespace

void Form10::enumerate(ScreenMap& map) {
    map.control("List1", List1);
    map.control("Text2", Text2);
    map.control("Command2", Command2);
    map.control("Text1", Text1);
    map.control("Command3", Command3);
    map.control("Command4", Command4);
    map.control("Command5", Command5);
    map.control("Command1", Command1);
    map.control("lbl_format", lbl_format);
    map.control("lbl_example", lbl_example);
    map.event("Text1", "Change", [this] { show_example(); });
    map.control("Data1", Data1);
    map.control("MSFlexGrid1", MSFlexGrid1);
    map.event("List1", "Click", [this] { List1_Click(); });
    map.event("Command1", "Click", [this] { Command1_Click(); });
    map.event("Command2", "Click", [this] { Command2_Click(); });
    map.event("Command3", "Click", [this] { Command3_Click(); });
    map.event("Command4", "Click", [this] { Command4_Click(); });
    map.event("Command5", "Click", [this] { Command5_Click(); });
}

void Form10::Form_Load() {
    marcar_forma(screen_number, true);
    synonyms_ = open_synonyms();
    refrescar_sinonimos();
}

void Form10::Form_Unload() {
    marcar_forma(screen_number, false);
}

void Form10::refrescar_sinonimos() {
    List1.clear();
    for (const auto row : synonyms_.OpenRecordset({u"select * from synonyms order by keyword"}))
        List1.add_item(row.Fields(u"keyword").text());
    Text1.text = u"";
    Text2.text = u"";
    show_example();
}

void Form10::List1_Click() {
    for (const auto row :
         synonyms_.OpenRecordset({u"select * from synonyms where keyword = '{}'", List1.text()})) {
        const Field synonyms = row.Fields(u"synonyms");
        if (synonyms.is_null()) {
            Text1.text = u"";
            Text2.text = u"";
        } else {
            Text1.text = synonyms.text();
        }
    }
    show_example();
}

void Form10::Command1_Click() {
    screens().unload<Form10>();
}

void Form10::Command2_Click() {
    synonyms_.Execute({u"insert into synonyms ( keyword ) values ( '{}' ) ", Text2.text()});
    MsgBox(u"The keyword was added. Now select it in the listbox, and modify (add) its synonime");
    refrescar_sinonimos();
}

void Form10::Command3_Click() {
    synonyms_.Execute(
        {u"update synonyms set synonyms = '{}' where keyword = '{}' ", Text1.text(), List1.text()});
    refrescar_sinonimos();
}

void Form10::Command4_Click() {
    if (List1.list_index() < 0) return;
    synonyms_.Execute({u"delete from synonyms where keyword = '{}'", List1.text()});
    refrescar_sinonimos();
}

void Form10::Command5_Click() {
    mostrar_ayuda(u"form10");
}

void Form10::show_example() {
    lbl_example.caption = synonym_example(List1.text(), Text1.text());
}

} // namespace twk
