// SPDX-License-Identifier: MIT
#include "engine/fragments.h"
#include "engine/layouts.h"
#include "engine/page_head.h"
#include "engine/random_pages.h"
#include "engine/run.h"
#include "engine/table_fragments.h"
#include "platform/module1.h"

namespace twk {

namespace {

void write_body_and_comment(RandomPhase& phase) {
    phase.run.page.writeline(body(phase.run.choices, phase.run.fase));
    phase.run.page.writeline(u"<center>");
    phase.run.page.writeline(u"<!-- url {1} -->", phase.url_pagina);
}

void write_redirection(RandomPhase& phase) {
    if (phase.es_js) phase.run.page.writeline(redirect_script(phase.run.choices));
}

void write_list_line(Run& run) {
    run.page.writeline(u"<h3>{1}<u></h3><h2><li>{2}</h2></u><br>", run.settings.frases[5],
                       Replace(run.lista_kw, u",", u"<li>"));
}

void write_plain_list_comment(Run& run) {
    run.page.writeline(list_comment(run.choices, Replace(run.lista_kw, u",", u"")));
}

void write_list_comment(Run& run) {
    run.page.writeline(list_comment(run.choices, run.lista_kw));
}

void write_content(RandomPhase& phase) {
    phase.run.page.writeline(random_content(phase.run, phase.pool));
    phase.run.page.writeline(u"<br><br>");
}

/// What stands behind the content and its hidden field in every layout.
void write_tail(RandomPhase& phase) {
    Run& run = phase.run;
    write_random_image(phase);
    write_google_links(run);
    write_list_comment(run);
    write_custom_box(run.page, run.choices);
}

void write_boxes_line(Run& run) {
    run.page.writeline(uR"({1}<h1><span style="background-color: #FF0151">{2}</span></h1> {3}:<br>)",
                       run.settings.frases[9], Replace(UCase(run.lista_kw), u",", u"</b><b>"),
                       run.settings.rotulo_lista);
}

} // namespace

void random_no_table(RandomPhase& phase) {
    Run& run = phase.run;
    OpenPage& page = run.page;
    page.writeline(u"{1}<center>", body(run.choices, run.fase));
    page.writeline(u"<!-- url {1} -->", phase.url_pagina);
    page.writeline(tp3_linktotarget(run));
    write_redirection(phase);
    page.writeline(uR"(<table bgcolor="#FFBEBE" border = 1 width=40% cellpadding=3 cellspacing=1>)"
                   uR"(<tr><td bgcolor="#FF9999" align=center>)");
    page.writeline(tp3_cajadekeywords(run));
    page.writeline(u"</td></tr></table><br>");
    write_list_line(run);
    write_content(phase);
    page.writeline(tp3_hiddenform(run));
    write_tail(phase);
    write_boxes_line(run);
}

void random_table1(RandomPhase& phase) { // the only one without a hidden field
    Run& run = phase.run;
    OpenPage& page = run.page;
    write_body_and_comment(phase);
    write_table1_open(page);
    write_band(page, run.choices);
    page.writeline(u"<center>");
    page.writeline(tp3_linktotarget(run));
    write_redirection(phase);
    page.writeline(u"</td></tr>");
    page.writeline(u"<tr>");
    write_side_cell(page, run.choices);
    page.writeline(u"{1}<br>", link_line(run.choices, run.plan, u"h3"));
    page.writeline(first_level_link(run));
    write_list_line(run);
    page.writeline(u"</td><td valign=top>");
    page.writeline(font_line(run.choices));
    write_plain_list_comment(run);
    write_content(phase);
    write_tail(phase);
    write_boxes_line(run);
}

void random_table2(RandomPhase& phase) {
    Run& run = phase.run;
    OpenPage& page = run.page;
    write_body_and_comment(phase);
    copy_table2_background(page, phase.carpeta);
    write_table2_head(page);
    write_redirection(phase);
    page.writeline(tp3_linktotarget(run));
    write_green_box(page);
    page.writeline(tp3_cajadekeywords(run));
    page.writeline(u"</td></tr></table><br>");
    write_list_line(run);
    write_plain_list_comment(run);
    write_content(phase);
    page.writeline(tp3_hiddenform(run));
    write_tail(phase);
    write_boxes_line(run);
}

void random_table3(RandomPhase& phase) { // the only one without the boxes line
    Run& run = phase.run;
    OpenPage& page = run.page;
    write_body_and_comment(phase);
    write_table3_open(page, run.choices);
    page.writeline(uR"(<center><a href="{1}">)", target(run.choices));
    if (phase.es_js) // "ref" is what the tag says
        page.writeline(uR"(<a ref = "{1}">{2}</a>)", module1().url_principal, redirect_script(run.choices));
    page.writeline(tp3_linktotarget(run));
    page.writeline(u"</td></tr>");
    page.writeline(u"<tr><td valign=top width=20%>");
    write_side_list_open(page, run.choices);
    page.writeline(uR"(<tr><td bgcolor="#ffffcc">)");
    page.writeline(small_font_line(run.choices));
    page.writeline(tp3_cajadekeywords(run));
    page.writeline(u"</font>");
    page.writeline(u"</td></tr>");
    std::vector<Text> rows = Split(run.lista_kw, u",");
    for (Text& row : rows) row = fill(u"{1}</td></tr>", trim_view(row));
    write_side_stripes(page, run.choices, rows);
    page.writeline(u"</table>");
    page.writeline(uR"(</td><td bgcolor="#ffffff" width=60%>)");
    write_list_line(run);
    write_plain_list_comment(run);
    write_content(phase);
    page.writeline(tp3_hiddenform(run));
    write_tail(phase);
    write_right_box(page, run.choices);
    write_random_image(phase);
    write_google_links(run);
    page.writeline(u"</font><br>");
    page.writeline(u"</td></tr></table>");
    page.writeline(u"</td></tr></table><br><br>");
}

} // namespace twk
