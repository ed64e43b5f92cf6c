// SPDX-License-Identifier: MIT
#include "engine/site_map.h"

#include "engine/fragments.h"
#include "engine/page_head.h"
#include "engine/run.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

#include <unordered_set>

namespace twk {

namespace {

Text kilobytes(const OpenPage& page, const Text& path) {
    return to_text(static_cast<double>(page.size_of(path)) / 1000);
}

// The legend's cells are left open, but for the headings and the empty one; "</font size=2 >" is meant.

void write_heading_cell(OpenPage& page, TextView text) {
    page.writeline(
        uR"(<td width="50%" bgcolor="#2A2AD4" align="center"><i><b><font  size=2  color="#FFFFFF">)"
        uR"({1}</font size=2 ></b></i></td>)",
        text);
}

void write_colour_cell(OpenPage& page, TextView background, TextView colour, TextView text) {
    page.writeline(
        uR"(<td width="50%" bgcolor="{1}" align="center"><font  size=2  color="{2}">{3}</font size=2 >)",
        background, colour, text);
}

void write_legend(OpenPage& page) {
    page.writeline(uR"(<center><table border="0" cellpadding="5" cellspacing="6" width="70%"><tr>)");
    write_heading_cell(page, u"First & Second Level Pages");
    write_heading_cell(page, u"random-generated pages");
    page.writeline(u"</tr><tr>");
    write_colour_cell(page, u"#C0FFC0", u"#5C5B83", u"first-level page (keyword)");
    write_colour_cell(page, u"#FFBFBF", u"#5C5B83", u"pages with javascript redirection");
    page.writeline(u"</tr><tr>");
    write_colour_cell(page, u"#FFFFBD", u"#5C5B83", u"second-level page (subkeyword)");
    write_colour_cell(page, u"#FFD3FF", u"#5C5B83", u"Pure HTML random-generated pages");
    page.writeline(u"</tr><tr>");
    write_colour_cell(page, u"#FF5959", u"#FFFFFF", u"hallway page");
    write_colour_cell(page, u"#FF1F1F", u"#FFFFFF", u"index page (placed for security issues)");
    page.writeline(u"</tr><tr>");
    write_colour_cell(page, u"#EEEEEE", u"#00FFFF", u"&quot;read more&quot; pages");
    page.writelines(uR"(
<td width="50%" align="center"></td>
</tr></table></center>
<br><br>
<table width=100%><tr><td valign=top>)");
}

/// Number of the listed pages, then the folder's "size": the letters of its file names, by the thousand. It
/// counts in more than 16 bits, as a large project's names have more than 32767 letters.
void write_totals(OpenPage& page, const Text& folder, int listed, TextView font) {
    page.writeline(u"<tr><td bgcolor=#FF70FF>{1} pages.</td></tr>", to_text(listed));
    std::int64_t t = 0;
    for (const Text& name : list_files(folder, u"*.*")) t += Len(name);
    page.writeline(u"<tr><td bgcolor=#E6E6E0>{1}{2} Mb. occuped in .htm(l) + .gif + .swf (if selected) in "
                   u"this directory</td></tr>",
                   font, to_text(static_cast<double>(t) / 1000));
    page.writeline(u"</table>");
    page.writeline(u"</td>");
}

using Keywords = std::unordered_set<TextView>;

void write_main_row(Run& run, const Keywords& keywords, const Text& path, const Text& file) {
    const Text base = Replace(file, run.plan.extension, u"");
    if (file.starts_with(u"sitemap")) {
        run.page.writeline(uR"(<tr><td bgcolor=#FF7070><b><a href="{1}"><b>{2}</b></a><br><i>)"
                           uR"(<font  size=2  color="#FFFFA6">this file is a HALLWAY page.</font size=2 >)"
                           uR"(</i></td></tr>)",
                           path, base);
        return;
    }
    TextView colour = u"#FFFFBD";
    if (base.ends_with(u"_rm"))
        colour = u"#00ffff";
    else if (keywords.contains(Replace(base, run.choices.word_separator(), u" ")))
        colour = u"#C0FFC0";
    run.page.writeline(
        uR"(<tr><td bgcolor={1}><a href="{2}">{3}</a><font  size=2  size=1> - ({4} Kb.)</td></tr>)", colour,
        path, Replace(base, u"_", u" "), kilobytes(run.page, path));
}

void write_main_column(Run& run) {
    const Text& folder = run.plan.main_folder;
    const std::vector<Text> files = run.choices.files_in(folder, u"*.htm");
    run.page.writeline(u"<table>");
    run.page.writeline(uR"(<tr><td bgcolor="#2A2AD4"><font  size=2  color="#ffffff">First & Second Level )"
                       uR"(Pages<br><br><i>The content in this folder must be uploaded to {1}</i>)"
                       uR"(</font size=2 ></td></tr>)",
                       run.choices.main_host());
    const std::vector<Text>& known = run.project.keywords();
    const Keywords keywords(known.begin(), known.end());
    for (const Text& file : files)
        if (!file.starts_with(u"SITEMAP-DO"))
            write_main_row(run, keywords, run.plan.in_main_folder(file), file);
    write_totals(run.page, folder, size_of(files), uR"(<font  size=2  color="#000000">)");
}

void write_random_row(Run& run, const Text& path, const Text& file) {
    const Text l = Replace(Replace(file, run.plan.extension, u""), u"_", u" ");
    TextView start = u"<tr><td bgcolor=#FFD3FF>";
    if (l.ends_with(u"js"))
        start = u"<tr><td bgcolor=#FFBFBF>";
    else if (file.starts_with(u"index"))
        start = uR"(<tr><td bgcolor=#FF1F1F><font  color="#ffffff">)";
    run.page.writeline(uR"({1}<a href="{2}">{3}</a> <font  size=1> - ({4} Kb.)</td></tr>)", start, path, file,
                       kilobytes(run.page, path));
}

/// What stands behind the folder of all projects.
Text shown_folder(const Text& folder) {
    const Text projects = joined_path(u"", u"Projects", u"");
    const int at = InStr(folder, projects);
    return at == 0 ? folder : Mid(folder, at + Len(projects));
}

void write_random_column(Run& run, const Text& folder) {
    OpenPage& page = run.page;
    page.writeline(u"<td valign=top>");
    page.writeline(u"<table>");
    page.writeline(uR"(<tr><td bgcolor="#2A2AD4"><font  size=2 color="#ffffff">RANDOM-GENERATED PAGES for )"
                   uR"(directory <b>{1}</b></font></td></tr>)",
                   shown_folder(folder));
    if (folder.ends_with(u"More_Files"))
        page.writeline(uR"(<tr><td bgcolor="#2A2AD4" align="center"><font  size=2 color="#ffffff">)"
                       uR"(This directory was created to separate 'first & second level pages' from the )"
                       uR"('random-generated pages'. Files in this directory must be also uploaded to )"
                       uR"({1}. <br><br>Some images can be duplicated, you can either skip or overwrite )"
                       uR"(them.</font></td></tr>)",
                       run.choices.main_host());
    page.writeline(u"<tr><td bgcolor=#FFBFBF>(pages in this color redirect to your main URL)</td></tr>");
    const std::vector<Text> files = run.choices.files_in(folder, u"*.htm*");
    for (const Text& file : files) write_random_row(run, joined_path(folder, file), file);
    write_totals(page, folder, size_of(files), uR"(<font  color="#000000">)");
}

/// A folder kept from before: "old" stands ten units before the end of its name.
bool is_old(const Text& folder) {
    return Len(folder) >= 13 && Trim(Left(Right(folder, 13), 3)) == u"old";
}

void write_head(Run& run) {
    OpenPage& page = run.page;
    if (run.choices.revisit_tag())
        page.writeline(uR"(<meta name="Revisit-After" content="{1}">)", to_text(run.settings.revisit_dias));
    page.writeline(uR"(<meta name="robots" {1}="all,index,follow">)", run.settings.meta_atributo);
    page.writeline(u"<html><head><title>{1} {2}/</title>", run.project.proyecto.site_name,
                   run.choices.main_host());
    page.writeline(body(run.choices, run.fase));
    page.writeline(u"<h2>Gateway Site Map</h2>");
    page.writeline(u"<font  face=verdana size=3>These are the generated gateway pages. There is a different "
                   u"directory for each destination domain. Upload each page to its "
                   u"correspondingdomain/subdomain, otherwise the links will be broken.<p>");
}

void write_tail(Run& run) {
    run.page.writeline(u"</tr></table><center>");
    run.page.writeline(uR"(<br><br>After uploading these files you should make a link from your site to the )"
                       uR"(<a href="{1}/{2}">Hallway Page</a>, in order to make the gateway pages visible )"
                       uR"(to the SE spiders.)",
                       run.choices.main_host(), run.plan.archivo_sitemap);
    run.page.writeline(u"</body></html>");
}

} // namespace

void sitemap_local(Run& run) {
    run.mensaje_error = u"Error creating local SITEMAP";
    run.page.open(joined_path(run.plan.project_folder, u"SITEMAP-DO-NOT-UPLOAD.HTM"));
    write_head(run);
    write_legend(run.page);
    write_main_column(run);
    const Text main_name = run.plan.main_folder_name();
    const std::vector<Text> folders = run.choices.folders_in(run.plan.project_folder);
    for (const Text& folder : folders)
        if (!is_old(folder) && !folder.ends_with(main_name)) write_random_column(run, folder);
    write_tail(run);
    run.page.close();
}

} // namespace twk
