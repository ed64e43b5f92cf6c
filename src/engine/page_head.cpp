// SPDX-License-Identifier: MIT
#include "engine/page_head.h"

#include "engine/run.h"
#include "platform/chance.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"

namespace twk {

namespace {

bool on(float meta_switch) {
    return meta_switch == 1.0F;
}

} // namespace

void meta(Run& run, TextView titulo, TextView lista) {
    const GatewaySettings& s = run.settings;
    const Form6& form = run.form;
    const auto tag = [&run](TextView name, TextView value) {
        run.writeline(u"<meta name=\"" + Text(name) + u"\" " + run.settings.meta_atributo + u"=\"" +
                      Text(value) + u"\">");
    };
    if (on(s.meta_title)) tag(u"Title", titulo);
    const std::vector<TextView> entradas = split_views(lista, u",");
    Text d = run.proyecto.Description;
    if (entradas.size() >= 2)
        d = s.frases[0] + Text(titulo) + u" and " + Trim(entradas[0]) + u" and " + Trim(entradas[1]) +
            u" : " + d;
    if (on(s.meta_description)) tag(u"Description", d);
    if (on(s.meta_keywords)) tag(u"Keywords", trim_view(lista));
    if (on(s.meta_author)) tag(u"Author", run.proyecto.designer_name);
    if (on(s.meta_robot)) tag(u"Robot", s.robot_valor);
    if (on(s.meta_rating)) tag(u"Rating", u"General");
    if (on(s.meta_abstract)) // the first keyword serves all pages
        tag(u"Abstract",
            screen<Form2>().Text2[0].text() + u" " + run.tabla_kw.at(0, 0) + u" " + run.tabla_kw.at(0, 1));
    if (on(s.meta_language)) tag(u"Language", form.Combo5.text());
    if (on(s.meta_generator)) tag(u"Generator", u"Tarnwick");
    if (on(s.meta_classification)) tag(u"Classification", form.Combo7.text());
    if (form.Check1.value()) tag(u"Revisit-After", to_text(s.revisit_dias));
    run.writeline(u"</head>");
}

Text body(Run& run) {
    const Form6& form = run.form;
    Text b;
    if (form.Template[0].value()) {
        if (form.Option1.value()) b = u"<body bgcolor=\"" + form.Text1.text() + u"\">";
        if (form.Option2.value()) b = u"<body background=\"" + form.Text3.text() + u"\">";
    }
    if (form.Template[1].value()) b = u"<body topmargin=0 leftmargin=0>";
    if (form.Template[2].value())
        b = u"<body bgcolor=\"#ffffff\" topmargin=\"0\" leftmargin=\"0\" background=\"template2_back.gif\" "
            u"bgproperties=\"fixed\">";
    if (form.Check13.value() && run.fase < 3) // "ref" is what the tag says
        b += u"<a ref =\"" + module1().url_principal + u"\" ><script language=JavaScript> window.navigate('" +
             target(run) + u"')</script></a>";
    return b;
}

Text target(Run& run) {
    const ListBox& otros = screen<Form2>().List1;
    const Text& principal = module1().url_principal;
    if (otros.list_count() == 0) return principal;
    const int p = percent_draw();
    if (Val(run.form.Combo8.text()) > p) return principal;
    const int n = otros.list_count();
    double v = Int(chance().Rnd() * n * 11);
    while (v == n) v = Int(chance().Rnd() * n * 10);
    const Text& u = otros.list(static_cast<int>(Int(v / 9)));
    return u.empty() ? otros.list(n - 1) : u;
}

} // namespace twk
