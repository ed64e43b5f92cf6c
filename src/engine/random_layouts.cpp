// SPDX-License-Identifier: MIT
#include "engine/fragments.h"
#include "engine/page_head.h"
#include "engine/random_content.h"
#include "engine/random_pages.h"
#include "engine/run.h"
#include "engine/table_fragments.h"
#include "engine/templates.h"
#include "shell/module1.h"

namespace twk {

namespace {

void write_body_and_comment(Run& run) {
    run.writeline(body(run));
    run.writeline(u"<center>");
    run.writeline(u"<!-- url " + run.url_pagina + u" -->");
}

void write_redirection(Run& run) {
    if (run.es_js == 1) run.writeline(redirect_script(run));
}

void write_list_line(Run& run) {
    run.writeline(u"<h3>" + run.settings.frases[5] + u"<u></h3><h2><li>" +
                  Replace(run.lista_kw, u",", u"<li>") + u"</h2></u><br>");
}

void write_plain_list_comment(Run& run) {
    run.writeline(list_comment(run, Replace(run.lista_kw, u",", u"")));
}

void write_list_comment(Run& run) {
    run.writeline(list_comment(run, run.lista_kw));
}

void write_boxes_line(Run& run) {
    run.writeline(run.settings.frases[9] + u"<h1><span style=\"background-color: #FF0151\">" +
                  Replace(UCase(run.lista_kw), u",", u"</b><b>") + u"</span></h1> " +
                  run.settings.rotulo_lista + u":<br>");
}

} // namespace

void random_no_table(Run& run) {
    run.writeline(body(run) + u"<center>");
    run.writeline(u"<!-- url " + run.url_pagina + u" -->");
    run.writeline(tp3_linktotarget(run));
    write_redirection(run);
    run.writeline(u"<table bgcolor=\"#FFBEBE\" border = 1 width=40% cellpadding=3 cellspacing=1>"
                  u"<tr><td bgcolor=\"#FF9999\" align=center>");
    run.writeline(tp3_cajadekeywords(run));
    run.writeline(u"</td></tr></table><br>");
    write_list_line(run);
    run.writeline(random_content(run));
    run.writeline(u"<br><br>");
    run.writeline(tp3_hiddenform(run));
    write_random_image(run);
    write_google_links(run);
    write_list_comment(run);
    write_custom_box(run);
    write_boxes_line(run);
}

void random_table1(Run& run) { // the only one without a hidden field
    write_body_and_comment(run);
    write_table1_open(run);
    write_band(run);
    run.writeline(u"<center>");
    run.writeline(tp3_linktotarget(run));
    write_redirection(run);
    run.writeline(u"</td></tr>");
    run.writeline(u"<tr>");
    write_side_cell(run);
    run.writeline(link_line(run, u"h3") + u"<br>");
    run.writeline(first_level_link(run));
    write_list_line(run);
    run.writeline(u"</td><td valign=top>");
    run.writeline(font_line(run));
    write_plain_list_comment(run);
    run.writeline(random_content(run));
    run.writeline(u"<br><br>");
    write_random_image(run);
    write_google_links(run);
    write_list_comment(run);
    write_custom_box(run);
    write_boxes_line(run);
}

void random_table2(Run& run) {
    write_body_and_comment(run);
    copy_table2_background(run, run.carpeta);
    write_table2_head(run);
    write_redirection(run);
    run.writeline(tp3_linktotarget(run));
    write_green_box(run);
    run.writeline(tp3_cajadekeywords(run));
    run.writeline(u"</td></tr></table><br>");
    write_list_line(run);
    write_plain_list_comment(run);
    run.writeline(random_content(run));
    run.writeline(u"<br><br>");
    run.writeline(tp3_hiddenform(run));
    write_random_image(run);
    write_google_links(run);
    write_list_comment(run);
    write_custom_box(run);
    write_boxes_line(run);
}

void random_table3(Run& run) { // the only one without the boxes line
    write_body_and_comment(run);
    write_table3_open(run);
    run.writeline(u"<center><a href=\"" + target(run) + u"\">");
    if (run.es_js == 1) // "ref" is what the tag says
        run.writeline(u"<a ref = \"" + module1().url_principal + u"\">" + redirect_script(run) + u"</a>");
    run.writeline(tp3_linktotarget(run));
    run.writeline(u"</td></tr>");
    run.writeline(u"<tr><td valign=top width=20%>");
    write_side_list_open(run);
    run.writeline(u"<tr><td bgcolor=\"#ffffcc\">");
    run.writeline(small_font_line(run));
    run.writeline(tp3_cajadekeywords(run));
    run.writeline(u"</font>");
    run.writeline(u"</td></tr>");
    std::vector<Text> rows = Split(run.lista_kw, u",");
    for (Text& row : rows) row = Trim(row) + u"</td></tr>";
    write_side_stripes(run, rows);
    run.writeline(u"</table>");
    run.writeline(u"</td><td bgcolor=\"#ffffff\" width=60%>");
    write_list_line(run);
    write_plain_list_comment(run);
    run.writeline(random_content(run));
    run.writeline(u"<br><br>");
    run.writeline(tp3_hiddenform(run));
    write_random_image(run);
    write_google_links(run);
    write_list_comment(run);
    write_custom_box(run);
    write_right_box(run);
    write_random_image(run);
    write_google_links(run);
    run.writeline(u"</font><br>");
    run.writeline(u"</td></tr></table>");
    run.writeline(u"</td></tr></table><br><br>");
}

} // namespace twk
