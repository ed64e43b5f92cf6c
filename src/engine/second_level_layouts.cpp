// SPDX-License-Identifier: MIT
#include "engine/fragments.h"
#include "engine/layouts.h"
#include "engine/page_head.h"
#include "engine/run.h"
#include "engine/second_level.h"
#include "engine/table_fragments.h"

namespace twk {

namespace {

void write_body_and_comment(SecondLevelPage& sub) {
    sub.run.page.writeline(body(sub.run.choices, sub.run.fase));
    sub.run.page.writeline(second_level_url_comment(sub));
}

/// Opens the anchor that a heading further down closes.
void write_target_anchor(Run& run) {
    run.page.writeline(uR"(<center><a href="{1}">)", target(run.choices));
}

} // namespace

void second_level_no_table(SecondLevelPage& sub) {
    Run& run = sub.run;
    const Proyecto& p = run.project.proyecto;
    write_body_and_comment(sub);
    write_target_anchor(run);
    write_link_stack(run, u"h2", false);
    run.page.writeline(u"<h1>{1}</h1></a>{2}", p.site_name, captions(run.settings, p));
    write_content_block(sub, true, false);
    write_second_level_end(run, run.project.n_keywords);
    write_custom_box(run.page, run.choices);
}

void second_level_table1(SecondLevelPage& sub) {
    Run& run = sub.run;
    OpenPage& page = run.page;
    const Proyecto& p = run.project.proyecto;
    write_body_and_comment(sub);
    write_table1_open(page);
    write_band(page, run.choices);
    write_target_anchor(run);
    write_link_stack(run, u"h1", true);
    page.writeline(u"</td></tr>");
    page.writeline(u"<tr>");
    write_side_cell(page, run.choices);
    page.writeline(u"<h3>{1}</h3></a>{2}", p.site_name, captions(run.settings, p));
    page.writeline(u"</td><td valign=top>");
    page.writeline(font_line(run.choices));
    write_content_block(sub, false, true);
    write_second_level_end(run, run.boxes.ultima_caja);
    page.writeline(u"</td></tr></table>");
    write_custom_box(page, run.choices);
}

void second_level_table23(SecondLevelPage& sub) {
    Run& run = sub.run;
    OpenPage& page = run.page;
    const Proyecto& p = run.project.proyecto;
    write_body_and_comment(sub);
    write_target_anchor(run);
    write_table2_head(page);
    page.writeline(heading_pair(p, run.keyword()));
    page.writeline(phrase_line(run.settings, run.keyword()));
    page.writeline(captions(run.settings, p));
    write_green_box(page);
    page.writeline(u"<h3>");
    write_target_anchor(run);
    write_link_stack(run, u"h1", true);
    page.writeline(u"</h3>");
    write_body_table(page);
    page.writeline(font_line(run.choices));
    write_content_block(sub, false, true);
    write_second_level_end(run, run.boxes.ultima_caja);
    page.writeline(u"</td></tr></table>");
    write_custom_box(page, run.choices);
}

} // namespace twk
