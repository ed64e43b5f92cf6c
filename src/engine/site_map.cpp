// SPDX-License-Identifier: MIT
#include "engine/site_map.h"

#include "engine/fragments.h"
#include "engine/page_file.h"
#include "engine/page_head.h"
#include "engine/run.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace twk {

namespace {

Text kilobytes(const Text& path) {
    return to_text(static_cast<double>(FileLen(path)) / 1000);
}

// The legend's cells are left open, but for the headings and the empty one; "</font size=2 >" is meant.

Text cell(TextView colour) {
    return u"<td width=\"50%\" bgcolor=\"" + Text(colour) + u"\" align=\"center\">";
}

void write_heading_cell(Run& run, TextView text) {
    run.writeline(cell(u"#2A2AD4") + u"<i><b><font  size=2  color=\"#FFFFFF\">" + Text(text) +
                  u"</font size=2 ></b></i></td>");
}

void write_colour_cell(Run& run, TextView background, TextView colour, TextView text) {
    run.writeline(cell(background) + u"<font  size=2  color=\"" + Text(colour) + u"\">" + Text(text) +
                  u"</font size=2 >");
}

void write_legend(Run& run) {
    run.writeline(u"<center><table border=\"0\" cellpadding=\"5\" cellspacing=\"6\" width=\"70%\"><tr>");
    write_heading_cell(run, u"First & Second Level Pages");
    write_heading_cell(run, u"random-generated pages");
    run.writeline(u"</tr><tr>");
    write_colour_cell(run, u"#C0FFC0", u"#5C5B83", u"first-level page (keyword)");
    write_colour_cell(run, u"#FFBFBF", u"#5C5B83", u"pages with javascript redirection");
    run.writeline(u"</tr><tr>");
    write_colour_cell(run, u"#FFFFBD", u"#5C5B83", u"second-level page (subkeyword)");
    write_colour_cell(run, u"#FFD3FF", u"#5C5B83", u"Pure HTML random-generated pages");
    run.writeline(u"</tr><tr>");
    write_colour_cell(run, u"#FF5959", u"#FFFFFF", u"hallway page");
    write_colour_cell(run, u"#FF1F1F", u"#FFFFFF", u"index page (placed for security issues)");
    run.writeline(u"</tr><tr>");
    write_colour_cell(run, u"#EEEEEE", u"#00FFFF", u"&quot;read more&quot; pages");
    run.writeline(u"<td width=\"50%\" align=\"center\"></td>");
    run.writeline(u"</tr></table></center>");
    run.writeline(u"<br><br>");
    run.writeline(u"<table width=100%><tr><td valign=top>");
}

/// Number of the listed pages, then the folder's "size": the letters of its file names, by the thousand. It
/// counts in more than 16 bits, as a large project's names have more than 32767 letters.
void write_totals(Run& run, const Text& folder, int listed, TextView font) {
    run.writeline(u"<tr><td bgcolor=#FF70FF>" + to_text(listed) + u" pages.</td></tr>");
    std::int64_t t = 0;
    for (const Text& name : list_files(folder, u"*.*")) t += Len(name);
    run.writeline(u"<tr><td bgcolor=#E6E6E0>" + Text(font) + to_text(static_cast<double>(t) / 1000) +
                  u" Mb. occuped in .htm(l) + .gif + .swf (if selected) in this directory</td></tr>");
    run.writeline(u"</table>");
    run.writeline(u"</td>");
}

bool is_keyword(const Run& run, const Text& words) {
    for (int i = 0; i < run.n_keywords; ++i)
        if (run.tabla_kw.at(i) == words) return true;
    return false;
}

void write_main_row(Run& run, const Text& path, const Text& file) {
    const Text base = Replace(file, run.extension, u"");
    if (file.starts_with(u"sitemap")) {
        run.writeline(u"<tr><td bgcolor=#FF7070><b><a href=\"" + path + u"\"><b>" + base +
                      u"</b></a><br><i><font  size=2  color=\"#FFFFA6\">this file is a HALLWAY page.</font "
                      u"size=2 ></i></td></tr>");
        return;
    }
    Text colour = u"#FFFFBD";
    if (base.ends_with(u"_rm"))
        colour = u"#00ffff";
    else if (is_keyword(run, Replace(base, run.form.Combo6.text(), u" ")))
        colour = u"#C0FFC0";
    run.writeline(u"<tr><td bgcolor=" + colour + u"><a href=\"" + path + u"\">" + Replace(base, u"_", u" ") +
                  u"</a><font  size=2  size=1> - (" + kilobytes(path) + u" Kb.)</td></tr>");
}

void write_main_column(Run& run) {
    FileListBox& lister = run.form.File1;
    lister.set_path(run.main_folder);
    lister.set_pattern(u"*.htm");
    run.writeline(u"<table>");
    run.writeline(u"<tr><td bgcolor=\"#2A2AD4\"><font  size=2  color=\"#ffffff\">First & Second Level "
                  u"Pages<br><br><i>The content in this folder must be uploaded to " +
                  main_host(run) + u"</i></font size=2 ></td></tr>");
    for (const Text& file : lister.entries())
        if (!file.starts_with(u"SITEMAP-DO"))
            write_main_row(run, run.main_folder + Text(path_separator) + file, file);
    write_totals(run, run.main_folder, lister.list_count(), u"<font  size=2  color=\"#000000\">");
}

void write_random_row(Run& run, const Text& path, const Text& file) {
    const Text l = Replace(Replace(file, run.extension, u""), u"_", u" ");
    Text start = u"<tr><td bgcolor=#FFD3FF>";
    if (l.ends_with(u"js"))
        start = u"<tr><td bgcolor=#FFBFBF>";
    else if (file.starts_with(u"index"))
        start = u"<tr><td bgcolor=#FF1F1F><font  color=\"#ffffff\">";
    run.writeline(start + u"<a href=\"" + path + u"\">" + file + u"</a> <font  size=1> - (" +
                  kilobytes(path) + u" Kb.)</td></tr>");
}

/// What stands behind the folder of all projects.
Text shown_folder(const Text& folder) {
    const Text projects = Text(path_separator) + u"Projects" + Text(path_separator);
    const int at = InStr(folder, projects);
    return at == 0 ? folder : Mid(folder, at + Len(projects));
}

void write_random_column(Run& run, const Text& folder) {
    run.writeline(u"<td valign=top>");
    run.writeline(u"<table>");
    run.writeline(u"<tr><td bgcolor=\"#2A2AD4\"><font  size=2 color=\"#ffffff\">RANDOM-GENERATED PAGES for "
                  u"directory <b>" +
                  shown_folder(folder) + u"</b></font></td></tr>");
    if (folder.ends_with(u"More_Files"))
        run.writeline(u"<tr><td bgcolor=\"#2A2AD4\" align=\"center\"><font  size=2 color=\"#ffffff\">"
                      u"This directory was created to separate 'first & second level pages' from the "
                      u"'random-generated pages'. Files in this directory must be also uploaded to " +
                      main_host(run) +
                      u". <br><br>Some images can be duplicated, you can either skip or overwrite them."
                      u"</font></td></tr>");
    run.writeline(u"<tr><td bgcolor=#FFBFBF>(pages in this color redirect to your main URL)</td></tr>");
    FileListBox& lister = run.form.File1;
    lister.set_path(folder);
    lister.set_pattern(u"*.htm*");
    for (const Text& file : lister.entries())
        write_random_row(run, folder + Text(path_separator) + file, file);
    write_totals(run, folder, lister.list_count(), u"<font  color=\"#000000\">");
}

/// A folder kept from before: "old" stands ten units before the end of its name.
bool is_old(const Text& folder) {
    return Len(folder) >= 13 && Trim(Left(Right(folder, 13), 3)) == u"old";
}

void write_head(Run& run) {
    if (run.form.Check1.value())
        run.writeline(u"<meta name=\"Revisit-After\" content=\"" + to_text(run.settings.revisit_dias) +
                      u"\">");
    run.writeline(u"<meta name=\"robots\" " + run.settings.meta_atributo + u"=\"all,index,follow\">");
    run.writeline(u"<html><head><title>" + run.proyecto.site_name + u" " + main_host(run) + u"/</title>");
    run.writeline(body(run));
    run.writeline(u"<h2>Gateway Site Map</h2>");
    run.writeline(u"<font  face=verdana size=3>These are the generated gateway pages. There is a different "
                  u"directory for each destination domain. Upload each page to its "
                  u"correspondingdomain/subdomain, otherwise the links will be broken.<p>");
}

void write_tail(Run& run) {
    run.writeline(u"</tr></table><center>");
    run.writeline(
        u"<br><br>After uploading these files you should make a link from your site to the <a href=\"" +
        main_host(run) + u"/" + run.archivo_sitemap +
        u"\">Hallway Page</a>, in order to make the gateway pages visible to the SE spiders.");
    run.writeline(u"</body></html>");
}

} // namespace

void sitemap_local(Run& run) {
    run.mensaje_error = u"Error creating local SITEMAP";
    const Text path = run.project_folder + Text(path_separator) + u"SITEMAP-DO-NOT-UPLOAD.HTM";
    open_page(run, path);
    write_head(run);
    write_legend(run);
    write_main_column(run);
    DirListBox& folders = run.form.Dir1;
    folders.set_path(run.project_folder);
    const Text main_name = Mid(run.main_folder, Len(run.project_folder) + 2);
    for (const Text& folder : folders.entries())
        if (!is_old(folder) && !folder.ends_with(main_name)) write_random_column(run, folder);
    write_tail(run);
    close_page(run, path);
}

} // namespace twk
