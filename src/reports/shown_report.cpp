// SPDX-License-Identifier: MIT
#include "reports/shown_report.h"

#include "engine/run.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "reports/form12.h"
#include "settings/form6.h"

#include <algorithm>

namespace twk {

void ShownReport::switch_on() {
    form_.informe_activo = true;
}

void ShownReport::begin(const Project& project) {
    Form12& report = screen<Form12>();
    report.begin_run();
    held_.emplace(screens());
    held_->add<Form12>();
    screens().show<Form12>();
    desktop().run_all_events();
    report.reporte2(project.total_sub);
    report.Reporte(project.tabla_kw, project.n_keywords);
}

void ShownReport::status(const Text& text) {
    screen<Form12>().Label2.caption = text;
}

double ShownReport::progress() const {
    return screen<Form12>().ProgressBar1.value();
}

void ShownReport::set_progress(double per_cent) {
    screen<Form12>().ProgressBar1.set_value(per_cent);
}

void ShownReport::analyse(const WrittenPage& page, std::int16_t index) {
    if (!form_.informe_activo) return;
    Form12& report = screen<Form12>();
    report.keep_record(page.made, page.siblings);
    report.reporte2_2(page.path, page.text, index, page.kind, page.links_to, page.redirects, u"", page.bytes);
}

void ShownReport::links_from(const Text& path, const Text& text) {
    if (form_.informe_activo) screen<Form12>().links_from(path, text);
}

void ShownReport::page_written() {
    if (form_.informe_activo) screen<Form12>().page_done();
}

void ShownReport::end(bool finished) {
    if (held_ && !finished && screens().is_loaded<Form12>()) screen<Form12>().break_off();
    held_.reset();
}

RunFacts ShownReport::facts() const {
    const Run& run = *form_.run;
    const GatewaySettings& s = run.settings;
    RunFacts facts{.project = run.choices.project_name(),
                   .project_folder = run.plan.project_folder,
                   .made_at = ahora(),
                   .hosts = run.choices.secondary_hosts(),
                   .min_words = s.min_palabras,
                   .max_words = s.max_palabras,
                   .long_bounds = {s.tope_largo1, s.tope_largo2},
                   .short_bounds = {s.tope_corto1, s.tope_corto2},
                   .box_density = run.choices.keyword_density(),
                   .random_per_host = run.plan.paginas_host};
    facts.hosts.insert(facts.hosts.begin(), run.choices.main_host());
    for (int i = 0; i <= run.boxes.ultima_caja; ++i) facts.boxes.push_back(run.boxes.box(i));
    const KeywordTable& table = run.project.tabla_kw;
    for (int k = 0; k < run.project.n_keywords; ++k) {
        std::vector<Text>& row = facts.keywords.emplace_back();
        for (int c = 0; c < max_columns && (c == 0 || !table.at(k, c).empty()); ++c)
            row.push_back(table.at(k, c));
    }
    return facts;
}

void ShownReport::finish(int first_level_pages, const PageCounts& counts) {
    Form12& report = screen<Form12>();
    report.reporte2_3(first_level_pages);
    report.reporte_nivel2(counts.first_level, counts.second_level);
    report.reporte_nivel3(counts.second_level, counts.random);
    report.ended(facts());
    report.ProgressBar1.set_value(100);
    desktop().run_all_events();
    screen<Form12>().Command2.enabled = true;
}

} // namespace twk
