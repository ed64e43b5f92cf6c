// SPDX-License-Identifier: MIT
#include "engine/fragments.h"

#include "engine/page_head.h"
#include "engine/run.h"
#include "inputs/form7.h"

namespace twk {

const Text& main_host(const Run&) {
    return screen<Form7>().Text2.text();
}

Text font_line(const Run& run) {
    return u"<font color=\"" + run.form.Text4.text() + u"\"face =\"" + run.form.combo1.text() + u"\" size=3>";
}

Text small_font_line(const Run& run) {
    return u"<font color=\"" + run.form.Text4.text() + u"\"size=\"3\">";
}

Text captions_text(const Run& run, TextView join) {
    const GatewaySettings& s = run.settings;
    return s.rotulo_subject + u": " + run.proyecto.Title + Text(join) + s.rotulo_description + u": " +
           run.proyecto.Description + Text(join) + s.rotulo_category + u": " + run.proyecto.category;
}

Text captions(const Run& run) {
    return u"<h3>" + captions_text(run) + u"</h3><br>";
}

Text heading_pair(const Run& run, TextView keyword) {
    return u"<h1>" + Text(keyword) + u" > " + run.proyecto.site_name + u"</h1></a>";
}

Text phrase_line(const Run& run, TextView keyword) {
    return run.settings.frases[0] + u" <h2><u>" + Text(keyword) + u"</u></h2><br>";
}

Text link_line(const Run& run, TextView heading) {
    return u"<" + Text(heading) + u"><a href=\"" + main_host(run) + u"/" + run.archivo_sitemap + u"\">" +
           run.settings.frases[4] + u"</a></" + Text(heading) + u">";
}

Text hidden_list(const Run& run) {
    return u"<font color=\"" + run.form.Text4.text() + u"\"size=\"0\"><br><br>" + run.lista_kw + u"</font>";
}

Text split_sentences(TextView text) {
    return Replace(text, u". ", u". <p>");
}

const Text& split_box(Run& run, int b) {
    std::optional<Text>& kept = run.contenidos_partidos[static_cast<std::size_t>(b)];
    if (!kept) kept = split_sentences(run.box(b));
    return *kept;
}

Text hidden_field(TextView name, TextView content) {
    return u"<input type=hidden name=\"" + Text(name) + u"\" content=\"" + Text(content) + u"\">";
}

Text custom_box(const Run& run) {
    const Text& own = run.form.Text2.text();
    return trim_view(own).empty() ? Text() : u"<br>" + own + u"<br>";
}

void write_custom_box(Run& run) {
    if (const Text line = custom_box(run); !line.empty()) run.writeline(line);
}

void write_background_cell(Run& run, TextView attributes) {
    const Form6& form = run.form;
    if (form.Option1.value())
        run.writeline(u"<td " + Text(attributes) + u" bgcolor=\"" + form.Text1.text() + u"\">");
    else if (form.Option2.value())
        run.writeline(u"<td " + Text(attributes) + u" background=\"" + form.Text3.text() + u"\">");
}

Text redirect_script(Run& run) {
    return u"<script language=JavaScript> window.navigate('" + target(run) + u"')</script>";
}

Text list_comment(const Run& run, TextView list) {
    return u"<!--" + main_host(run) + u"/ " + Text(list) + u"-->";
}

} // namespace twk
