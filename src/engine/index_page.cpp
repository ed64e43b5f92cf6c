// SPDX-License-Identifier: MIT
#include "engine/index_page.h"

#include "engine/first_level.h"
#include "engine/fragments.h"
#include "engine/page_head.h"
#include "engine/random_pages.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/desktop.h"
#include "shell/form2.h"

namespace twk {

namespace {

void write_index(Run& run) {
    run.writeline(u"<html><head>");
    run.writeline(u"<title>" + screen<Form2>().txt_dat[1].text() + u" " + run.proyecto.site_name +
                  u"</title>");
    write_random_head(run, u"content"); // whatever the settings call the attribute
    run.writeline(u"<body><center>");
    const auto k = static_cast<std::size_t>(xrnum(run.n_keywords));
    run.writeline(u"<a href=\"" + target(run) + u"\"><h1>" + run.proyecto.site_name + u" " +
                  run.terminos.at(k) + u"</h1></a><h2>" + captions_text(run) + u"</h2><br>");
    run.writeline(run.settings.rotulo_lista + u":");
    run.writeline(u"<br><br>");
}

} // namespace

void index_page(Run& run) {
    if (trim_view(run.lista_kw).empty()) run.lista_kw = joined_keywords(run); // keeps its first separator
    const Text stem = run.carpeta + Text(path_separator) + u"index";
    const Text page = stem + run.extension;
    const Text finished = stem + u".htm"; // whatever the extension
    const Text aux = page + u"aux";
    run.pagina_actual = page;
    for (const Text& each : {page, finished, aux}) run.fence->check(each);
    const TextStreamPtr origen =
        run.fso.OpenTextFile(page, OpenMode::reading, !run.fso.FileExists(finished), TextKind::page);
    run.salida = run.fso.OpenTextFile(aux, OpenMode::writing, true, TextKind::page);
    write_index(run);
    origen->Close();
    run.salida->Close();
    run.bytes_written += run.salida->size();
    run.salida.reset();
    run.fso.DeleteFile(page);
    run.fso.CopyFile(aux, finished);
    run.fso.DeleteFile(aux);
    ++run.pages_written;
}

} // namespace twk
