// SPDX-License-Identifier: MIT
#include "engine/decorations.h"
#include "engine/first_level.h"
#include "engine/fragments.h"
#include "engine/page_head.h"
#include "engine/run.h"
#include "engine/synonyms.h"
#include "engine/table_fragments.h"
#include "engine/templates.h"
#include "platform/desktop.h"

namespace twk {

namespace {

const Text& current_keyword(const Run& run) {
    return run.tabla_kw.at(run.indice_kw);
}

void write_link_line(Run& run) {
    run.writeline(link_line(run, u"h4") + u"<br>");
}

/// The links of the list of first-level pages, each the end of a table row.
std::vector<Text> link_rows(const Text& list) {
    std::vector<Text> pieces = Split(list, u"<a href=");
    pieces.erase(pieces.begin()); // what stands in front of the first link
    for (Text& piece : pieces) piece = u"<a href=" + piece.substr(0, piece.find(u"</a>")) + u"</a></td></tr>";
    return pieces;
}

} // namespace

void first_level_no_table(Run& run) {
    run.writeline(u"<center><a href=\"" + target(run) + u"\">");
    run.writeline(heading_pair(run, current_keyword(run)));
    run.writeline(phrase_line(run, current_keyword(run)));
    run.writeline(captions(run));
    run.writeline(TP1_linktoprimary(run));
    run.writeline(TP1_linktosecondary(run));
    run.writeline(TP1_content(run, run.indice_kw));
    write_first_level_image(run);
    run.writeline(TP1_hiddenform(run));
    write_link_line(run);
    perhaps_flash(run, run.main_folder, run.lista_kw);
    run.writeline(TP1_elresto(run));
}

void first_level_table1(Run& run) {
    write_table1_open(run);
    write_band(run); // holds nothing: a coloured strip
    run.writeline(u"</td></tr>");
    run.writeline(u"<tr>");
    write_side_cell(run);
    run.writeline(font_line(run));
    run.writeline(phrase_line(run, current_keyword(run)));
    run.writeline(captions(run));
    run.writeline(TP1_linktoprimary(run));
    run.writeline(TP1_linktosecondary(run));
    run.writeline(u"</td><td valign=top>");
    run.writeline(font_line(run));
    run.writeline(TP1_content(run, run.indice_kw));
    write_first_level_image(run);
    run.writeline(TP1_hiddenform(run));
    write_link_line(run);
    perhaps_flash(run, run.main_folder, run.lista_kw);
    run.writeline(TP1_elresto(run));
}

void first_level_table2(Run& run) {
    if (copy_table2_background(run, run.main_folder))
        MsgBox(u"Some files needed for this template will be copied along with the generated pages.\n"
               u"The source for these files is " +
               templates_folder() + u", and you can modify them.");
    write_table2_head(run);
    run.writeline(heading_pair(run, current_keyword(run)));
    run.writeline(phrase_line(run, current_keyword(run)));
    run.writeline(captions(run));
    write_green_box(run);
    run.writeline(u"<h3>");
    run.writeline(TP1_linktoprimary(run));
    run.writeline(TP1_linktosecondary(run));
    run.writeline(u"</h3>");
    write_body_table(run);
    run.writeline(sinonimo(run, TP1_content(run, run.indice_kw))); // whatever Check5 says
    write_first_level_image(run, false, u"<center>");
    run.writeline(TP1_hiddenform(run));
    write_link_line(run);
    perhaps_flash(run, run.main_folder, run.lista_kw);
    run.writeline(TP1_elresto(run));
}

void first_level_table3(Run& run) {
    write_table3_open(run);
    run.writeline(u"<center><a href=\"" + target(run) + u"\">");
    run.writeline(heading_pair(run, current_keyword(run)));
    run.writeline(run.settings.frases[0] + u" <h2><u>" + current_keyword(run) + u"</u></h2>");
    run.writeline(u"<h3>" + captions_text(run, u" / ") + u"</h3>");
    run.writeline(u"</td></tr>");
    run.writeline(u"<tr><td valign=top width=20%>");
    write_side_list_open(run);
    run.writeline(u"<tr>");
    run.writeline(u"<td bgcolor=\"#ffffcc\">");
    run.writeline(small_font_line(run));
    run.writeline(run.settings.frases[1] + u"</font>");
    run.writeline(u"</td></tr>");
    write_side_stripes(run, link_rows(TP1_linktoprimary(run)));
    run.writeline(u"</table>");
    write_first_level_image(run, true);
    run.writeline(u"</td><td bgcolor=\"#ffffff\" width=60%>");
    run.writeline(TP1_content(run, run.indice_kw));
    write_first_level_image(run);
    run.writeline(TP1_hiddenform(run));
    write_link_line(run);
    perhaps_flash(run, run.main_folder, run.lista_kw);
    write_right_box(run);
    run.writeline(TP1_linktosecondary(run));
    run.writeline(u"</font><br>");
    write_first_level_image(run, true);
    run.writeline(u"</td></tr></table>");
    run.writeline(u"</td></tr></table><br><br>");
    run.writeline(TP1_elresto(run));
}

} // namespace twk
