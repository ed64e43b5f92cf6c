// SPDX-License-Identifier: MIT
#include "engine/generation.h"

#include "engine/first_level.h"
#include "engine/hallway.h"
#include "engine/output_tree.h"
#include "engine/page_names.h"
#include "engine/random_pages.h"
#include "engine/run.h"
#include "engine/run_preparation.h"
#include "engine/second_level.h"
#include "engine/site_map.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/memory.h"
#include "platform/numbers.h"
#include "reports/form12.h"
#include "settings/settings_file.h"
#include "shell/form2.h"
#include "store/stores.h"

namespace twk {

namespace {

const Text& project_name() {
    return screen<Form2>().txt_name[0].text();
}

/// The number of random pages must be even.
void make_even(ComboBox& how_many) {
    const double pages = Val(how_many.text());
    if (pages / 2 != Round(pages / 2) && pages > 0) how_many.text = to_text(CInt(Int(pages - 1)));
}

bool confirmed() {
    return MsgBox(u"This action may take several minutes depending on your computers' speed \n"
                  u"and the amount of pages you're trying to generate.\n"
                  u"Make sure there are no open files in project's directories.\n"
                  u"Are you sure you want to proceed?",
                  Buttons::yes_no, u"Create Pages?") == Answer::yes;
}

void prepare_report(const Run& run) {
    Form12& report = screen<Form12>();
    report.ProgressBar1.set_value(CDbl(u"0,0001"));
    for (ListBox* list : {&report.List1, &report.List2, &report.List3}) list->clear();
    screens().show<Form12>();
    DoEvents();
    report.reporte2(run.total_sub);
    report.Reporte(run.tabla_kw, run.n_keywords);
}

void finish_report(const Run& run) {
    Form12& report = screen<Form12>();
    report.reporte2_3(run.n_keywords);
    report.reporte_nivel2(run.cuenta1, run.cuenta2);
    report.reporte_nivel3(run.cuenta2, run.cuenta3);
    report.ProgressBar1.set_value(100);
    DoEvents();
}

void run_phases(Run& run) {
    for (run.fase = 1; run.fase <= 5; ++run.fase) {
        run.indice_kw = 0;
        switch (run.fase) {
        case 1: first_level_pages(run); break;
        case 2:
            run.mensaje_error = u"Error creating Second Level page.";
            second_level_pages(run);
            break;
        case 3:
            run.mensaje_error = u"Error creating RANDOM-GENERATED page.";
            random_pages(run);
            break;
        case 4:
            run.mensaje_error = u"Error creating project SITEMAP (Hallway Page)";
            hallway_page(run);
            break;
        case 5: sitemap_local(run); break;
        default: break;
        }
        run.lista_kw.clear();
    }
    run.fase = 5;
}

void open_local_site_map(const Run& run) {
    const Text sep(path_separator);
    try {
        desktop().start(ruta_corta(run.project_folder + sep + u"sitemap-do-not-upload.htm"));
    } catch (const RuntimeFault&) { // the pages are there, whether they can be shown or not
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

void run_all(Run& run) {
    Form6& form = run.form;
    save_own_settings(form);
    make_even(form.Combo2);
    chance().Randomize();
    run.extension = form.Combo10.text();
    run.separador = form.Combo6.text();
    run.archivo_sitemap = LCase(u"sitemap" + run.extension);
    if (Len(trim_view(form.Combo10.text())) < 2) {
        MsgBox(u"You need to enter a file extension.");
        return;
    }
    if (!confirmed()) return;
    form.informe_activo = true;

    run.mensaje_error =
        u"there was an error preparing project properties (keywords, content boxes, hosts, targets, etc.)";
    run.base_datos = open_hive();
    read_project(run);
    read_keywords(run);
    collect_terms(run);
    build_page_names(run);
    distribute_pages(run);
    if (form.Check9.value() && !offer_page_names(run)) return;
    prepare_report(run);
    measure_boxes(run);
    rebuild_output_tree(run);
    if (!list_pictures(run)) return;
    run_phases(run);
    finish_report(run);
    screen<Form12>().Command2.enabled = true;
    open_local_site_map(run);
    run.finished = true;
}

/// One run at a time, from whichever screen: a second one would erase the pages under the first.
class UnderWay {
  public:
    explicit UnderWay(bool& flag) : flag_(flag) { flag = true; }
    ~UnderWay() { flag_ = false; }
    UnderWay(const UnderWay&) = delete;
    UnderWay& operator=(const UnderWay&) = delete;

  private:
    bool& flag_;
};

} // namespace

void generation_run(Form6& form) {
    static bool running = false;
    if (running) return;
    const UnderWay under_way(running);
    keep_freed_memory();
    form.run = std::make_unique<Run>(form);
    Run& run = *form.run;
    try {
        run_all(run);
    } catch (RuntimeFault& fault) {
        run.salida.reset();
        run.origen.reset(); // a page that was never replaced stands empty
        fault.stage = run.mensaje_error;
        fault.page = run.pagina_actual;
        throw;
    }
}

int template_index(const Run& run) {
    int index = 0;
    for (const OptionButton& option : run.form.Template) {
        if (option.value()) break;
        ++index;
    }
    return index;
}

void status(Run&, const Text& text) {
    screen<Form12>().Label2.caption = text;
}

} // namespace twk
