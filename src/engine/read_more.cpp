// SPDX-License-Identifier: MIT
#include "engine/read_more.h"

#include "engine/density.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/desktop.h"

namespace twk {

namespace {

/// Path of a read-more page whose name begins like the text; `mark` stands behind the stem.
Text read_more_path(const PageChoices& choices, const Plan& plan, Text stem, TextView mark) {
    Text host = Replace(choices.main_host(), u"http://", u"");
    replace_all(host, u"\\", u"-");
    for (const TextView drop : {u":", u"\\", u"/", u"+", uR"(")", u"'"}) replace_all(stem, drop, u"");
    const Text s = preparar_texto(Trim(stem));
    const Text file = rspaces(choices, s) + Text(mark) + u"_rm" + plan.extension;
    Text path =
        joined_path(beside_program(u"Projects"), choices.project_name(), Replace(host, u"/", u"-"), file);
    replace_all(path, u"<", u"");
    replace_all(path, u">", u"");
    while (replace_all(path, u"__", u"_")) path = Trim(path);
    return path;
}

void write_lines(const Run& run, TextStream& out, const Text& t) {
    const Proyecto& p = run.project.proyecto;
    const auto line = [&out](const Text& text) { out.writeline(text); };
    if (run.indice_kw < run.project.tabla_kw.rows()) // faults are passed over: the line alone is missing then
        line(fill(u"<html><head><title>{1} Complete Article</title>", run.keyword()));
    line(u"<body>");
    if (run.fase == 1 || run.fase == 3) line(fill(u"<h1>{1}</h1><h3>{2}</h3>", cortar_palabras(t, 15), t));
    line(fill(uR"(<br><br><h2><a href="{1}">{2}</a></h2>)", p.site_url, p.site_name));
    line(u"<center><br><br><hr width=50%>");
    line(fill(u"{1} {2}<br>", run.settings.rotulo_webmaster, p.designer_url));
    line(fill(u"By {1}<br><center>", p.designer_name));
    line(u"<br><br>");
    line(u"</body></html>");
}

void write_read_more(Run& run, const Text& path, const Text& t) {
    const Fence& fence = *run.page.fence;
    ReplacedFile page(fence.within(path), fence.within(path + u"aux2"));
    const TextStreamPtr out = page.open(TextKind::page);
    write_lines(run, *out, t);
    out->Close();
    page.replace();
    run.page.count();
    run.page.bytes_written += out->size();
    run.page.sizes[path] = out->size();
}

} // namespace

Text fs_rm(Run& run, Text& t) {
    Text path = read_more_path(run.choices, run.plan, Left(t, 40), u"");
    run.mensaje_error = u"Error creating Read-More page named " + path;
    // The second name is tried once; when it is taken too, its page is overwritten.
    if (file_exists(path)) path = read_more_path(run.choices, run.plan, cortar_palabras(t, 5), u"_1");
    try {
        write_read_more(run, path, t);
    } catch (const RuntimeFault&) { // the link stays, whether there is a page behind it or not
    }
    run.page.made.read_more = true;
    t +=
        fill(uR"(... <br><br><h4>To Read the Complete Article <a href="{1}">click Here</a>.</h4><br>)", path);
    run.mensaje_error.clear();
    return t;
}

} // namespace twk
