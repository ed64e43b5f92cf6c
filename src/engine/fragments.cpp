// SPDX-License-Identifier: MIT
#include "engine/fragments.h"

#include "engine/open_page.h"
#include "engine/page_choices.h"
#include "engine/page_head.h"
#include "engine/plan.h"
#include "engine/project.h"

namespace twk {

Text font_line(const PageChoices& choices) {
    return fill(uR"(<font color="{1}"face ="{2}" size=3>)", choices.font_colour(), choices.font_face());
}

Text small_font_line(const PageChoices& choices) {
    return fill(uR"(<font color="{1}"size="3">)", choices.font_colour());
}

Text captions_text(const GatewaySettings& settings, const Proyecto& proyecto, TextView join) {
    return fill(u"{1}: {2}{7}{3}: {4}{7}{5}: {6}", settings.rotulo_subject, proyecto.Title,
                settings.rotulo_description, proyecto.Description, settings.rotulo_category,
                proyecto.category, join);
}

Text captions(const GatewaySettings& settings, const Proyecto& proyecto) {
    return fill(u"<h3>{1}</h3><br>", captions_text(settings, proyecto));
}

Text heading_pair(const Proyecto& proyecto, TextView keyword) {
    return fill(u"<h1>{1} > {2}</h1></a>", keyword, proyecto.site_name);
}

Text phrase_line(const GatewaySettings& settings, TextView keyword) {
    return fill(u"{1} <h2><u>{2}</u></h2><br>", settings.frases[0], keyword);
}

Text link_line(const PageChoices& choices, const Plan& plan, TextView heading) {
    return fill(uR"(<{1}><a href="{2}/{3}">{4}</a></{1}>)", heading, choices.main_host(),
                plan.archivo_sitemap, choices.settings().frases[4]);
}

Text hidden_list(const PageChoices& choices, TextView list) {
    return fill(uR"(<font color="{1}"size="0"><br><br>{2}</font>)", choices.font_colour(), list);
}

Text hidden_field(TextView name, TextView content) {
    return fill(uR"(<input type=hidden name="{1}" content="{2}">)", name, content);
}

Text custom_box(const PageChoices& choices) {
    const Text& own = choices.own_html();
    return trim_view(own).empty() ? Text() : fill(u"<br>{1}<br>", own);
}

void write_custom_box(OpenPage& page, const PageChoices& choices) {
    if (const Text line = custom_box(choices); !line.empty()) page.writeline(line);
}

void write_background_cell(OpenPage& page, const PageChoices& choices, TextView attributes) {
    if (choices.coloured())
        page.writeline(uR"(<td {1} bgcolor="{2}">)", attributes, choices.background_colour());
    else if (choices.pictured())
        page.writeline(uR"(<td {1} background="{2}">)", attributes, choices.background_image());
}

Text redirect_script(const PageChoices& choices) {
    return fill(u"<script language=JavaScript> window.navigate('{1}')</script>", target(choices));
}

Text list_comment(const PageChoices& choices, TextView list) {
    return fill(u"<!--{1}/ {2}-->", choices.main_host(), list);
}

} // namespace twk
