// SPDX-License-Identifier: MIT
#include "tools/form23.h"

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/file_system.h"
#include "platform/numbers.h"
#include "store/stores.h"

#include <utility>

namespace twk {

namespace {

constexpr int grid_rows = 100; ///< the header among them

/// How a file that was all ASCII is written once it holds more; any other stays as it was.
TextKind kind_of(const Text& path) {
    const Text name = LCase(path);
    return name.ends_with(u".htm") || name.ends_with(u".html") ? TextKind::page : TextKind::list;
}

/// Whole-number progress. Fault 11 when `last` is 0.
double progress(int last, int index) {
    if (last == 0) throw RuntimeFault(fault_division);
    return Int(Int(100.0 / last) * index);
}

} // namespace

void Form23::Form_Load() {
    Option1[0].value = true;
    combo1.clear();
    combo1.text = u"Pick a project";
    Dir2.set_path(app_path());
    Text1.text = app_path();
    Text2.text = u"*.htm";
    base_datos_ = open_hive();
    archivos.assign(2, {});
    Text5.read_only = true;
    for (std::size_t i = 0; i < Frame1.size(); ++i) Frame1[i].visible = i == all_files;
    for (const auto row : base_datos_.OpenRecordset({u"select distinct(name) from Projects , keywords where "
                                                     u" Projects.pid = keywords.pid  order by name asc "}))
        combo1.add_item(row.Fields(u"Name").text());
    for (const TextView element : {u"Keywords", u"Content", u"Other Strings..."})
        List1.add_item(Text(element));
}

void Form23::Option1_Click(int index) {
    choose_option(Option1, static_cast<std::size_t>(index));
    Frame1[all_files].visible = index == 0;
    Frame1[placeholders].visible = index == 1;
}

void Form23::Drive2_Change() {
    Dir2.set_path(Drive2.drive());
    Dir2_Change();
}

void Form23::Dir2_Change() {
    Text1.text = Dir2.list(Dir2.list_index());
}

void Form23::Check3_Click() {
    Text4.enabled = !Check3.value();
}

/// The folder of the paths is the one in `Dir2`, the names are those of `Text1`: the same only as long as
/// `Text1` has not been typed over.
void Form23::list_files_to_treat() {
    archivos.assign(1, {});
    dir_escondido.set_path(Trim(Text1.text()));
    if (Check1.value()) return; // nothing is listed: one empty entry stays
    file_escondido.set_path(Trim(Text1.text()));
    file_escondido.set_pattern(Trim(Text2.text()));
    if (file_escondido.list_count() == 0) throw RuntimeFault(fault_subscript);
    archivos.clear();
    for (const Text& file : file_escondido.entries()) archivos.push_back(joined_path(Dir2.path(), file));
}

/// The newest entry stands at the top.
void Form23::log(Text entry) {
    Text5.text.put_in_front(std::move(entry));
}

void Form23::cmdFindAll_Click() {
    try {
        treat_files();
    } catch (const RuntimeFault&) {
        // Files not yet reached stay as they were.
        MsgBox(
            u"An error has occurred (maybe a protected file).\r\nThe proccess did not finished successfully.");
    }
}

void Form23::treat_files() {
    list_files_to_treat();
    Pass pass{archivos, Dir2.path(), Text3.text(), Text4.text(), !Check3.value(), {}};
    Frame1[results].visible = true;
    ProgressBar1.set_value(0.01);
    Text5.text = u"Find started at " + ahora();
    const int last = static_cast<int>(pass.files.size()) - 1;
    for (int i = 0; i <= last; ++i) {
        const Text& path = pass.files[static_cast<std::size_t>(i)];
        const int lines = pass.replacing ? replace_in(pass, path) : treat_file(pass, path);
        ProgressBar1.set_value(progress(last, i)); // a single file is treated, then the division fails
        log(path + (pass.replacing ? u" - Replaced in " : u" - Founded in ") + to_text(lines) +
            u" lines\r\n");
        DoEvents();
        if (!screens().is_loaded(*this)) return; // closed meanwhile
    }
    log(to_text(last) + u" Files processed\r\n\r\n"); // one less than there are
    log(u"Process Finished at " + ahora() + u"\r\n");
    ProgressBar1.set_value(100);
}

/// A link stays one: the file that it leads to is treated, once in a pass. Fault 70 when that is protected,
/// 75 when it does not lie in the folder.
int Form23::replace_in(Pass& pass, const Text& path) {
    const Text target = file_exists(path) ? real_path(path) : path;
    if (const auto done = pass.replaced.find(target); done != pass.replaced.end()) return done->second;
    if (is_protected(target)) throw RuntimeFault(fault_file_permission);
    if (file_exists(target) && !lies_in(target, pass.folder)) throw RuntimeFault(fault_path_access);
    const int lines = treat_file(pass, target);
    pass.replaced.emplace(target, lines);
    return lines;
}

/// Returns the number of lines with the find text. When replacing, only these lines are written: a file loses
/// all others, and one without any ends up empty. A failure at the end leaves the text in the
/// "_temp" file.
int Form23::treat_file(const Pass& pass, const Text& path) {
    FileSystemObject fso;
    const TextStreamPtr in = fso.OpenTextFile(path, OpenMode::reading, true, kind_of(path));
    TextStreamPtr out;
    if (pass.replacing) out = fso.OpenTextFile(path + u"_temp", OpenMode::writing, true, in->kind());
    int lines = 0;
    while (!in->AtEndOfStream()) {
        const Text line = in->readline();
        if (pass.find.empty() || !contains(line, pass.find)) continue;
        ++lines;
        if (pass.replacing) out->writeline(Replace(line, pass.find, pass.replace));
    }
    in->Close();
    if (pass.replacing) {
        out->Close();
        fso.ReplaceFile(path + u"_temp", path);
    }
    return lines;
}

// Placeholders: laid out, and no file is changed

void Form23::cmdTWK_Click() {
    if (combo1.list_index() < 0) {
        MsgBox(u"You must pick a project!");
        return;
    }
    if (List1.list_index() < 0) {
        MsgBox(u"You must select at least 1 element to replace");
        return;
    }
    gridReplace.clear();
    gridReplace.resize(grid_rows - 1, {u"PlaceHolder/Flag             ", u"Replace String                 "});
    for (int row = 1; row < grid_rows; ++row)
        for (int column = 0; column < 2; ++column) gridReplace.set_cell(row, column, to_text(row) + u"a");
    Frame1[grid].visible = true;
}

void Form23::Command1_Click() {
    list_files_to_treat();
    Frame1[results].visible = true;
}

void Form23::Command2_Click() {
    Frame1[results].visible = false;
}
void Form23::Command5_Click() {
    Frame1[grid].visible = false;
}
void Form23::Command3_Click() {
    screens().unload<Form23>();
}

void Form23::enumerate(ScreenMap& map) {
    map.events<&Form23::Drive2_Change, &Form23::Dir2_Change, &Form23::Check3_Click, &Form23::cmdFindAll_Click,
               &Form23::cmdTWK_Click, &Form23::Command1_Click, &Form23::Command2_Click,
               &Form23::Command3_Click, &Form23::Command5_Click, &Form23::Command7_Click,
               &Form23::Option1_Click>(*this);
}

} // namespace twk
