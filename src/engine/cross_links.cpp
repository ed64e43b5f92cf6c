// SPDX-License-Identifier: MIT
#include "engine/cross_links.h"

#include "engine/page_report.h"
#include "engine/run.h"
#include "platform/desktop.h"
#include "platform/name_index.h"
#include "platform/numbers.h"

namespace twk {

namespace {

Text sibling_link(const Plan& plan, const Text& file) {
    return fill(uR"(<a href="{1}">{2}</a> | )", file,
                Replace(Replace(file, plan.extension, u""), u"_", u" "));
}

void append_links(OpenPage& page, const Text& path, const Text& links, bool index) {
    const NameIndex::SoleWriter alone;
    const TextStreamPtr file =
        page.fso.OpenTextFile(page.fence->within(path), OpenMode::appending, false, TextKind::page);
    if (index)
        file->writeline(fill(u"<br><h3><li>{1}</h3>", Replace(Left(links, Len(links) - 2), u"|", u" <li> ")));
    else
        file->writeline(fill(u"<br><br>{1}", links));
    file->writeline(u"<br><br><br><br><br>");
    file->writeline(u"</body></html>");
    page.ultimo_texto = file->close_and_read();
    page.ultima_pagina = path;
    page.bytes_written += file->grown();
    page.sizes[path] = file->size();
}

/// The report gets the link that the last written page left, whatever this page holds.
void report_page(Run& run, const Text& path, const Text& file, TextView links) {
    static const PageRecord unknown;
    if (run.enlace_padre.empty()) run.enlace_padre = u"Not linking to any Main Target page.";
    const auto known = run.made_pages.find(LCase(path));
    analizar_pagina(run, path, file.ends_with(u"_js" + run.plan.extension) ? u"YES" : u"NO",
                    known == run.made_pages.end() ? unknown : known->second, links);
}

void move_progress(Run& run, int position) {
    const double pages = Val(run.choices.random_pages());
    if (pages == 0) return;
    const double now = run.report.progress();
    run.report.set_progress(now + Int((100 - now - 2) / pages) * position);
}

} // namespace

void cross_link_pass(Run& run, const Text& folder) {
    const std::vector<Text> files = run.choices.files_in(folder, u"*.htm*");
    Text links;
    for (const Text& file : files) links += sibling_link(run.plan, file);
    int position = 0;
    for (const Text& file : files) {
        const Text path = joined_path(folder, file);
        run.page.pagina_actual = path;
        append_links(run.page, path, links, file == u"index" + run.plan.extension);
        run.page.pagina_actual.clear();
        report_page(run, path, file, links);
        move_progress(run, position++);
    }
}

} // namespace twk
