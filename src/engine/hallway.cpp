// SPDX-License-Identifier: MIT
#include "engine/hallway.h"

#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/page_head.h"
#include "engine/random_pages.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/module1.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

namespace twk {

namespace {

constexpr TextView line_mark = u" *BREAKLINE* ";
constexpr TextView opening = u"<!-- URLKeyword -->";
constexpr TextView closing = u"<!-- //URLKeyword -->";

/// All lines of the user's page, each with the mark in front. A page that is gone by now counts as empty.
Text read_template(Run& run) {
    Text text;
    const Text& path = run.choices.own_hallway();
    if (!run.page.fso.FileExists(path)) return text;
    TextStreamPtr in = run.page.fso.OpenTextFile(path, OpenMode::reading);
    while (!in->AtEndOfStream()) text.append(line_mark).append(in->readline());
    in->Close();
    return text;
}

Text link_to(const Run& run, const Text& keyword) {
    return fill(uR"(<a href="{1}{2}">{3}</a>)", rspaces(run.choices, keyword), run.plan.extension, keyword);
}

/// Puts links to the keywords, in their order, into the marked places. The unit right behind a closing marker
/// gets lost. Fault 5 for a closing marker without an opening one in front or at the very end, 9 past the
/// last keyword row.
void fill_places(const Run& run, Text& text) {
    for (int k = 0; contains(text, closing); ++k) {
        const int e = InStr(text, closing);
        const Text a = Left(text, e + Len(closing));
        const Text b = Left(a, InStr(a, opening));
        text = Left(b, Len(b) - 1) + link_to(run, run.project.tabla_kw.at(k)) +
               Right(text, Len(text) - e - Len(closing));
    }
}

void write_from_template(Run& run) {
    Text text = read_template(run);
    try {
        fill_places(run, text);
    } catch (const RuntimeFault& fault) {
        const bool rows = fault.number() == fault_subscript;
        if (!rows && fault.number() != fault_argument) throw;
        throw told_fault(
            fault.number(),
            u"The hallway template " + run.choices.own_hallway() +
                (rows ? Text(u" has more places for keywords than the project has keywords; as many "
                             u"would do.")
                      : u" has a \"" + Text(closing) +
                            u"\" that has none of the opening ones in front, or ends the page; pairs "
                            u"with a line behind them would do."));
    }
    for (const TextView line : split_views(text, trim_view(line_mark))) run.page.writeline(line);
}

const Text& box_to_draw(const Boxes& boxes, int b) {
    static const Text none;
    return b < max_boxes ? boxes.box(b) : none;
}

void require_box(const Boxes& boxes, int n_keywords) {
    for (int b = 1; b <= n_keywords; ++b)
        if (!box_to_draw(boxes, b).empty()) return;
    throw RuntimeFault(fault_project_lacks,
                       u"The project needs a second content box with text for the links of the hallway "
                       u"page to its other targets.");
}

/// A box between 1 and the number of keywords; drawn again while it is empty, as all past the last are.
const Text& drawn_box(const Boxes& boxes, int n_keywords) {
    require_box(boxes, n_keywords);
    int b = 0;
    do b = draw_below(n_keywords) + 1;
    while (box_to_draw(boxes, b).empty());
    return box_to_draw(boxes, b);
}

/// The short list of first-level pages begins at a drawn row.
void require_row(const Run& run) {
    if (run.project.n_keywords <= 1 && !run.choices.link_all_from_hallway())
        throw RuntimeFault(fault_project_lacks,
                           u"The project has one keyword only: the hallway page needs a second one, or the "
                           u"links to all first-level pages.");
}

/// The row of the short list of first-level pages. Without a second keyword none can be drawn, which matters
/// only when the short list is written.
int drawn_row(const Run& run) {
    int r = 1;
    const int n_keywords = run.project.n_keywords;
    require_row(run);
    if (n_keywords <= 1) return r;
    while (run.project.tabla_kw.at(r).empty()) r = draw_below(n_keywords) + 1;
    return r;
}

void write_other_targets(Run& run) {
    const std::vector<Text> others = run.choices.other_targets();
    for (const Text& other : others) {
        run.page.writeline(uR"(<a href="{1}">)", other);
        run.page.writeline(u"<h3>{1} {2}... </h3></a>", run.project.proyecto.site_name,
                           cortar_palabras(drawn_box(run.boxes, run.project.n_keywords), 50));
    }
}

void write_first_level_links(Run& run, int row) {
    OpenPage& page = run.page;
    const KeywordTable& table = run.project.tabla_kw;
    if (!run.choices.link_all_from_hallway()) {
        for (int twice = 0; twice < 2; ++twice) {
            page.writeline({u"<li>", link_to(run, table.at(row))});
            page.writeline({u"<br>", run.choices.category(), u"<br>"});
        }
        return;
    }
    for (int i = 0; i <= run.project.n_keywords; ++i) {
        if (rspaces(run.choices, table.at(i)).empty()) continue;
        page.writeline({u"<li>", link_to(run, table.at(i))});
        page.writeline({u"<br>", cortar_palabras(run.boxes.box(xrnum(run.boxes.ultima_caja)), 20), u"..."});
    }
}

/// A link to the latest page of every destination, the only way into it.
void write_destinations(Run& run) {
    for (int d = 0; std::cmp_less_equal(d, run.choices.secondary_hosts().size()); ++d) {
        const Text& latest = at(run.plan.ultima_por_host, d);
        run.page.writeline(uR"(<li><a href="{1}">{2}</a>)", latest,
                           Replace(Replace(latest, run.plan.extension, u""), u"_", u" "));
        run.page.writeline(u"<br>{1}...<br>", cortar_palabras(run.boxes.box(d), 50));
    }
}

void write_search_links(Run& run) {
    if (!run.choices.search_links()) return;
    OpenPage& page = run.page;
    page.writeline(google_search_link(run.settings));
    page.writeline(u"<br>Need more info? Let's find out in Google...<br>");
    page.writeline(google_related_link(run.settings));
    page.writeline(u"<br>Who's behind this?! Look for this company (info indexed by Google)...<br>");
}

/// The keywords as Step 2 lists them, each behind a blank, and the blank of the entry behind the last.
Text lista_sitemap(const PageChoices& choices) {
    Text list;
    for (const Text& keyword : choices.listed_keywords()) list += u" " + keyword;
    return list + u" ";
}

void write_generated(Run& run) {
    OpenPage& page = run.page;
    const PageChoices& choices = run.choices;
    const Text& principal = module1().url_principal;
    const Proyecto& p = run.project.proyecto;
    page.writeline(u"<html><head><title>{1} {2}/</title>", p.site_name, choices.main_host());
    meta(page, choices, run.project, p.Name, lista_sitemap(choices));
    page.writeline(u"");
    page.writeline(body(choices, run.fase));
    page.writeline(u"<center>");
    page.writeline(font_line(choices));
    page.writeline(uR"(<a href="{1}">)", principal);
    page.writeline(u"<h1>{1}</h1></a>", p.site_name);
    write_other_targets(run);
    page.writeline(u"<h4>{1}</h4><br>", captions_text(run.settings, p));
    page.writeline(u"<h3>Top related-links<br><br>");
    const int row = drawn_row(run);
    page.writeline(uR"(<li><a href="{1}">Our Main Site</a>)", principal);
    page.writeline(u"<br>{1}<br>", principal);
    write_first_level_links(run, row);
    write_destinations(run);
    write_search_links(run);
    if (const Text& own = choices.own_html(); !trim_view(own).empty())
        page.writeline(u"<br><br>{1}<br>", own);
    page.writeline(u"<br><br><hr width=50%>");
    page.writeline(u"{1} {2}<br>", run.settings.rotulo_webmaster, p.designer_url);
    page.writeline(u"By {1}<br>", p.designer_name);
    page.writeline(u"");
    page.writeline(u"<br><br>");
    page.writeline(u"</body></html>");
}

} // namespace

void check_hallway(const Run& run) {
    if (run.choices.use_own_hallway()) return;
    if (!run.choices.other_targets().empty()) require_box(run.boxes, run.project.n_keywords);
    require_row(run);
}

void hallway_page(Run& run) {
    run.report.status(u"Generating Site-Map");
    run.page.open(run.plan.in_main_folder(run.plan.archivo_sitemap));
    if (run.choices.use_own_hallway())
        write_from_template(run); // links to no random page
    else
        write_generated(run);
    run.page.close();
    run.report.links_from(run.page.ultima_pagina, run.page.ultimo_texto);
    run.report.status(u"Displaying Results in Reports");
}

} // namespace twk
