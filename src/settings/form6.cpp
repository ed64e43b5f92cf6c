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

namespace {

constexpr int screen_number = 6;

/// Project names come from Step 1's own box, not from the name under which the project was opened.
const Text& project_name() {
    return screen<Form2>().txt_name[0].text();
}

} // namespace

Form6::Form6() {
    Frame1.visible = false;
    Frame3.visible = false;
    Frame4.visible = false;
    Frame7.visible = false;
    Frame8.visible = false; // and nothing shows it
}

Form6::~Form6() = default;

void Form6::Form_Load() {
    marcar_forma(screen_number, true);
    module1().paso6_cancelado = u"0";
    carga_inicial = false;
    const Text own = beside_program(project_name() + u".dat");
    tomar_de_dat(*this, FileSystemObject().FileExists(own) ? own : beside_program(u"twk.dat"));
    if (!screens().is_loaded<Form6>()) return; // no settings file: the screen has closed itself
    // Names the default file whichever was read.
    screens().record<Form6>().caption = u"Step 5 of 6 - Gateway Generation - Using twk.dat";
    take_last_key(open_hive().OpenRecordset(statements::project_named(project_name())), u"pid", pid_form);
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

void Form6::Form_Unload() {
    marcar_forma(screen_number, false);
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
        const Fence named(beside_program(u"Projects"), project_name());
    } catch (const RuntimeFault&) {
        MsgBox(u"File wasn't saved.");
        return;
    }
    guardar_dat(form, beside_program(project_name() + u".dat"));
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
    CommonDialog1.file_name = project_name();
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
    map.control("Slider1", Slider1);
    map.control("lbl_level", lbl_level);
    map.control("lbl_level_note", lbl_level_note);
    enumerate_pages(map);
    enumerate_design(map);
    map.control("Frame7", Frame7);
    map.control("Command3", Command3);
    map.control("Command4", Command4);
    map.control("lbl_advanced", lbl_advanced);
    map.control("lbl_default", lbl_default);
    map.control("lbl_override", lbl_override);
    map.control("lbl_strategies", lbl_strategies);
    map.control("Frame8", Frame8);
    map.control("checkBulgaro", checkBulgaro);
    map.control("Drive2", Drive2);
    map.control("Dir2", Dir2);
    map.control("File2", File2);
    map.control("Label52", Label52);
    map.control("Command5", Command5);
    map.control("Label53", Label53);
    map.control("Label41", Label41);
    map.control("Command1", Command1);
    map.control("Command7", Command7);
    map.control("File1", File1);
    map.control("Dir1", Dir1);
    map.control("List1", List1);
    map.control("CommonDialog1", CommonDialog1);
    enumerate_events(map);
}

/// Levels 1 to 3.
void Form6::enumerate_pages(ScreenMap& map) {
    map.control("Frame2", Frame2);
    map.control("lbl_density", lbl_density);
    map.control("Combo9", Combo9);
    map.control("Check10", Check10);
    map.control("Check11", Check11);
    map.control("Check12", Check12);
    map.control("Check13", Check13);
    map.control("Check14", Check14);
    map.control("Check15", Check15);
    map.control("Frame1", Frame1);
    map.control("lbl_random_pages", lbl_random_pages);
    map.control("Combo2", Combo2);
    map.control("lbl_redirecting", lbl_redirecting);
    map.control("Combo3", Combo3);
    map.control("lbl_linking", lbl_linking);
    map.control("Combo4", Combo4);
    map.control("lbl_main_url", lbl_main_url);
    map.control("Combo8", Combo8);
    map.control("Check9", Check9);
    map.control("Check5", Check5);
    map.control("Frame3", Frame3);
    map.control("lbl_extension", lbl_extension);
    map.control("Combo10", Combo10);
    map.control("Check6", Check6);
    map.control("Check8", Check8);
    map.control("Check1", Check1);
    map.control("Check2", Check2);
    map.control("Check7", Check7);
    map.control("Check4", Check4);
    map.control("Check3", Check3);
    map.control("lbl_classification", lbl_classification);
    map.control("Combo7", Combo7);
    map.control("lbl_language", lbl_language);
    map.control("Combo5", Combo5);
    map.control("lbl_separator", lbl_separator);
    map.control("Combo6", Combo6);
}

/// Level 4.
void Form6::enumerate_design(ScreenMap& map) {
    map.control("Frame4", Frame4);
    map.control("Frame6", Frame6);
    map.controls("Template", Template);
    map.control("lbl_font_face", lbl_font_face);
    map.control("combo1", combo1);
    map.element("Command2", 0, Command2_0);
    map.control("Text4", Text4);
    map.control("Option1", Option1);
    map.element("Command2", 110, Command2_110);
    map.control("Text1", Text1);
    map.control("Option2", Option2);
    map.control("Text3", Text3);
    map.control("Frame5", Frame5);
    map.control("Text2", Text2);
    map.control("lbl_html_box", lbl_html_box);
    map.control("lbl_not_saved", lbl_not_saved);
}

void Form6::enumerate_events(ScreenMap& map) {
    map.event("Slider1", "Change", [this] { Slider1_Change(); });
    map.event("Command1", "Click", [this] { Command1_Click(); });
    for (const int index : {0, 110})
        map.event("Command2", index, "Click", [this, index] { Command2_Click(index); });
    map.event("Command3", "Click", [this] { Command3_Click(); });
    map.event("Command4", "Click", [this] { Command4_Click(); });
    map.event("Command5", "Click", [this] { Command5_Click(); });
    map.event("Command7", "Click", [this] { Command7_Click(); });
    map.event("Option1", "Click", [this] { Option1_Click(); });
    map.event("Option2", "Click", [this] { Option2_Click(); });
    for (int index = 0; index < static_cast<int>(Template.size()); ++index)
        map.event("Template", index, "Click", [this, index] { Template_Click(index); });
    map.event("Drive2", "Change", [this] { Drive2_Change(); });
    map.event("Dir2", "Change", [this] { Dir2_Change(); });
    map.event("File2", "Click", [this] { File2_Click(); });
}

} // namespace twk
