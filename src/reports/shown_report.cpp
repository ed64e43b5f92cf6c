// SPDX-License-Identifier: MIT
#include "reports/shown_report.h"

#include "engine/project.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "reports/form12.h"
#include "settings/form6.h"

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
    desktop().settle();
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
    if (form_.informe_activo)
        screen<Form12>().reporte2_2(page.path, page.text, index, page.kind, page.links_to, page.redirects,
                                    u"");
}

void ShownReport::page_written() {
    if (form_.informe_activo) screen<Form12>().page_done();
}

void ShownReport::end(bool finished) {
    if (held_ && !finished && screens().is_loaded<Form12>()) screen<Form12>().break_off();
    held_.reset();
}

void ShownReport::finish(int first_level_pages, const PageCounts& counts) {
    Form12& report = screen<Form12>();
    report.reporte2_3(first_level_pages);
    report.reporte_nivel2(counts.first_level, counts.second_level);
    report.reporte_nivel3(counts.second_level, counts.random);
    report.ProgressBar1.set_value(100);
    desktop().settle();
    screen<Form12>().Command2.enabled = true;
}

} // namespace twk
