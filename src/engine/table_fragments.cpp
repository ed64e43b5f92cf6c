// SPDX-License-Identifier: MIT
#include "engine/table_fragments.h"

#include "engine/fragments.h"
#include "engine/page_file.h"
#include "engine/run.h"
#include "platform/desktop.h"

namespace twk {

namespace {

/// The background as the end of a table's tag; an image address serves as a colour, too.
Text table_background(const Run& run) {
    const Form6& form = run.form;
    if (form.Option1.value()) return u" bgcolor=\"" + form.Text1.text() + u"\">";
    if (form.Option2.value()) return u" bgcolor=\"" + form.Text3.text() + u"\">";
    return {};
}

} // namespace

void write_table1_open(Run& run) {
    run.writeline(u"<table border=0 cellpadding=10 cellspacing=0 width=100%> ");
    run.writeline(u"<tr>");
}

void write_band(Run& run) {
    write_background_cell(run, u"colspan=2");
}

void write_side_cell(Run& run) {
    write_background_cell(run, u"width=25% valign=top");
}

void write_table2_head(Run& run) {
    run.writeline(u"<div align=\"left\" style=\"width: 730; height: 1\"></div>"
                  u"<hr>"
                  u"<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" width=\"100%\">"
                  u"<tr><td width=\"730\" bgcolor=\"#C0C0C0\">");
}

void write_green_box(Run& run) {
    run.writeline(u"</td></tr></table><br><center>");
    run.writeline(u"<table bgcolor=\"#A6E6A8\" border = 1 width=40% cellpadding=3 cellspacing=1>"
                  u"<tr><td bgcolor=\"#A6E6A8\" align=center>");
}

void write_body_table(Run& run) {
    run.writeline(u"</td></tr></table><br>");
    run.writeline(u"<div align=\"left\">");
    run.writeline(u"<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" width=\"100%\" height=\"105\">");
    run.writeline(u"<tr>");
    run.writeline(u"<td width=\"123\" height=\"21\"></td>");
    run.writeline(u"<td width=\"591\" height=\"21\">");
}

Text templates_folder() {
    const Text sep(path_separator);
    return app_path() + sep + u"images" + sep + u"templates";
}

bool copy_table2_background(Run& run, const Text& folder) {
    const Text file = Text(path_separator) + u"template2_back.gif";
    if (run.fso.FileExists(folder + file)) return false;
    copy_into_project(run, templates_folder() + file, folder + file);
    return true;
}

void write_table3_open(Run& run) {
    run.writeline(u"<table width=100% cellpadding=3 cellspacing=0 border=1 ");
    run.writeline(table_background(run));
    run.writeline(u"<tr><td colspan=3>");
}

void write_side_list_open(Run& run) {
    run.writeline(u"<table border=0 cellpadding=1 cellspacing=1 width=100% ");
    run.writeline(table_background(run));
}

void write_side_stripes(Run& run, const std::vector<Text>& rows) {
    bool white = true;
    for (const Text& row : rows) {
        run.writeline(u"<tr>");
        run.writeline(white ? u"<td bgcolor=\"#ffffff\">" : u"<td bgcolor=\"#ffffcc\">");
        run.writeline(small_font_line(run));
        run.writeline(row);
        run.writeline(u"</font>");
        white = !white;
    }
}

void write_right_box(Run& run) {
    run.writeline(u"</td><td width=20% valign=top>");
    run.writeline(u"<table border=1 cellpadding=1 cellspacing=1 width=100% bgcolor=\"#ffffcc\">");
    run.writeline(u"<tr><td align=center>");
    run.writeline(small_font_line(run));
}

} // namespace twk
