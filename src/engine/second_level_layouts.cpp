// SPDX-License-Identifier: MIT
#include "engine/fragments.h"
#include "engine/page_head.h"
#include "engine/run.h"
#include "engine/second_level.h"
#include "engine/table_fragments.h"
#include "engine/templates.h"

namespace twk {

namespace {

/// Opens the anchor that a heading further down closes.
void write_target_anchor(Run& run) {
    run.writeline(u"<center><a href=\"" + target(run) + u"\">");
}

} // namespace

void second_level_no_table(Run& run) {
    run.writeline(body(run));
    run.writeline(second_level_url_comment(run));
    write_target_anchor(run);
    write_link_stack(run, u"h2", false);
    run.writeline(u"<h1>" + run.proyecto.site_name + u"</h1></a>" + captions(run));
    write_content_block(run, true, false);
    write_second_level_end(run, run.n_keywords);
    write_custom_box(run);
}

void second_level_table1(Run& run) {
    run.writeline(body(run));
    run.writeline(second_level_url_comment(run));
    write_table1_open(run);
    write_band(run);
    write_target_anchor(run);
    write_link_stack(run, u"h1", true);
    run.writeline(u"</td></tr>");
    run.writeline(u"<tr>");
    write_side_cell(run);
    run.writeline(u"<h3>" + run.proyecto.site_name + u"</h3></a>" + captions(run));
    run.writeline(u"</td><td valign=top>");
    run.writeline(font_line(run));
    write_content_block(run, false, true);
    write_second_level_end(run, run.ultima_caja);
    run.writeline(u"</td></tr></table>");
    write_custom_box(run);
}

void second_level_table23(Run& run) {
    const Text keyword = run.tabla_kw.at(run.indice_kw);
    run.writeline(body(run));
    run.writeline(second_level_url_comment(run));
    write_target_anchor(run);
    write_table2_head(run);
    run.writeline(heading_pair(run, keyword));
    run.writeline(phrase_line(run, keyword));
    run.writeline(captions(run));
    write_green_box(run);
    run.writeline(u"<h3>");
    write_target_anchor(run);
    write_link_stack(run, u"h1", true);
    run.writeline(u"</h3>");
    write_body_table(run);
    run.writeline(font_line(run));
    write_content_block(run, false, true);
    write_second_level_end(run, run.ultima_caja);
    run.writeline(u"</td></tr></table>");
    write_custom_box(run);
}

} // namespace twk
