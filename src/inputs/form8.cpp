// SPDX-License-Identifier: MIT
#include "inputs/form8.h"

#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "store/stores.h"

namespace twk {

void Form8::enumerate(ScreenMap& map) {
    map.event("Text1", "Change", [this] { show_example(); });
    map.events<&Form8::Command1_Click, &Form8::Command2_Click, &Form8::Command3_Click>(*this);
}

void Form8::Form_Load() {
    base_datos_ = open_hive();
    synonyms_ = open_synonyms();
    show_keyword();
}

void Form8::follow_selection() {
    if (keyword_ != screen<Form3>().List1.text()) show_keyword();
}

void Form8::show_keyword() {
    keyword_ = screen<Form3>().List1.text(); // a choice in Step 2 alone does not change what is edited here
    const Text project = screen<Form2>().txt_name[0].text();
    Label1.caption = u"Synonyms for " + keyword_;
    Text1.text = u"";
    for (
        const auto row : base_datos_.OpenRecordset(
            {u"select Projects.pid as X1 , keywords.keyid as X2 , keywords.pid as X3 from Projects , keywords "
             u"where name = '{}' and keyword = '{}' and Projects.name = '{}'",
             project, keyword_, project})) {
        pid_form_ = CInt(row.Fields(u"x1").number());
        keyid_form_ = CInt(row.Fields(u"X2").number());
    }
    for (const auto row :
         synonyms_.OpenRecordset({u"select * from synonyms  where keyword = '{}'", keyword_})) {
        // A word of the dictionary that has no synonyms yet shows none.
        const Field synonyms = row.Fields(u"synonyms");
        Text1.text = synonyms.is_null() ? Text() : synonyms.text();
    }
    show_example();
}

void Form8::Command1_Click() {
    screens().unload<Form8>();
}

void Form8::Command2_Click() {
    if (trim_view(Text1.text()).empty()) return;
    base_datos_ = open_hive();
    // Always a further row, also for a word that has one.
    synonyms_.Execute({u"insert into synonyms  ( keyword , synonyms  ) values ( '{}' , '{}' ) ",
                       Trim(keyword_), preparar_texto(Text(Text1.text()))});
    screens().unload<Form8>();
}

void Form8::Command3_Click() {
    synonyms_.Execute(
        {u"delete from synonyms  where keyword = '{}' and synonyms  = '{}' ", Trim(keyword_), Text1.text()});
    Text1.text = u"";
    show_example();
}

void Form8::show_example() {
    lbl_example.caption = synonym_example(keyword_, Text1.text());
}

} // namespace twk
