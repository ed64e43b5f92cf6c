// SPDX-License-Identifier: MIT
#include "engine/hallway.h"

#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/generation.h"
#include "engine/page_file.h"
#include "engine/page_head.h"
#include "engine/random_pages.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "inputs/form7.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"

namespace twk {

namespace {

constexpr TextView line_mark = u" *BREAKLINE* ";
constexpr TextView opening = u"<!-- URLKeyword -->";
constexpr TextView closing = u"<!-- //URLKeyword -->";

/// All lines of the user's page, each with the mark in front. A page that is gone by now counts as empty.
Text read_template(Run& run) {
    Text text;
    if (!run.fso.FileExists(run.form.plantilla_sitemap)) return text;
    TextStreamPtr in = run.fso.OpenTextFile(run.form.plantilla_sitemap, OpenMode::reading);
    while (!in->AtEndOfStream()) text.append(line_mark).append(in->readline());
    in->Close();
    return text;
}

/// Puts links to the keywords, in their order, into the marked places. The unit right behind a closing marker
/// gets lost. Fault 5 for a closing marker without an opening one in front or at the very end, 9 past the
/// last keyword row.
void fill_places(Run& run, Text& text) {
    for (int k = 0; contains(text, closing); ++k) {
        const int e = InStr(text, closing);
        const Text a = Left(text, e + Len(closing));
        const Text b = Left(a, InStr(a, opening));
        const Text& keyword = run.tabla_kw.at(k);
        text = Left(b, Len(b) - 1) + u"<a href=\"" + rspaces(run.form, keyword) + run.extension + u"\">" +
               keyword + u"</a>" + Right(text, Len(text) - e - Len(closing));
    }
}

void write_from_template(Run& run) {
    Text text = read_template(run);
    fill_places(run, text);
    for (const Text& line : Split(text, trim_view(line_mark))) run.writeline(line);
}

/// A box between 1 and the number of keywords; drawn again while it is empty, as all past the last are.
const Text& drawn_box(Run& run) {
    static const Text none;
    const auto box = [&run](int b) -> const Text& {
        return b < max_boxes ? run.contenidos[static_cast<std::size_t>(b)] : none;
    };
    bool any = false;
    for (int b = 1; b <= run.n_keywords && !any; ++b) any = !box(b).empty();
    if (!any)
        throw RuntimeFault(fault_project_lacks,
                           u"The project needs a second content box with text for the links of the hallway "
                           u"page to its other targets.");
    int b = 0;
    do b = static_cast<int>(Int(chance().Rnd() * run.n_keywords + 1));
    while (box(b).empty());
    return box(b);
}

/// The row of the short list of first-level pages. Without a second keyword none can be drawn, which matters
/// only when the short list is written.
int drawn_row(Run& run) {
    int r = 1;
    if (run.n_keywords <= 1) {
        if (!run.form.Check14.value())
            throw RuntimeFault(
                fault_project_lacks,
                u"The project has one keyword only: the hallway page needs a second one, or the "
                u"links to all first-level pages.");
        return r;
    }
    while (run.tabla_kw.at(r).empty()) r = static_cast<int>(Int(chance().Rnd() * run.n_keywords + 1));
    return r;
}

const Text& content_box(const Run& run, int b) {
    if (b < 0 || b >= max_boxes) throw RuntimeFault(fault_subscript);
    return run.contenidos[static_cast<std::size_t>(b)];
}

void write_other_targets(Run& run) {
    for (const Text& other : screen<Form2>().List1.entries()) {
        run.writeline(u"<a href=\"" + other + u"\">");
        run.writeline(u"<h3>" + run.proyecto.site_name + u" " + cortar_palabras(drawn_box(run), 50) +
                      u"... </h3></a>");
    }
}

void write_first_level_links(Run& run, int row) {
    const auto link = [&run](const Text& keyword) {
        run.writeline(u"<li><a href=\"" + rspaces(run.form, keyword) + run.extension + u"\">" + keyword +
                      u"</a>");
    };
    if (!run.form.Check14.value()) {
        for (int twice = 0; twice < 2; ++twice) {
            link(run.tabla_kw.at(row));
            run.writeline(u"<br>" + screen<Form2>().txt_dat[1].text() + u"<br>");
        }
        return;
    }
    for (int i = 0; i <= run.n_keywords; ++i) {
        if (rspaces(run.form, run.tabla_kw.at(i)).empty()) continue;
        link(run.tabla_kw.at(i));
        run.writeline(u"<br>" + cortar_palabras(content_box(run, xrnum(run.ultima_caja)), 20) + u"...");
    }
}

/// A link to the latest page of every destination, the only way into it.
void write_destinations(Run& run) {
    for (int d = 0; d <= screen<Form7>().List1.list_count(); ++d) {
        const Text& latest = run.ultima_por_host[static_cast<std::size_t>(d)];
        run.writeline(u"<li><a href=\"" + latest + u"\">" +
                      Replace(Replace(latest, run.extension, u""), u"_", u" ") + u"</a>");
        run.writeline(u"<br>" + cortar_palabras(content_box(run, d), 50) + u"...<br>");
    }
}

void write_search_links(Run& run) {
    if (!run.form.Check7.value()) return;
    run.writeline(google_search_link(run));
    run.writeline(u"<br>Need more info? Let's find out in Google...<br>");
    run.writeline(google_related_link(run));
    run.writeline(u"<br>Who's behind this?! Look for this company (info indexed by Google)...<br>");
}

void write_generated(Run& run) {
    const Text& principal = module1().url_principal;
    const ListBox& keywords = screen<Form3>().List1;
    Text lista_sitemap;
    for (int i = 0; i <= keywords.list_count(); ++i) lista_sitemap += u" " + keywords.list(i);
    run.writeline(u"<html><head><title>" + run.proyecto.site_name + u" " + main_host(run) + u"/</title>");
    meta(run, run.proyecto.Name, lista_sitemap);
    run.writeline(u"");
    run.writeline(body(run));
    run.writeline(u"<center>");
    run.writeline(font_line(run));
    run.writeline(u"<a href=\"" + principal + u"\">");
    run.writeline(u"<h1>" + run.proyecto.site_name + u"</h1></a>");
    write_other_targets(run);
    run.writeline(u"<h4>" + captions_text(run) + u"</h4><br>");
    run.writeline(u"<h3>Top related-links<br><br>");
    const int row = drawn_row(run);
    run.writeline(u"<li><a href=\"" + principal + u"\">Our Main Site</a>");
    run.writeline(u"<br>" + principal + u"<br>");
    write_first_level_links(run, row);
    write_destinations(run);
    write_search_links(run);
    if (!trim_view(run.form.Text2.text()).empty())
        run.writeline(u"<br><br>" + run.form.Text2.text() + u"<br>");
    run.writeline(u"<br><br><hr width=50%>");
    run.writeline(run.settings.rotulo_webmaster + u" " + run.proyecto.designer_url + u"<br>");
    run.writeline(u"By " + run.proyecto.designer_name + u"<br>");
    run.writeline(u"");
    run.writeline(u"<br><br>");
    run.writeline(u"</body></html>");
}

} // namespace

void hallway_page(Run& run) {
    status(run, u"Generating Site-Map");
    const Text path = run.main_folder + Text(path_separator) + run.archivo_sitemap;
    open_page(run, path);
    if (run.form.checkBulgaro.value())
        write_from_template(run); // links to no random page
    else
        write_generated(run);
    close_page(run, path);
    status(run, u"Displaying Results in Reports");
}

} // namespace twk
