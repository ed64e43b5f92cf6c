// SPDX-License-Identifier: MIT
#include "engine/index_page.h"

#include "engine/fragments.h"
#include "engine/page_head.h"
#include "engine/random_pages.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/desktop.h"
#include "platform/subscript.h"

namespace twk {

namespace {

void write_index(Run& run) {
    OpenPage& page = run.page;
    const Proyecto& p = run.project.proyecto;
    page.writeline(u"<html><head>");
    page.writeline(u"<title>{1} {2}</title>", run.choices.category(), p.site_name);
    write_random_head(run, u"content"); // whatever the settings call the attribute
    page.writeline(u"<body><center>");
    const Text& term = at(run.project.terminos, xrnum(run.project.n_keywords));
    page.writeline(uR"(<a href="{1}"><h1>{2} {3}</h1></a><h2>{4}</h2><br>)", target(run.choices), p.site_name,
                   term, captions_text(run.settings, p));
    page.writeline(u"{1}:", run.settings.rotulo_lista);
    page.writeline(u"<br><br>");
}

} // namespace

void index_page(Run& run, const Text& folder) {
    if (trim_view(run.lista_kw).empty())
        run.lista_kw = run.project.joined_keywords(); // keeps its first separator
    OpenPage& page = run.page;
    const Text stem = joined_path(folder, u"index");
    page.pagina_actual = stem + run.plan.extension;
    page.made = {};
    page.made.index = true;
    const FencedPath path = page.fence->within(page.pagina_actual);
    const FencedPath finished = page.fence->within(stem + u".htm"); // whatever the extension
    const FencedPath aux = page.fence->within(page.pagina_actual + u"aux");
    const TextStreamPtr origen =
        page.fso.OpenTextFile(path, OpenMode::reading, !page.fso.FileExists(finished.text()), TextKind::page);
    page.salida = page.fso.OpenTextFile(aux, OpenMode::writing, true, TextKind::page);
    write_index(run);
    origen->Close();
    page.salida->Close();
    page.bytes_written += page.salida->size();
    page.sizes[finished.text()] = page.salida->size();
    page.salida.reset();
    page.fso.DeleteFile(path);
    page.fso.CopyFile(aux.text(), finished);
    page.fso.DeleteFile(aux);
    page.count();
    run.made_pages.insert_or_assign(LCase(finished.text()), page.made);
    page.pagina_actual.clear();
}

} // namespace twk
