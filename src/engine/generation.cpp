// SPDX-License-Identifier: MIT
#include "engine/generation.h"

#include "engine/density.h"
#include "engine/first_level.h"
#include "engine/hallway.h"
#include "engine/page_names.h"
#include "engine/random_pages.h"
#include "engine/run.h"
#include "engine/second_level.h"
#include "engine/site_map.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/memory.h"
#include "platform/numbers.h"
#include "store/stores.h"

#include <chrono>

namespace twk {

namespace {

bool confirmed(const PageChoices& choices) {
    return ask_before_loss(u"This action may take several minutes depending on your computers' speed \n"
                           u"and the amount of pages you're trying to generate.\n"
                           u"Make sure there are no open files in project's directories.\n"
                           u"Are you sure you want to proceed?",
                           Buttons::yes_no, u"Create Pages?",
                           u"Erased first: all files in " +
                               joined_path(beside_program(u"Projects"), choices.project_name())) ==
           Answer::yes;
}

/// Reads once what names the files; false, after a message, when pages would have no extension.
bool read_file_names(Plan& plan, const PageChoices& choices) {
    plan.extension = choices.extension();
    plan.separador = choices.word_separator();
    plan.archivo_sitemap = LCase(u"sitemap" + plan.extension);
    if (Len(trim_view(choices.extension())) >= 2) return true;
    MsgBox(u"You need to enter a file extension.");
    return false;
}

/// Fills the list of pictures; false, after a message, when there are too few.
bool list_pictures(PageChoices& choices) {
    const Text folder = beside_program(u"Images");
    choices.set_pictures({});
    std::vector<Text> pictures;
    for (const TextView pattern : {u"*.gif", u"*.jpg"})
        for (const Text& name : choices.files_in(folder, pattern))
            pictures.push_back(joined_path(folder, name));
    choices.set_pictures(pictures);
    if (pictures.size() >= 3) return true;
    MsgBox(folder + u" Must have more than 3 images (*.gif or *.jpg)");
    return false;
}

/// The faults that the pages are certain to end in, while the old ones still stand: 1001 for what the project
/// lacks, 6 and 13 for a density that is none.
void check_before_erasing(Run& run) {
    if (run.boxes.ultima_caja < 0)
        throw RuntimeFault(
            fault_project_lacks,
            u"The project has no content boxes: there is nothing to write on its pages. One in "
            u"Step 3 would do.");
    if (first_level_reads_density(run)) box_density(run.choices);
    check_hallway(run);
}

void rebuild_output(Run& run) {
    run.mensaje_error =
        u"There was an error trying to create or delete the directory for this project:  " +
        run.choices.project_name() +
        u"\nThis is set in the Project Properties (step 1).\nCheck the directory name, if it was not created. "
        u"Also, check if it's empty.";
    find_folders(run.plan, run.page, run.choices);
    rebuild_output_tree(run.plan, run.page);
    run.mensaje_error.clear();
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
        desktop().run_all_events();
    }
    run.fase = 5;
}

void open_local_site_map(const Plan& plan) {
    try {
        desktop().start(ruta_corta(joined_path(plan.project_folder, u"sitemap-do-not-upload.htm")));
    } catch (const RuntimeFault&) { // the pages are there, whether they can be shown or not
    }
}

void run_all(Run& run) {
    chance().Randomize();
    if (!read_file_names(run.plan, run.choices) || !confirmed(run.choices)) return;
    run.report.switch_on();
    run.mensaje_error =
        u"there was an error preparing project properties (keywords, content boxes, hosts, targets, etc.)";
    run.project.base_datos = open_hive();
    read_project(run.project, run.choices);
    read_keywords(run.project, run.choices);
    collect_terms(run.project);
    build_page_names(run.plan, run.project, run.choices);
    distribute_pages(run.plan, run.choices);
    if (run.choices.offer_page_names() && !offer_page_names(run.plan, run.choices)) {
        // Also after a run that went well: its Step 6 leaves the mark of a cancel for the next one.
        say(u"No pages written: Step 6 ended the run. Press Next once more for a new one.");
        return;
    }
    const auto begun = std::chrono::steady_clock::now();
    run.page.written = [&run] { run.report.page_written(); };
    run.report.begin(run.project);
    measure_boxes(run.boxes, run.project, run.choices);
    check_before_erasing(run);
    rebuild_output(run);
    if (!list_pictures(run.choices)) return;
    run_phases(run);
    run.report.finish(run.project.n_keywords, {run.cuenta1, run.cuenta2, run.cuenta3});
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
    open_local_site_map(run.plan);
    run.finished = true;
    say(to_text(run.page.pages_written) + u" pages written");
}

} // namespace

void generation_run(Run& run) {
    keep_freed_memory();
    try {
        run_all(run);
    } catch (RuntimeFault& fault) {
        run.page.abandon();
        fault.stage = run.mensaje_error;
        fault.page = run.page.pagina_actual;
        throw;
    }
}

} // namespace twk
