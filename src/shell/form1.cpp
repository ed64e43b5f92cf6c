// SPDX-License-Identifier: MIT
#include "shell/form1.h"

#include "assist/help.h"
#include "engine/text_toolkit.h"
#include "inputs/form10.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/fence.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "store/statements.h"
#include "store/stores.h"

#include <algorithm>
#include <string>
#include <vector>

namespace twk {

namespace {

/// The project that is to be deleted or copied.
Statement chosen_project(const Text& name) {
    return {u"select * from Projects where name = '{}' ", name};
}

void close_by_name(const std::string& name) {
    if (Screen* const loaded = screens().find(name)) screens().unload(*loaded);
}

} // namespace

void close_project_screens() {
    for (std::size_t number = 2; number <= 18; ++number)
        if (module1().formas_abiertas[number] != 0) close_by_name("Form" + std::to_string(number));
    close_by_name("Form21");
}

Form1::Form1() {
    Dir1.visible = false;
    File1.visible = false;
}

void Form1::enumerate(ScreenMap& map) {
    map.events<&Form1::combo1_Click, &Form1::Command1_Click, &Form1::Command2_Click, &Form1::Command3_Click,
               &Form1::Command4_Click, &Form1::Command5_Click, &Form1::Command6_Click, &Form1::Command7_Click,
               &Form1::Label2_Click>(*this);
}

void Form1::Form_Load() {
    module1().proyecto_actual.clear();
    module1().pid_actual = 0;
    llenar_proyectos();
}

void Form1::llenar_proyectos() {
    base_datos_ = open_hive();
    for (const auto row : base_datos_.OpenRecordset({u"select * from Projects"}))
        combo1.add_item(row.Fields(u"Name").text());
}

void Form1::combo1_Click() {
    Text1.text = combo1.text() + u"_Copy";
}

void Form1::Command1_Click() {
    close_project_screens();
    module1().proyecto_actual.clear();
    module1().pid_actual = 0;
    screens().unload<Form2>();
    screens().show<Form2>();
    screens().unload<Form1>();
}

void Form1::Command2_Click() {
    module1().proyecto_actual.clear();
    screens().unload<Form1>();
}

void Form1::Command3_Click() {
    try {
        open_project();
    } catch (const RuntimeFault&) {
        // Ends without a word, the screens as far as they got.
    }
}

void Form1::open_project() {
    close_project_screens(); // even when nothing is selected
    if (combo1.list_index() < 0) {
        MsgBox(u"Must select a Project from the dropdown list");
        return;
    }
    screens().unload<Form2>();
    for (const auto row : base_datos_.OpenRecordset(statements::project_named(combo1.text()))) {
        module1().pid_actual = CInt(row.Fields(u"pid").number());
        module1().proyecto_actual = row.Fields(u"Name").text();
        // Loads the screen: its button and its slashes go by the key just set.
        Form2& step1 = screen<Form2>();
        step1.txt_name[0].text = row.Fields(u"Name").text();
        step1.Text2[0].text = row.Fields(u"site_name").text();
        step1.txt_dat[0].text = row.Fields(u"Title").text();
        step1.txt_dat[1].text = row.Fields(u"category").text();
        step1.txt_dat[2].text = row.Fields(u"Description").text();
        step1.Text7.text = row.Fields(u"designer_name").text();
        step1.txt_url[0].text = row.Fields(u"site_url").text();
        step1.txt_url[2].text = row.Fields(u"designer_url").text();
    }
    for (const auto row :
         base_datos_.OpenRecordset(statements::rows_of_project(u"target", module1().pid_actual)))
        screen<Form2>().List1.add_item(row.Fields(u"target").text());
    if (module1().pid_actual != 0) say(u"Project " + module1().proyecto_actual + u" opened");
}

void Form1::Command4_Click() {
    module1().proyecto_actual.clear();
    screens().unload<Form2>();
    if (combo1.list_index() < 0) return;
    base_datos_ = open_hive();
    // The title of Step 1's question stands here too.
    const Text& chosen = combo1.text();
    if (ask_before_loss(u"Are you sure you want to delete this project?\rAll data will be Lost.",
                        Buttons::ok_cancel, u"Replace project?",
                        u"Lost: the properties, keywords, content boxes and hosts of " + chosen +
                            u"\nand all files in " + joined_path(beside_program(u"Projects"), chosen)) !=
        Answer::ok)
        return;
    pid_ = 0;
    Text project;
    for (const auto row : base_datos_.OpenRecordset(chosen_project(combo1.text()))) {
        project = row.Fields(u"Name").text();
        pid_ = CInt(row.Fields(u"pid").number());
    }
    if (pid_ != 0) delete_folder(project);
    delete_rows(pid_);
    combo1.clear();
    llenar_proyectos();
    combo1.text = u"Select an existing project";
    if (pid_ != 0) say(u"Project " + project + u" deleted");
}

/// Empties and removes the folders in the project's folder, then that itself. A name that no folder can bear
/// is taken for a folder that is gone. Fault 75 before a file is touched for a link that leads elsewhere, and
/// at a folder that holds another one.
void Form1::delete_folder(const Text& project) {
    const auto tell_gone = [] {
        MsgBox(u"The folder corresponding to this project no longer exist or it has been renamed.");
    };
    if (!is_folder_name(project)) return tell_gone();
    const Fence fence(beside_program(u"Projects"), project);
    if (!dir_exists(fence.folder())) return tell_gone();
    Dir1.set_path(fence.folder());
    File1.set_pattern(u"*"); // names without a point, too
    const std::vector<Text> folders = Dir1.entries();
    for (const Text& folder : folders) fence.within(folder);
    FileSystemObject fso;
    const auto empty = [&](const Text& folder) {
        File1.set_path(folder);
        for (const Text& file : File1.entries()) fso.DeleteFile(fence.entry(joined_path(folder, file)));
    };
    for (const Text& folder : folders) {
        empty(folder);
        RmDir(fence.entry(folder));
    }
    empty(fence.folder());
    RmDir(fence.itself());
}

void Form1::delete_rows(std::int16_t pid) {
    base_datos_.Execute(statements::delete_project(pid));
    for (const auto row : base_datos_.OpenRecordset(statements::keywords_of(pid)))
        base_datos_.Execute(statements::delete_subkeywords_of(CInt(row.Fields(u"keyid").number())));
    static constexpr StatementName tables[] = {u"keywords", u"host",    u"host1",
                                               u"ties",     u"content", u"target"};
    for (const StatementName table : tables)
        base_datos_.Execute(statements::delete_rows_of_project(table, pid));
}

void Form1::Command5_Click() {
    module1().proyecto_actual.clear();
    screens().show<Form10>();
}

bool Form1::copy_allowed(const Text& project) const {
    if (project.empty()) return false;
    if (contains(project, u" ")) {
        MsgBox(u"Project Name can't have spaces");
        return false;
    }
    // In this very case only: a name that differs in case passes, and selects the same rows afterwards.
    if (std::find(combo1.entries().begin(), combo1.entries().end(), project) != combo1.entries().end()) {
        MsgBox(u"2 Projects can't have the same name!\nYou should delete one first.");
        return false;
    }
    return MsgBox(
               u"This might take a while depending on your PC's speed. \nAre you sure you want to proceed?",
               Buttons::yes_no) == Answer::yes;
}

void Form1::Command6_Click() {
    const Text project = Trim(Text1.text());
    if (!copy_allowed(project)) return;
    copy_row(project);
    copy_keywords();
    copy_boxes();
    copy_list(u"host");
    copy_list(u"target");
    // Ties and the main gateway directory are not copied, nor is the folder: Step 1 makes that.
    combo1.clear();
    llenar_proyectos();
    combo1.text = u"Select an existing Project";
    say(u"Project copied as " + project);
}

/// Copies the row of the selected project, the last one of several. Without any, the two keys stay as the
/// last copy left them.
void Form1::copy_row(const Text& project) {
    std::vector<Text> values;
    for (const auto row : base_datos_.OpenRecordset(chosen_project(combo1.text()))) {
        pid_ = CInt(row.Fields(u"pid").number());
        values.clear();
        for (const TextView column : {u"site_name", u"site_url", u"Title", u"category", u"Description",
                                      u"designer_name", u"designer_url"})
            values.push_back(row.Fields(column).text());
    }
    if (values.empty()) return;
    const Text clean_name = preparar_texto(Text(project));
    base_datos_.Execute(
        {u"insert into Projects ( name , site_name , site_url , title , category , description , "
         u"designer_name , designer_url )  values ( '{}' , '{}' , '{}'  , '{}' , '{}' ,  '{}' , "
         u"'{}' , '{}')",
         clean_name, values[0], values[1], values[2], values[3], values[4], values[5], values[6]});
    take_last_key(base_datos_.OpenRecordset(statements::inserted_project(clean_name)), u"pid", copy_pid_);
}

void Form1::copy_keywords() {
    std::int16_t keyid = 0;
    for (const auto row : base_datos_.OpenRecordset(statements::keywords_of(pid_))) {
        const Text keyword = row.Fields(u"keyword").text();
        base_datos_.Execute({u"insert into keywords (pid, keyword) values ( {} , '{}')", copy_pid_, keyword});
        take_last_key(
            base_datos_.OpenRecordset(
                {u"select keyid from keywords where pid = {} and keyword = '{}'", copy_pid_, keyword}),
            u"keyid", keyid);
        for (const auto sub :
             base_datos_.OpenRecordset(statements::subkeywords_of(CInt(row.Fields(u"keyid").number()))))
            base_datos_.Execute({u"insert into elements (catid , element) values ( {} , '{}' )", keyid,
                                 sub.Fields(u"element").text()});
    }
}

void Form1::copy_boxes() {
    Recordset copies = base_datos_.OpenRecordset({u"select * from content"});
    for (const auto row : base_datos_.OpenRecordset(statements::boxes_of(pid_))) {
        copies.AddNew(); // no statement: quotes in the text do no harm
        copies.set(u"pid", copy_pid_);
        copies.set(u"content", row.Fields(u"content").text());
        copies.Update();
    }
}

/// Copies the rows of `host` or `target`, whose text column bears the table's name.
void Form1::copy_list(StatementName table) {
    for (const auto row : base_datos_.OpenRecordset(statements::rows_of_project(table, pid_)))
        base_datos_.Execute({u"insert into {} (pid, {}) values ( {} , '{}')", table, table, copy_pid_,
                             row.Fields(table.text()).text()});
}

void Form1::Command7_Click() {
    mostrar_ayuda(u"form1");
}

void Form1::Label2_Click() {
    module1().proyecto_actual.clear();
    open_maker_site();
}

} // namespace twk
