// SPDX-License-Identifier: MIT
#include "engine/page_head.h"

#include "engine/fragments.h"
#include "engine/open_page.h"
#include "engine/page_choices.h"
#include "engine/project.h"
#include "platform/chance.h"
#include "platform/module1.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

namespace twk {

namespace {

bool on(float meta_switch) {
    return meta_switch == 1.0F;
}

} // namespace

void meta(OpenPage& page, const PageChoices& choices, const Project& project, TextView titulo,
          TextView lista) {
    const GatewaySettings& s = choices.settings();
    const Proyecto& p = project.proyecto;
    const auto tag = [&](TextView name, TextView value) {
        page.writeline(uR"(<meta name="{1}" {2}="{3}">)", name, s.meta_atributo, value);
    };
    if (on(s.meta_title)) tag(u"Title", titulo);
    const std::vector<TextView> entradas = split_views(lista, u",");
    Text d = p.Description;
    if (entradas.size() >= 2)
        d = fill(u"{1}{2} and {3} and {4} : {5}", s.frases[0], titulo, trim_view(entradas[0]),
                 trim_view(entradas[1]), p.Description);
    if (on(s.meta_description)) tag(u"Description", d);
    if (on(s.meta_keywords)) tag(u"Keywords", trim_view(lista));
    if (on(s.meta_author)) tag(u"Author", p.designer_name);
    if (on(s.meta_robot)) tag(u"Robot", s.robot_valor);
    if (on(s.meta_rating)) tag(u"Rating", u"General");
    if (on(s.meta_abstract)) // the first keyword serves all pages
        tag(u"Abstract",
            choices.site_name() + u" " + project.tabla_kw.at(0, 0) + u" " + project.tabla_kw.at(0, 1));
    if (on(s.meta_language)) tag(u"Language", choices.language());
    if (on(s.meta_generator)) tag(u"Generator", u"Tarnwick");
    if (on(s.meta_classification)) tag(u"Classification", choices.classification());
    if (choices.revisit_tag()) tag(u"Revisit-After", to_text(s.revisit_dias));
    page.writeline(u"</head>");
}

Text body(const PageChoices& choices, int fase) {
    Text b;
    switch (choices.layout()) {
    case Layout::no_table:
        if (choices.coloured()) b = fill(uR"(<body bgcolor="{1}">)", choices.background_colour());
        if (choices.pictured()) b = fill(uR"(<body background="{1}">)", choices.background_image());
        break;
    case Layout::table_1: b = u"<body topmargin=0 leftmargin=0>"; break;
    case Layout::table_2:
        b = uR"(<body bgcolor="#ffffff" topmargin="0" leftmargin="0" background="template2_back.gif" )"
            uR"(bgproperties="fixed">)";
        break;
    default: break;
    }
    if (choices.redirect_by_script() && fase < 3) // "ref" is what the tag says
        b += fill(uR"(<a ref ="{1}" >{2}</a>)", module1().url_principal, redirect_script(choices));
    return b;
}

Text target(const PageChoices& choices) {
    const std::vector<Text>& otros = choices.other_targets();
    const Text& principal = module1().url_principal;
    if (otros.empty()) return principal;
    const int p = percent_draw();
    if (Val(choices.main_target_share()) > p) return principal;
    const int n = size_of(otros);
    int v = draw_below(n * 11);
    while (v == n) v = draw_below(n * 10);
    const int index = v / 9; // may lie past the last one, which is taken then
    return index < n && !at(otros, index).empty() ? at(otros, index) : otros.back();
}

} // namespace twk
