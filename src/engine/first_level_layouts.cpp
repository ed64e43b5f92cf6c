// SPDX-License-Identifier: MIT
#include "engine/decorations.h"
#include "engine/first_level.h"
#include "engine/fragments.h"
#include "engine/layouts.h"
#include "engine/page_head.h"
#include "engine/run.h"
#include "engine/table_fragments.h"
#include "platform/desktop.h"

namespace twk {

namespace {

/// Opens the anchor that a heading further down closes.
void write_target_anchor(Run& run) {
    run.page.writeline(uR"(<center><a href="{1}">)", target(run.choices));
}

void write_headings(Run& run, const Text& keyword) {
    run.page.writeline(phrase_line(run.settings, keyword));
    run.page.writeline(captions(run.settings, run.project.proyecto));
}

void write_links(Run& run) {
    run.page.writeline(TP1_linktoprimary(run));
    run.page.writeline(TP1_linktosecondary(run));
}

/// What stands behind the content in every layout.
void write_tail(Run& run) {
    run.page.writeline(TP1_hiddenform(run));
    run.page.writeline(u"{1}<br>", link_line(run.choices, run.plan, u"h4"));
    perhaps_flash(run.page, run.choices, run.plan.main_folder, run.lista_kw);
}

/// The links of the list of first-level pages, each the end of a table row.
std::vector<Text> link_rows(const Text& list) {
    std::vector<Text> pieces = Split(list, u"<a href=");
    pieces.erase(pieces.begin()); // what stands in front of the first link
    for (Text& piece : pieces)
        piece = fill(u"<a href={1}</a></td></tr>", TextView(piece).substr(0, piece.find(u"</a>")));
    return pieces;
}

} // namespace

void first_level_no_table(Run& run, const Text& keyword) {
    OpenPage& page = run.page;
    write_target_anchor(run);
    page.writeline(heading_pair(run.project.proyecto, keyword));
    write_headings(run, keyword);
    write_links(run);
    page.writeline(TP1_content(run, run.indice_kw));
    write_first_level_image(run);
    write_tail(run);
    page.writeline(TP1_elresto(run));
}

void first_level_table1(Run& run, const Text& keyword) {
    OpenPage& page = run.page;
    write_table1_open(page);
    write_band(page, run.choices); // holds nothing: a coloured strip
    page.writeline(u"</td></tr>");
    page.writeline(u"<tr>");
    write_side_cell(page, run.choices);
    page.writeline(font_line(run.choices));
    write_headings(run, keyword);
    write_links(run);
    page.writeline(u"</td><td valign=top>");
    page.writeline(font_line(run.choices));
    page.writeline(TP1_content(run, run.indice_kw));
    write_first_level_image(run);
    write_tail(run);
    page.writeline(TP1_elresto(run));
}

void first_level_table2(Run& run, const Text& keyword) {
    OpenPage& page = run.page;
    if (copy_table2_background(page, run.plan.main_folder))
        MsgBox(u"Some files needed for this template will be copied along with the generated pages.\n"
               u"The source for these files is " +
               templates_folder() + u", and you can modify them.");
    write_table2_head(page);
    page.writeline(heading_pair(run.project.proyecto, keyword));
    write_headings(run, keyword);
    write_green_box(page);
    page.writeline(u"<h3>");
    write_links(run);
    page.writeline(u"</h3>");
    write_body_table(page);
    page.writeline(run.synonyms.sinonimo(TP1_content(run, run.indice_kw))); // wanted or not
    write_first_level_image(run, false, u"<center>");
    write_tail(run);
    page.writeline(TP1_elresto(run));
}

void first_level_table3(Run& run, const Text& keyword) {
    OpenPage& page = run.page;
    write_table3_open(page, run.choices);
    write_target_anchor(run);
    page.writeline(heading_pair(run.project.proyecto, keyword));
    page.writeline(u"{1} <h2><u>{2}</u></h2>", run.settings.frases[0], keyword);
    page.writeline(u"<h3>{1}</h3>", captions_text(run.settings, run.project.proyecto, u" / "));
    page.writeline(u"</td></tr>");
    page.writeline(u"<tr><td valign=top width=20%>");
    write_side_list_open(page, run.choices);
    page.writeline(u"<tr>");
    page.writeline(uR"(<td bgcolor="#ffffcc">)");
    page.writeline(small_font_line(run.choices));
    page.writeline(u"{1}</font>", run.settings.frases[1]);
    page.writeline(u"</td></tr>");
    write_side_stripes(page, run.choices, link_rows(TP1_linktoprimary(run)));
    page.writeline(u"</table>");
    write_first_level_image(run, true);
    page.writeline(uR"(</td><td bgcolor="#ffffff" width=60%>)");
    page.writeline(TP1_content(run, run.indice_kw));
    write_first_level_image(run);
    write_tail(run);
    write_right_box(page, run.choices);
    page.writeline(TP1_linktosecondary(run));
    page.writeline(u"</font><br>");
    write_first_level_image(run, true);
    page.writeline(u"</td></tr></table>");
    page.writeline(u"</td></tr></table><br><br>");
    page.writeline(TP1_elresto(run));
}

} // namespace twk
