// SPDX-License-Identifier: MIT
#include "engine/form17.h"

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/file_system.h"
#include "platform/module1.h"
#include "platform/subscript.h"

#include <algorithm>

namespace twk {

namespace {

constexpr TextView list_ending = u".fnm";

/// Names and hosts as a list file: a name a line, everything else a comment.
void write_list(const Form17& form, const Text& path) {
    FileSystemObject fso;
    const Text aux = path + u"aux";
    // Proves the name usable. It is never closed: an older list stays whole until the new one takes its
    // place.
    const TextStreamPtr place = fso.OpenTextFile(path, OpenMode::writing, true);
    TextStreamPtr out = fso.OpenTextFile(aux, OpenMode::writing, true);
    out->writeline(u"#");
    out->writeline(u"# Random-Generated Pages List");
    out->writeline(u"# Generated " + ahora());
    out->writeline(u"# Project: " + form.project_name);
    out->writeline(u"#");
    for (int i = 0; i < form.List1.list_count(); ++i) {
        out->writeline(form.List1.list(i));
        out->writeline(u"     # Host: " + form.List2.list(i));
    }
    out->writeline(u"#");
    out->writeline(
        u"# You can use this file to re-generate projects with the same filename, even when you change "
        u"the keywords.");
    out->writeline(u"#");
    out->Close();
    fso.ReplaceFile(aux, path);
}

bool has_entry(const ListBox& list, const Text& entry) {
    return std::find(list.entries().begin(), list.entries().end(), entry) != list.entries().end();
}

/// Names of the file into the list, at most as many as `saved` holds. The count is tested before a line is
/// read: the closing comments of a list of just that length are told as too many.
int read_list(TextStream& in, const Text& path, const std::vector<Text>& saved, ListBox& list) {
    const int highest = size_of(saved) - 1;
    int n = 0;
    while (!in.AtEndOfStream()) {
        if (n > highest) {
            MsgBox(
                u"The file you're trying to load has more files than the number you're trying to generate.\n"
                u"Some files in (" +
                path + u") will be skipped.");
            break;
        }
        const Text name = Trim(in.readline());
        if (name.empty() || name.starts_with(u"#")) continue;
        list.add_item(name);
        ++n;
    }
    return n;
}

void load_list(Form17& form, const std::vector<Text>& saved) {
    CommonDialog& dialog = form.CommonDialog1;
    dialog.cancel_error = true;
    dialog.flags = 1;
    dialog.init_dir = app_path();
    dialog.filter = u"*.fnm";
    dialog.file_name = u"*.fnm";
    dialog.dialog_title = u"Open list";
    dialog.show_open();
    const Text path = with_ending(dialog.file_name, list_ending);
    FileSystemObject fso;
    TextStreamPtr in = fso.OpenTextFile(path, OpenMode::reading, !fso.FileExists(path));
    const int n = read_list(*in, path, saved, form.List1);
    const int highest = size_of(saved) - 1;
    if (n < highest) { // a list that is one name short stays so, and the last old name is never offered
        MsgBox(u"The file you're trying to load has less files than the number you're trying to generate.\n"
               u"New files will be created.");
        for (int i = 0; i < highest && form.List1.list_count() <= highest; ++i)
            if (const Text& old = at(saved, i); !has_entry(form.List1, old)) form.List1.add_item(old);
    }
    in->Close();
}

} // namespace

void Form17::Form_Load() {
    Frame1.visible = false;
    Frame2.visible = false;
    Text1.text = u"";
}

void Form17::Form_Activate() {
    module1().nombre_fnm.clear();
}

void Form17::Form_Unload() {
    module1().paso6_cancelado = u"1"; // even when the run unloads it after a good pass
}

void Form17::List1_Click() {
    Label3.caption = Trim(List2.list(List1.list_index()));
    Text1.text = Trim(List1.text());
}

void Form17::Command2_Click() {
    const Text typed = Trim(Text1.text());
    if (List1.list_index() < 0 || !contains(typed, u".htm")) return; // a blank inside is accepted
    if (has_entry(List1, typed)) {                                   // the selected name itself, too
        MsgBox(u"Name file already exists!");
        return;
    }
    List1.set_list(List1.list_index(), Text1.text());
    MsgBox(u"File Name Changed.");
}

void Form17::Command6_Click() {
    Text2.text = u"";
    Text3.text = u"";
    Frame1.visible = true;
}

void Form17::Command7_Click() {
    Frame1.visible = false;
}

void Form17::Command8_Click() {
    const Text find = Trim(Text2.text());
    const Text with = Trim(Text3.text());
    std::vector<Text> names = List1.entries();
    for (Text& each : names) each = Replace(each, find, with);
    List1.set_entries(std::move(names));
    Frame1.visible = false;
}

void Form17::Command5_Click() {
    Frame2.visible = true;
}

void Form17::Command11_Click() {
    Frame2.visible = false;
}

void Form17::Command4_Click() {
    CommonDialog1.cancel_error = true;
    CommonDialog1.flags = 1;
    CommonDialog1.init_dir = app_path();
    CommonDialog1.filter = u"*.fnm";
    CommonDialog1.dialog_title = u"Save list";
    CommonDialog1.file_name = project_name + Text(list_ending);
    CommonDialog1.default_ext = Text(list_ending);
    module1().nombre_fnm = CommonDialog1.file_name; // kept, even when the dialog is cancelled
    try {
        CommonDialog1.show_save();
        write_list(*this, CommonDialog1.file_name);
    } catch (const RuntimeFault&) { // ends quietly, a cancelled dialog being the usual fault
    }
}

void Form17::Command3_Click() {
    const std::vector<Text> names = List1.entries();
    const std::vector<Text> hosts = List2.entries();
    List1.clear(); // hosts stay by position
    try {
        load_list(*this, names);
    } catch (const RuntimeFault&) {
        List1.clear();
        List2.clear();
        MsgBox(u"An error has occured. File was not loaded.");
        for (const Text& each : names) List1.add_item(each);
        for (const Text& each : hosts) List2.add_item(each);
    }
}

void Form17::Command1_Click() {
    if (module1().nombre_fnm.empty() &&
        MsgBox(u"Do you want to save this filename set?", Buttons::yes_no) == Answer::yes)
        Command4_Click();
    try {
        write_list(*this, beside_program(u"last-generated.txt"));
    } catch (const RuntimeFault&) { // the set of the last run is a convenience: the run goes on without
    }
    screens().hide<Form17>();
}

void Form17::Command9_Click() {
    screens().hide<Form17>();
    module1().paso6_cancelado = u"1";
}

void Form17::enumerate(ScreenMap& map) {
    map.event("Form", "QueryUnload", [this] { Command9_Click(); });
    map.events<&Form17::List1_Click, &Form17::Command1_Click, &Form17::Command2_Click,
               &Form17::Command3_Click, &Form17::Command4_Click, &Form17::Command5_Click,
               &Form17::Command6_Click, &Form17::Command7_Click, &Form17::Command8_Click,
               &Form17::Command9_Click, &Form17::Command11_Click>(*this);
}

} // namespace twk
