// SPDX-License-Identifier: MIT
#include "settings/form6.h"

#include "assist/help.h"
#include "engine/generation.h"
#include "engine/run.h"
#include "inputs/form3.h"
#include "inputs/form7.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/fence.h"
#include "platform/numbers.h"
#include "settings/settings_file.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "store/statements.h"
#include "store/stores.h"

namespace twk {

Form6::Form6() {
    Frame1.visible = false;
    Frame3.visible = false;
    Frame4.visible = false;
    Frame7.visible = false;
    Frame8.visible = false; // and nothing shows it
}

Form6::~Form6() = default;

void Form6::Form_Load() {
    module1().paso6_cancelado = u"0";
    carga_inicial = false;
    const Text own = beside_program(choices.project_name() + u".dat");
    tomar_de_dat(*this, FileSystemObject().FileExists(own) ? own : beside_program(u"twk.dat"));
    if (!screens().is_loaded<Form6>()) return; // no settings file: the screen has closed itself
    // Names the default file whichever was read.
    screens().record<Form6>().caption = u"Step 5 of 6 - Gateway Generation - Using twk.dat";
    take_last_key(open_hive().OpenRecordset(statements::project_named(choices.project_name())), u"pid",
                  pid_form);
    // The extension of the file is overridden here: 5.n only counts in a later load.
    Combo10.clear();
    Combo10.add_item(u".htm");
    Combo10.add_item(u".html");
    Combo10.text = u".htm";
    Slider1.value = 1;
    Slider1_Change();
    carga_inicial = true;
    Frame8.visible = false;
}

void Form6::Slider1_Change() {
    struct Level {
        Frame* frame;
        TextView label;
        TextView note;
    };
    const Level levels[] = {
        {&Frame2, u"1. First and Second level Page Settings", u"Customize Keyword density and word count."},
        {&Frame1, u"2. Random Page Settings", u"Amount, links, redirection, synonyms."},
        {&Frame3, u"3. All types: General settings", u"Define elements included in all pages."},
        {&Frame4, u"4. All types: Design", u"Colorize, choose templates, determine page's interface."},
        {&Frame7, u"5 .Configuration Level: Load-Save setting in dat files", u""},
    };
    const int chosen = Slider1.value();
    if (chosen < 1 || chosen > 5) return;
    for (int i = 0; i < 5; ++i) {
        const bool on = i == chosen - 1;
        levels[i].frame->visible = on;
        if (!on) continue;
        lbl_level.caption = Text(levels[i].label);
        lbl_level_note.caption = Text(levels[i].note);
    }
}

namespace {

/// The number of random pages must be even.
void make_even(ComboBox& how_many) {
    try {
        const double pages = Val(how_many.text());
        if (pages / 2 != Round(pages / 2) && pages > 0) how_many.text = to_text(CInt(Int(pages - 1)));
    } catch (const RuntimeFault& fault) {
        throw told_fault(fault.number(), u"\"How many random pages?\" (2.a) is \"" + how_many.text() +
                                             u"\"; a whole number from 0 to 32766 would do.");
    }
}

/// A name that leads elsewhere gets no settings file; the run will stop at its folder.
void save_own_settings(Form6& form) {
    try {
        const Fence named(beside_program(u"Projects"), form.choices.project_name());
    } catch (const RuntimeFault&) {
        MsgBox(u"File wasn't saved.");
        return;
    }
    guardar_dat(form, beside_program(form.choices.project_name() + u".dat"));
}

/// One run at a time: a second one would erase the pages under the first.
/// Meanwhile the user does not close the screens that it works on.
class UnderWay {
  public:
    UnderWay() {
        module1().run_under_way = true;
        held_.add<Form2>();
        held_.add<Form3>();
        held_.add<Form6>();
        held_.add<Form7>();
    }
    ~UnderWay() { module1().run_under_way = false; }
    UnderWay(const UnderWay&) = delete;
    UnderWay& operator=(const UnderWay&) = delete;

  private:
    Screens::Hold held_{screens()};
};

} // namespace

void Form6::Command1_Click() {
    if (module1().run_under_way) return;
    const UnderWay under_way;
    run = std::make_unique<Run>(choices, report);
    save_own_settings(*this);
    make_even(Combo2);
    try {
        generation_run(*run);
    } catch (...) {
        report.end(false);
        throw;
    }
    report.end(run->finished);
}

void Form6::Command2_Click(int index) {
    CommonDialog1.dialog_title = u"Select Color";
    try {
        if (!CommonDialog1.show_color()) return;
    } catch (const RuntimeFault& fault) {
        // An earlier load has left Cancel a fault; here it chooses nothing.
        if (fault.number() == fault_dialog_cancelled) return;
        throw;
    }
    // A decimal number, and so the pages use it.
    (index != 0 ? Text1 : Text4).text = to_text(static_cast<std::int64_t>(CommonDialog1.color));
}

void Form6::Command3_Click() {
    CommonDialog1.cancel_error = true; // stays on: see Command4
    CommonDialog1.flags = 1;
    CommonDialog1.init_dir = app_path();
    CommonDialog1.filter = u"*.dat";
    CommonDialog1.dialog_title = u"Open a .dat file to import setting";
    CommonDialog1.file_name = u"*.dat";
    try {
        CommonDialog1.show_open();
    } catch (const RuntimeFault& fault) {
        if (fault.number() == fault_dialog_cancelled) return;
        throw;
    }
    tomar_de_dat(*this, CommonDialog1.file_name);
}

void Form6::take_file(const Text& path) {
    tomar_de_dat(*this, path);
    say(u"Settings loaded from " + path);
}

void Form6::Command4_Click() {
    CommonDialog1.flags = 1;
    CommonDialog1.init_dir = app_path();
    CommonDialog1.filter = u"Configuration Files (*.dat)|*.dat";
    CommonDialog1.dialog_title = u"Save settings to .dat";
    CommonDialog1.file_name = choices.project_name();
    CommonDialog1.default_ext = u".dat";
    if (!CommonDialog1.show_save()) return;
    // Once a load has turned the property on, nothing is saved any more.
    if (!CommonDialog1.cancel_error) guardar_dat(*this, CommonDialog1.file_name);
}

void Form6::Command5_Click() {
    if (checkBulgaro.value() && trim_view(plantilla_sitemap).empty()) {
        MsgBox(u"If you want to use a sitemap as template you must pick one.");
        return;
    }
    Frame8.visible = false;
}

void Form6::Command7_Click() {
    mostrar_ayuda(u"form6");
}

void Form6::Option1_Click() {
    Option2.value = false;
    Option1.value = true;
    Command2_110.enabled = true;
}

void Form6::Option2_Click() {
    Option1.value = false;
    Option2.value = true;
    Command2_110.enabled = false;
}

void Form6::Template_Click(int index) {
    choose_option(Template, static_cast<std::size_t>(index));
}

void Form6::Drive2_Change() {
    Dir2.set_path(Drive2.drive());
    Dir2_Change();
}

void Form6::Dir2_Change() {
    File2.set_path(Dir2.list(Dir2.list_index()));
    File2.refresh();
}

void Form6::File2_Click() {
    if (File2.list_index() < 0) return;
    const Text& file = File2.list(File2.list_index());
    Label52.caption = u"SiteMap to use: " + Trim(file);
    plantilla_sitemap = joined_path(Dir2.list(Dir2.list_index()), file);
}

void Form6::cancelar() {
    desktop().quit();
}

void Form6::enumerate(ScreenMap& map) {
    enumerate_events(map);
}

void Form6::enumerate_events(ScreenMap& map) {
    map.events<&Form6::Slider1_Change, &Form6::Command1_Click, &Form6::Command3_Click, &Form6::Command4_Click,
               &Form6::Command5_Click, &Form6::Command7_Click, &Form6::Option1_Click, &Form6::Option2_Click,
               &Form6::Drive2_Change, &Form6::Dir2_Change, &Form6::File2_Click, &Form6::Command2_Click,
               &Form6::Template_Click>(*this);
}

} // namespace twk
