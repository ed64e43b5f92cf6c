// SPDX-License-Identifier: MIT
#include "engine/cross_links.h"

#include "engine/page_report.h"
#include "engine/run.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "reports/form12.h"

namespace twk {

namespace {

Text sibling_link(const Run& run, const Text& file) {
    return u"<a href=\"" + file + u"\">" + Replace(Replace(file, run.extension, u""), u"_", u" ") +
           u"</a> | ";
}

void append_links(Run& run, const Text& path, bool index) {
    run.fence->check(path);
    const std::int64_t before = FileLen(path);
    const Text& links = run.lista_enlaces;
    TextStreamPtr page = run.fso.OpenTextFile(path, OpenMode::appending, false, TextKind::page);
    if (index)
        page->writeline(u"<br><h3><li>" + Replace(Left(links, Len(links) - 2), u"|", u" <li> ") + u"</h3>");
    else
        page->writeline(u"<br><br>" + links);
    page->writeline(u"<br><br><br><br><br>");
    page->writeline(u"</body></html>");
    run.ultimo_texto = page->close_and_read();
    run.ultima_pagina = path;
    run.bytes_written += page->size() - before;
}

/// The report gets the link that the last written page left, whatever this page holds.
void report_page(Run& run, const Text& path, const Text& file) {
    if (run.enlace_padre.empty()) run.enlace_padre = u"Not linking to any Main Target page.";
    run.es_redireccion = file.ends_with(u"_js" + run.extension) ? u"YES" : u"NO";
    run.nota_informe.clear();
    analizar_pagina(run, path, u"");
}

void move_progress(Run& run, int position) {
    const double pages = Val(run.form.Combo2.text());
    if (pages == 0) return;
    ProgressBar& progress = screen<Form12>().ProgressBar1;
    progress.set_value(progress.value() + Int((100 - progress.value() - 2) / pages) * position);
}

} // namespace

void cross_link_pass(Run& run) {
    FileListBox& lister = run.form.File1;
    lister.set_path(run.carpeta);
    lister.set_pattern(u"*.htm*");
    const std::vector<Text> files = lister.entries();
    for (const Text& file : files) run.lista_enlaces += sibling_link(run, file);
    int position = 0;
    for (const Text& file : files) {
        const Text path = run.carpeta + Text(path_separator) + file;
        run.pagina_actual = path;
        append_links(run, path, file == u"index" + run.extension);
        report_page(run, path, file);
        move_progress(run, position++);
    }
    run.lista_enlaces.clear();
}

} // namespace twk
