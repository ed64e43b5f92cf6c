// SPDX-License-Identifier: MIT
#include "inputs/form10.h"

#include "assist/help.h"
#include "platform/desktop.h"
#include "shell/module1.h"
#include "store/stores.h"

namespace twk {

void Form10::enumerate(ScreenMap& map) {
    map.event("Text1", "Change", [this] { show_example(); });
    map.events<&Form10::List1_Click, &Form10::Command1_Click, &Form10::Command2_Click,
               &Form10::Command3_Click, &Form10::Command4_Click, &Form10::Command5_Click>(*this);
}

void Form10::Form_Load() {
    synonyms_ = open_synonyms();
    refrescar_sinonimos();
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
