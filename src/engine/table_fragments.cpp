// SPDX-License-Identifier: MIT
#include "engine/table_fragments.h"

#include "engine/fragments.h"
#include "engine/open_page.h"
#include "engine/page_choices.h"
#include "platform/desktop.h"

namespace twk {

namespace {

/// The background as the end of a table's tag; an image address serves as a colour, too.
Text table_background(const PageChoices& choices) {
    if (!choices.coloured() && !choices.pictured()) return {};
    return fill(uR"( bgcolor="{1}">)",
                choices.coloured() ? choices.background_colour() : choices.background_image());
}

} // namespace

void write_table1_open(OpenPage& page) {
    page.writeline(u"<table border=0 cellpadding=10 cellspacing=0 width=100%> ");
    page.writeline(u"<tr>");
}

void write_band(OpenPage& page, const PageChoices& choices) {
    write_background_cell(page, choices, u"colspan=2");
}

void write_side_cell(OpenPage& page, const PageChoices& choices) {
    write_background_cell(page, choices, u"width=25% valign=top");
}

void write_table2_head(OpenPage& page) {
    page.writeline(uR"(<div align="left" style="width: 730; height: 1"></div>)"
                   uR"(<hr>)"
                   uR"(<table border="0" cellpadding="0" cellspacing="0" width="100%">)"
                   uR"(<tr><td width="730" bgcolor="#C0C0C0">)");
}

void write_green_box(OpenPage& page) {
    page.writeline(u"</td></tr></table><br><center>");
    page.writeline(uR"(<table bgcolor="#A6E6A8" border = 1 width=40% cellpadding=3 cellspacing=1>)"
                   uR"(<tr><td bgcolor="#A6E6A8" align=center>)");
}

void write_body_table(OpenPage& page) {
    page.writelines(uR"(
</td></tr></table><br>
<div align="left">
<table border="0" cellpadding="0" cellspacing="0" width="100%" height="105">
<tr>
<td width="123" height="21"></td>
<td width="591" height="21">)");
}

Text templates_folder() {
    return beside_program(u"images/templates");
}

bool copy_table2_background(OpenPage& page, const Text& folder) {
    constexpr TextView file = u"template2_back.gif";
    const Text copy = joined_path(folder, file);
    if (page.fso.FileExists(copy)) return false;
    page.copy_into_project(joined_path(templates_folder(), file), copy);
    return true;
}

void write_table3_open(OpenPage& page, const PageChoices& choices) {
    page.writeline(u"<table width=100% cellpadding=3 cellspacing=0 border=1 ");
    page.writeline(table_background(choices));
    page.writeline(u"<tr><td colspan=3>");
}

void write_side_list_open(OpenPage& page, const PageChoices& choices) {
    page.writeline(u"<table border=0 cellpadding=1 cellspacing=1 width=100% ");
    page.writeline(table_background(choices));
}

void write_side_stripes(OpenPage& page, const PageChoices& choices, const std::vector<Text>& rows) {
    bool white = true;
    for (const Text& row : rows) {
        page.writeline(u"<tr>");
        page.writeline(uR"(<td bgcolor="{1}">)", white ? u"#ffffff" : u"#ffffcc");
        page.writeline(small_font_line(choices));
        page.writeline(row);
        page.writeline(u"</font>");
        white = !white;
    }
}

void write_right_box(OpenPage& page, const PageChoices& choices) {
    page.writelines(uR"(
</td><td width=20% valign=top>
<table border=1 cellpadding=1 cellspacing=1 width=100% bgcolor="#ffffcc">
<tr><td align=center>)");
    page.writeline(small_font_line(choices));
}

} // namespace twk
