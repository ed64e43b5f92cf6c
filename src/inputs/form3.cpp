// SPDX-License-Identifier: MIT
#include "inputs/form3.h"

#include "assist/help.h"
#include "engine/text_toolkit.h"
#include "inputs/form5.h"
#include "inputs/form8.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "store/statements.h"
#include "store/stores.h"
#include "tools/form19.h"
#include "tools/form20.h"

namespace twk {

namespace {

constexpr int most_words = 20;
/// Place of the entry to edit while none is found. An entry that stands at this very place counts as none.
constexpr int no_index = 100;

} // namespace

Form3::Form3() {
    List1.multi_select = true;
    List2.multi_select = true;
    op_imp[0].value = true;
    Text1.take_lines = [this](const Text& lines) { add_keywords(lines); };
    Text2.take_lines = [this](const Text& lines) { add_subkeywords(lines); };
    Frame2.visible = false;
    Frame4.visible = false;
    Cmb_separator.enabled = false;
    for (const TextView separator : {u";", u",", u".", u"-", u"_", u"*", u"Enter"})
        Cmb_separator.add_item(Text(separator));
    Cmb_separator.text = u"Enter";
}

void Form3::Form_Load() {
    Frame1.visible = false;
    Frame3.visible = false;
    silent = 0;
    open_store();
    take_last_key(base_datos_.OpenRecordset(statements::project_named(screen<Form2>().txt_name[0].text())),
                  u"pid", pid_form);
    llenar_proyectos();
    Dir2.set_path(app_path());
    File2.set_path(app_path());
    if (module1().pid_actual != 0) list_keywords();
    show_counts();
}

void Form3::list_keywords() {
    for (const auto row : base_datos_.OpenRecordset(statements::keywords_of(pid_form)))
        List1.add_item(row.Fields(u"keyword").text());
}

void Form3::open_store() {
    base_datos_ = open_hive();
}

void Form3::show_counts() {
    keyw.caption = to_text(List1.list_count());
    skeyw.caption = to_text(List2.list_count());
}

void Form3::warn(TextView message) const {
    if (silent == 0) MsgBox(Text(message));
}

Recordset Form3::keyword_rows(const Text& word) {
    return base_datos_.OpenRecordset(
        {u"select * from keywords where keyword = '{}' and pid = {}", word, pid_form});
}

std::int16_t Form3::find_keyid(const Text& word) {
    std::int16_t key = 0;
    take_last_key(keyword_rows(word), u"keyid", key);
    return key;
}

bool Form3::too_many_words() {
    Text word = Trim(Text1.text());
    if (contar_palabras(word) <= most_words) return false;
    warn(u"Can't edit a +20 words Keyword Phrase");
    return true;
}

Recordset Form3::element_rows(std::int16_t catid, const Text& word) {
    return base_datos_.OpenRecordset(
        {u"select * from elements where element = '{}' and catid = {}", word, catid});
}

bool Form3::has_element(std::int16_t catid, const Text& word) {
    return !element_rows(catid, word).eof();
}

void Form3::insert_keyword(const Text& word) {
    base_datos_.Execute(statements::insert_keyword(pid_form, word));
    List1.add_item(word);
}

void Form3::insert_element(std::int16_t catid, const Text& word) {
    base_datos_.Execute({u"insert into elements ( catid , element ) values ( {} , '{}' ) ", catid, word});
}

void Form3::clear_selection(ListBox& list) {
    for (int i = 0; i < list.list_count(); ++i)
        if (list.selected(i)) list.set_selected(i, false);
    list.list_index = -1;
}

// Entering, by the keyboard's Enter key too, and selecting

void Form3::Text1_Click() {
    clear_selection(List1);
}

/// Each failing step is stepped over by itself. A keyword that is not found leaves the key 0: nothing may be
/// written to the one selected before.
void Form3::List1_Click() {
    const Text word = List1.text();
    if (word.empty() || List1.list_index() < 0) return;
    keyid = 0;
    stepping_over([&] {
        take_last_key(base_datos_.OpenRecordset({u"select keywords.keyid as X2 , keywords.pid as X3  from "
                                                 u"keywords where keyword = '{}' and pid = {}",
                                                 word, pid_form}),
                      u"X2", keyid);
    });
    Text1.text = word;
    stepping_over([&] { list_subkeywords(); });
    Text2.text = u"";
    show_counts();
}

/// Those of the keyword selected last.
void Form3::list_subkeywords() {
    List2.clear();
    if (keyid == 0) return;
    for (const auto row : base_datos_.OpenRecordset(statements::subkeywords_of(keyid)))
        stepping_over([&] { List2.add_item(Trim(row.Fields(u"element").text())); });
}

void Form3::List2_Click() {
    if (List2.list_index() >= 0 && !List2.text().empty()) Text2.text = List2.text();
    show_counts();
}

// Keywords

void Form3::agregar_keyword(TextView word) {
    Text1.text = Trim(word);
    Command2_Click();
}

void Form3::list_keyword(const Text& word) {
    List1.add_item(word);
    show_counts();
}

void Form3::Command2_Click() {
    if (Len(Text1.text()) < 3) {
        MsgBox(u"Keyword too short"); // shown while importing too
        Text1.set_focus();
        return;
    }
    if (too_many_words()) {
        Text1.set_focus();
        return;
    }
    Text word = Text1.text();
    word = validar_palabra(word);
    Text1.text = word;
    if (word.empty()) {
        Text1.set_focus();
        return;
    }
    status = 1;
    if (!keyword_rows(word).eof()) {
        status = 2;
        warn(u"You can't define 2 equal keywords");
    }
    // One question for all keywords of the project, so that adding stays quick when there are thousands.
    if (status == 1 &&
        !base_datos_
             .OpenRecordset({u"select eid from elements cross join keywords where element = '{}' and "
                             u"keywords.keyid = elements.catid and keywords.pid = {}",
                             word, pid_form})
             .eof()) {
        status = 2;
        warn(u"You can't define a keyword name as a subkeyword");
    }
    if (status == 1) {
        open_store();
        insert_keyword(word);
        Text1.text = u"";
    }
    Text1.set_focus();
    show_counts();
}

void Form3::Command21_Click() {
    if (too_many_words()) return;
    Text word = Text1.text();
    word = validar_palabra(word);
    // A refused word leaves the box empty; nothing else has changed.
    Text1.text = word;
    if (word.empty()) {
        Text1.set_focus();
        return;
    }
    if (List1.sel_count() != 1) {
        MsgBox(u"You have to select 1 keyword");
    } else {
        int index = 0;
        while (!List1.selected(index)) ++index;
        // The store compares without regard to case, so a change of case alone matches itself and is refused.
        if (!keyword_rows(word).eof()) {
            warn(u"You can't define 2 equal keywords");
            return;
        }
        const Text trimmed = Trim(word);
        base_datos_.Execute({u"update keywords set keyword = '{}' where keyword='{}' and pid = {}", trimmed,
                             List1.list(index), pid_form});
        List1.set_list(index, trimmed);
    }
    Text1.set_focus();
    Text1.text = u"";
    show_counts();
}

// Subkeywords

void Form3::Command3_Click() {
    if (Len(Text2.text()) < 3) {
        MsgBox(u"Subkeyword to short");
        Text2.set_focus();
        return;
    }
    if (trim_view(Text2.text()).empty()) return;
    Text word = Text2.text();
    word = validar_palabra(word);
    Text2.text = word;
    if (word.empty()) return;
    open_store();
    if (List1.sel_count() != 1) {
        MsgBox(u"You must select 1 Keyword (in the left panel)");
        return;
    }
    if (List1.list_index() < 0 || keyid == 0) { // key 0: nobody would read it
        MsgBox(u"You must select a Keyword (in the left panel) to adjudicate a SubKeyword");
        return;
    }
    if (List2.list_count() >= most_subkeywords) {
        MsgBox(u"You can't add more than 99 subkeywords per each keyword");
        return;
    }
    status = 1;
    if (has_element(keyid, word)) {
        MsgBox(u"You can't define 2 equals subkeywords");
        // Empties the box, as the only refusal that keeps the word no longer.
        word.clear();
        Text2.text = u"";
        Text2.set_focus();
        status = 2;
    }
    // Compares exactly: another case passes here, unlike in the store's own comparison.
    for (const Text& keyword : List1.entries())
        if (!word.empty() && trim_view(keyword) == trim_view(word)) {
            MsgBox(u"You can't define a subkeyword named as a keyword");
            status = 2;
        }
    if (status != 1) return;
    open_store();
    insert_element(keyid, preparar_texto(Text(word)));
    List2.add_item(word);
    Text2.text = u"";
    show_counts();
}

void Form3::Command22_Click() {
    if (Len(Text2.text()) < 3) {
        MsgBox(u"Subkeyword to short");
    } else if (!trim_view(Text2.text()).empty()) {
        open_store();
        int index = no_index;
        if (List2.sel_count() == 0) {
            MsgBox(u"There is no subkeyword selected or there is no one ");
        } else if (List2.sel_count() > 1) {
            MsgBox(u"You have to select 1 subkeyword");
        } else {
            index = 0;
            while (!List2.selected(index)) ++index;
        }
        const Text word = Trim(Text2.text());
        // The selected entry is among them: an unchanged word counts as equal to itself.
        for (const Text& entry : List2.entries())
            if (trim_view(entry) == word) {
                MsgBox(u"You can't have 2 equal subKeywords");
                return;
            }
        if (index != no_index) {
            base_datos_.Execute({u"update elements set element = '{}' where catid = {} and element = '{}'",
                                 Trim(preparar_texto(Text(Text2.text()))), keyid, Trim(List2.list(index))});
            List2.set_list(index, word);
        }
    }
    Text2.text = u"";
    Text2.set_focus();
    show_counts();
}

// To other screens

void Form3::Command8_Click() {
    if (List1.list_index() < 0) return;
    screen<Form8>().follow_selection();
    screens().show<Form8>();
}

void Form3::Command6_Click() {
    screens().show<Form20>();
}

void Form3::cmd_wizard_Click() {
    screens().show<Form19>();
    Form19& wizard = screen<Form19>();
    wizard.modo_asistente = 1;
    wizard.tomar_web();
}

void Form3::cmd_wizard_sub_Click() {
    screens().show<Form19>();
    Form19& wizard = screen<Form19>();
    wizard.modo_asistente = 2;
    wizard.tabla_asistente.clear();
    for (const Text& subkeyword : List2.entries()) wizard.tabla_asistente.push_back({subkeyword});
    wizard.tomar_web();
}

void Form3::Command5_Click() {
    if (List1.list_count() < least_keywords) {
        MsgBox(Text(too_few_keywords));
        return;
    }
    screens().unload<Form5>();
    screens().show<Form5>();
    screens().bring_forward<Form5>();
}

void Form3::Command1_Click() {
    mostrar_ayuda(u"form3");
}

void Form3::enumerate(ScreenMap& map) {
    map.event("Text1", "Enter", [this] { Command2_Click(); });
    map.event("Text2", "Enter", [this] { Command3_Click(); });
    enumerate_moves(map);
    enumerate_lists(map);
    map.events<&Form3::Text1_Click, &Form3::Text2_Change, &Form3::List1_Click, &Form3::List2_Click,
               &Form3::Command2_Click, &Form3::Command21_Click, &Form3::Command7_Click,
               &Form3::Command3_Click, &Form3::Command22_Click, &Form3::Command10_Click,
               &Form3::Command8_Click, &Form3::Command6_Click, &Form3::cmd_wizard_Click,
               &Form3::cmd_wizard_sub_Click, &Form3::Command5_Click, &Form3::Command1_Click>(*this);
}

} // namespace twk
