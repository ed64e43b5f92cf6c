// SPDX-License-Identifier: MIT
#include "engine/read_more.h"

#include "engine/density.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "inputs/form7.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "shell/form2.h"

namespace twk {

namespace {

/// Path of a read-more page whose name begins like the text; `mark` stands behind the stem.
Text read_more_path(const Run& run, Text stem, TextView mark) {
    Text host = Replace(screen<Form7>().Text2.text(), u"http://", u"");
    replace_all(host, u"\\", u"-");
    for (const TextView drop : {u":", u"\\", u"/", u"+", u"\"", u"'"}) replace_all(stem, drop, u"");
    const Text s = preparar_texto(Trim(stem));
    const Text sep(path_separator);
    Text file = rspaces(run.form, s) + Text(mark) + u"_rm" + run.extension;
    Text path = app_path() + sep + u"Projects" + sep + screen<Form2>().txt_name[0].text() + sep +
                Replace(host, u"/", u"-") + sep + file;
    replace_all(path, u"<", u"");
    replace_all(path, u">", u"");
    while (replace_all(path, u"__", u"_")) path = Trim(path);
    return path;
}

void write_read_more(Run& run, const Text& path, const Text& t) {
    ReplacedFile page(path);
    const Text aux = path + u"aux2";
    const TextStreamPtr out = run.fso.OpenTextFile(aux, OpenMode::writing, true, TextKind::page);
    if (run.indice_kw < run.tabla_kw.rows()) // faults are passed over: the line alone is missing then
        out->writeline(u"<html><head><title>" + run.tabla_kw.at(run.indice_kw) +
                       u" Complete Article</title>");
    out->writeline(u"<body>");
    if (run.fase == 1 || run.fase == 3)
        out->writeline(u"<h1>" + cortar_palabras(t, 15) + u"</h1><h3>" + t + u"</h3>");
    out->writeline(u"<br><br><h2><a href=\"" + run.proyecto.site_url + u"\">" + run.proyecto.site_name +
                   u"</a></h2>");
    out->writeline(u"<center><br><br><hr width=50%>");
    out->writeline(run.settings.rotulo_webmaster + u" " + run.proyecto.designer_url + u"<br>");
    out->writeline(u"By " + run.proyecto.designer_name + u"<br><center>");
    out->writeline(u"<br><br>");
    out->writeline(u"</body></html>");
    out->Close();
    page.replace_by(aux);
    ++run.pages_written;
    run.bytes_written += out->size();
}

} // namespace

Text fs_rm(Run& run, Text& t) {
    Text path = read_more_path(run, Left(t, 40), u"");
    run.mensaje_error = u"Error creating Read-More page named " + path;
    // The second name is tried once; when it is taken too, its page is overwritten.
    if (file_exists(path)) path = read_more_path(run, cortar_palabras(t, 5), u"_1");
    try {
        run.fence->check(path);
        write_read_more(run, path, t);
    } catch (const RuntimeFault&) { // the link stays, whether there is a page behind it or not
    }
    t += u"... <br><br><h4>To Read the Complete Article <a href=\"" + path + u"\">click Here</a>.</h4><br>";
    run.mensaje_error.clear();
    return t;
}

} // namespace twk
