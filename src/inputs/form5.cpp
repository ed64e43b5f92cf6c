// SPDX-License-Identifier: MIT
#include "inputs/form5.h"

#include "assist/help.h"
#include "engine/text_toolkit.h"
#include "inputs/deletions.h"
#include "inputs/form3.h"
#include "inputs/form7.h"
#include "platform/desktop.h"
#include "platform/fence.h"
#include "platform/numbers.h"
#include "platform/subscript.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "store/statements.h"
#include "store/stores.h"
#include "tools/form11.h"
#include "tools/form21.h"

namespace twk {

namespace {

/// Exactly so many boxes refuse another one by hand; a list that an import has pushed past does not.
constexpr int full_list = 99;
/// Rounds of 2 seconds that a previewed file is kept longer for a browser that has not read it yet.
constexpr int reading_rounds = 15;
constexpr int few_words = 100;
/// The list's font, whatever the machine has for it. The font dialog starts from that name each time; its
/// other values stay as the last one left them.
constexpr TextView list_font = u"sans-serif";

const Text& project_name() {
    return screen<Form2>().txt_name[0].text();
}

void warn_of_few_words(Text text) {
    if (contar_palabras(text) < few_words)
        MsgBox(u"We recomend more than 100 words in the content box"); // the box is stored all the same
}

Text wrapped(TextView tag, const Text& text) {
    return u"<" + Text(tag) + u">" + text + u"</" + Text(tag) + u">";
}

} // namespace

Form5::Form5() {
    lbl_unsaved.visible = false;
    tmr_live.interval = 250;
    List1.note = [this](int box) { return note_of(box); };
    Text2.read_only = true;
    Text3.read_only = true;
    List1.full_text = [this](int box) { return at(caja_texto, box); };
    lstkeyword.full_text = [this](int entry) { return tied_text(lstkeyword.list(entry)); };
}

namespace {

/// The key in front of an entry of the keywords, "12-green tea".
std::int64_t key_of(const Text& entry) {
    return static_cast<std::int64_t>(CDbl(Left(entry, InStr(entry, u"-") - 1)));
}

} // namespace

Text Form5::tied_text(const Text& keyword) {
    const Recordset tie = base_datos_.OpenRecordset(statements::tie_of(pid_form, key_of(keyword)));
    if (tie.eof()) return {};
    const std::int64_t cid = tie.Fields(u"cid").key();
    for (int box = 0; box < List1.list_count(); ++box)
        if (at(caja_cid, box) == cid) return at(caja_texto, box);
    return {};
}

void Form5::Form_Load() {
    tabla_kw.resize(screen<Form3>().List1.list_count() + 1);
    RTAux.clear();
    base_datos_ = open_hive();
    take_last_key(base_datos_.OpenRecordset(statements::project_named(project_name())), u"pid", pid_form);
    const std::int16_t open_project = module1().pid_actual;
    if (open_project != 0) {
        pid_form = open_project;
        for (const auto row : base_datos_.OpenRecordset(statements::keywords_of(pid_form)))
            lstkeyword.add_item(row.Fields(u"keyid").text() + u"-" + Trim(row.Fields(u"keyword").text()));
    }
    Text3.text = Text(critic_at_rest);
    for (const auto row : base_datos_.OpenRecordset(
             {u"select distinct(name) from Projects , keywords where  Projects.pid = keywords.pid and  "
              u"projects.name <> '{}'  order by name asc ",
              project_name()}))
        combo1.add_item(row.Fields(u"Name").text());
    if (open_project != 0) refrescar_cajas();
    fill_table();
}

/// Fault 9 for a keyword with more than 100 subkeywords.
void Form5::fill_table() {
    int row_number = 0;
    for (const auto row : base_datos_.OpenRecordset(statements::keywords_of(pid_form))) {
        if (row_number == tabla_kw.rows()) break;
        tabla_kw.cell(row_number) = row.Fields(u"keyword").text();
        int column = 0;
        for (const auto sub :
             base_datos_.OpenRecordset(statements::subkeywords_of(row.Fields(u"keyid").key())))
            tabla_kw.cell(row_number, ++column) = sub.Fields(u"element").text();
        ++row_number;
    }
}

void Form5::refrescar_cajas() {
    List1.clear();
    words_.fill(-1);
    read_ties();
    int n = 0;
    for (const auto row : base_datos_.OpenRecordset(statements::boxes_of(module1().pid_actual))) {
        const Text text = row.Fields(u"content").text();
        at(caja_texto, n) = text;
        at(caja_cid, n) = row.Fields(u"cid").key();
        List1.add_item(to_text(++n) + u". " + Trim(Left(text, 70)) + u" ... ");
    }
    rt1.text = u"";
}

void Form5::read_ties() {
    tied_to_.clear();
    std::map<std::int64_t, Text> keywords; // by key
    for (const Text& entry : lstkeyword.entries())
        keywords[key_of(entry)] = Mid(entry, InStr(entry, u"-") + 1);
    for (const auto row :
         base_datos_.OpenRecordset({u"select * from ties where pid = {}", module1().pid_actual}))
        if (const auto known = keywords.find(row.Fields(u"keyid").key()); known != keywords.end())
            tied_to_[row.Fields(u"cid").key()].push_back(known->second);
}

void Form5::List1_Click() {
    if (List1.list_index() < 0) return;
    rt1.text = Replace(at(caja_texto, List1.list_index()), vbCrLf, u" ");
    // The box as selected: what the critic changes in the editor counts as unsaved.
    RTAux = rt1.text();
    show_unsaved();
    criticar();
}

// Boxes

void Form5::Command2_Click() {
    if (List1.list_count() == full_list) {
        MsgBox(u"You can only add 100 content boxes");
        return;
    }
    if (trim_view(rt1.text()).empty()) {
        MsgBox(u"You can`t save an empty box");
        return;
    }
    criticar();
    base_datos_ = open_hive();
    warn_of_few_words(rt1.text());
    Recordset row = base_datos_.OpenRecordset({u"content"});
    row.AddNew();
    row.set(u"pid", pid_form);
    write_content(row);
    rt1.text = u"";
    refrescar_cajas();
    DoEvents();
    RTAux = rt1.text();
    show_unsaved();
}

void Form5::Command5_Click() {
    if (trim_view(rt1.text()).empty()) {
        MsgBox(u"Can't Update with an empty box");
        return;
    }
    if (List1.list_index() < 0 &&
        MsgBox(u"Do you want to ADD this content ?", Buttons::yes_no) == Answer::yes) {
        Command2_Click();
        return;
    }
    warn_of_few_words(rt1.text());
    base_datos_ = open_hive();
    // After a No above there is no box to write to: a subscript fault, and nothing is saved.
    Recordset row = base_datos_.OpenRecordset(
        {u"select * from content WHERE cid = {}", at(caja_cid, List1.list_index())});
    row.Edit();
    write_content(row);
    rt1.text = u"";
    refrescar_cajas();
    DoEvents();
    refrescar_cajas();
    RTAux = rt1.text();
    show_unsaved();
}

/// Writes the editor's text to the row that is being added or changed.
void Form5::write_content(Recordset& row) {
    const Text text = preparar_texto(Text(rt1.text()));
    row.AppendChunk(u"content", Replace(text, vbCrLf, u" <br> "));
    row.Update();
    row.Close();
}

void Form5::Command3_Click() {
    UndoStack::Command command(deletions, u"box");
    const int count = List1.list_count();
    for (int i = 0; i < count; ++i)
        if (List1.selected(i)) delete_box(i, command);
    refrescar_cajas();
    RTAux = rt1.text(); // the emptied editor, whether a box has gone or not
    show_unsaved();
}

void Form5::delete_box(int index, UndoStack::Command& command) {
    const std::int64_t cid = at(caja_cid, index);
    std::vector<StoredRow> rows = base_datos_.OpenRecordset(statements::box(cid)).rows_of("content");
    const std::vector<StoredRow> ties =
        base_datos_.OpenRecordset({u"select * from ties where cid = {} and pid  = {}", cid, pid_form})
            .rows_of("ties");
    if (!ties.empty()) base_datos_.Execute({u"delete from ties where cid = {} and pid  = {}", cid, pid_form});
    base_datos_.Execute({u"delete from content where cid = {}", cid});
    RTAux.clear();
    rows.insert(rows.end(), ties.begin(), ties.end());
    command.deleted(List1.list(index), [this, rows] { return restore_box(rows); });
}

/// False when the table of the boxes is full.
bool Form5::restore_box(const std::vector<StoredRow>& rows) {
    if (base_datos_.OpenRecordset(statements::boxes_of(module1().pid_actual)).RecordCount() >= max_boxes) {
        MsgBox(u"You can only add 100 content boxes");
        return false;
    }
    put_back(base_datos_, rows);
    return true;
}

void Form5::undo_delete() {
    deletions.undo();
    refrescar_cajas();
    RTAux = rt1.text();
    show_unsaved();
}

void Form5::Command8_Click() {
    rt1.text = u"";
    RTAux.clear();
    show_unsaved();
}

void Form5::show_unsaved() {
    lbl_unsaved.visible = rt1.text() != RTAux;
    tmr_live.enabled = true;
    List1.renew_notes();
}

void Form5::Command11_Click() {
    if (!RTAux.empty())
        rt1.text = RTAux; // drops unsaved edits, and an earlier wrapping with them
    else
        RTAux = rt1.text();
    CommonDialog1.font_name = Text(list_font);
    CommonDialog1.flags = 263;
    CommonDialog1.show_font(); // a cancelled dialog wraps the box all the same
    const CommonDialog& font = CommonDialog1;
    Text text = u"<font face = \"" + font.font_name + u"\" size = \"" + to_text(font.font_size) + u"\">" +
                rt1.text() + u"</font>";
    if (font.font_italic) text = wrapped(u"i", text);
    if (font.font_bold) text = wrapped(u"b", text);
    if (font.font_strikethru) text = wrapped(u"s", text);
    if (font.font_underline) text = wrapped(u"u", text);
    rt1.text = text;
    Command5_Click();
}

void Form5::cmdshow_Click() {
    if (trim_view(rt1.text()).empty()) return;
    const Text path = preview_file();
    FileSystemObject fso;
    const Fence own(app_path());
    stepping_over([&] {
        const TextStreamPtr out =
            fso.OpenTextFile(own.within(path + u"aux"), OpenMode::writing, true, TextKind::page);
        out->writeline(rt1.text());
        out->Close();
    });
    stepping_over([&] { fso.CopyFile(path + u"aux", own.within(path)); });
    stepping_over([&] { fso.DeleteFile(own.entry(path + u"aux")); });
    stepping_over([&] { desktop().navigate(screen<Form21>().WebBrowser1, path); });
    stepping_over([&] { screen<Form21>().Text1.text = rt1.text(); });
    stepping_over([] { screens().show<Form21>(); });
    stepping_over([] { DoEvents(); });
    const auto read = [] {
        return !screens().is_loaded<Form21>() || !desktop().busy(screen<Form21>().WebBrowser1);
    };
    stepping_over([&] { esperar(2, read); });
    for (int round = 0; round < reading_rounds && !read(); ++round) stepping_over([&] { esperar(2, read); });
    stepping_over([&] { fso.DeleteFile(own.entry(path)); });
}

// Ties

void Form5::cmdtie_Click() {
    if (List1.list_index() < 0 || lstkeyword.list_index() < 0) {
        MsgBox(u"You have to select any content or keyword");
        return;
    }
    const std::int64_t cid = at(caja_cid, List1.list_index());
    const std::int64_t keyid = key_of(lstkeyword.list(lstkeyword.list_index()));
    base_datos_ = open_hive();
    if (!base_datos_.OpenRecordset(statements::tie_of(pid_form, keyid)).eof()) {
        MsgBox(u"This keyword is already tied to another content box.");
        return;
    }
    const std::int16_t pid = module1().pid_actual;
    for (const auto row : base_datos_.OpenRecordset({u"select  *  from ties where pid = {}", pid}))
        if (row.Fields(u"keyid").key() == keyid && row.Fields(u"cid").key() == cid) {
            MsgBox(u"You can't tie them again");
            return;
        }
    base_datos_.Execute(
        {u"insert into ties ( pid , keyid , cid  ) values ( {} , {} , {}  ) ", pid, keyid, cid});
    read_ties();
    List1.renew_notes();
    MsgBox(u"Keyword and Content selected has been tied");
}

// Import

void Form5::Command7_Click() {
    if (MsgBox(u"This action may take a while depending on your PC speed and the amount of content boxes\n"
               u"Are you sure you want to proceed?",
               Buttons::yes_no) == Answer::no)
        return;
    if (combo1.list_index() < 0) return;
    const Text project = combo1.text();
    if (project == Trim(project_name())) {
        MsgBox(u"Can't import from the same Project");
        return;
    }
    if (MsgBox(u"Import Content Boxes from " + project + u" to this project?", Buttons::ok_cancel,
               u"Import Content?") == Answer::cancel) {
        combo1.select(-1);
        combo1.text = u"Pick up a project";
        return;
    }
    stepping_over([&] { import_boxes(project); });
    stepping_over([&] {
        refrescar_cajas();
        RTAux = rt1.text(); // the emptied editor holds no changes of anybody's
    });
    show_unsaved();
}

void Form5::import_boxes(const Text& project) {
    for (const auto row : base_datos_.OpenRecordset(
             {u"select * from content , projects where content.pid = projects.pid and projects.name = '{}'",
              project}))
        // An apostrophe breaks the statement: that box is left out without a word.
        stepping_over([&] {
            Text text = preparar_texto(row.Fields(u"content").text());
            text = Replace(text, vbCrLf, u"<br>");
            base_datos_.Execute(
                {u"insert into content ( pid , content ) values ( {} , '{}' ) ", pid_form, text});
        });
}

// To other screens

void Form5::Command4_Click() {
    screens().show<Form11>();
}

void Form5::Command9_Click() {
    mostrar_ayuda(u"form5");
}

void Form5::Command1_Click() {
    if (rt1.text() != RTAux &&
        MsgBox(u"You didn`t save the changes in the content box, do you want to do it?", Buttons::yes_no) ==
            Answer::yes)
        Command5_Click();
    screens().unload<Form7>();
    if (List1.list_count() < least_boxes) {
        MsgBox(Text(too_few_boxes));
        return;
    }
    screens().show<Form7>();
    screens().bring_forward<Form7>();
}

void Form5::enumerate(ScreenMap& map) {
    map.event("rt1", "Change", [this] { show_unsaved(); });
    map.events<&Form5::tmr_live_Timer, &Form5::List1_Click, &Form5::Command1_Click, &Form5::Command2_Click,
               &Form5::Command3_Click, &Form5::Command4_Click, &Form5::Command5_Click, &Form5::Command6_Click,
               &Form5::Command7_Click, &Form5::Command8_Click, &Form5::Command9_Click,
               &Form5::Command11_Click, &Form5::cmdshow_Click, &Form5::cmdtie_Click>(*this);
}

} // namespace twk
