// SPDX-License-Identifier: MIT
#include "engine/first_level.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/generation.h"
#include "engine/page_file.h"
#include "engine/page_head.h"
#include "engine/page_report.h"
#include "engine/run.h"
#include "engine/templates.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/name_index.h"
#include "platform/numbers.h"
#include "reports/form12.h"

namespace twk {

namespace {

void write_title(Run& run, const Text& keyword) {
    const GatewaySettings& s = run.settings;
    Text contado = keyword;
    const bool alone = contar_palabras(contado) >= s.palabras_minimas;
    const Text title =
        alone ? keyword
              : cortar_palabras(keyword + u" " + run.proyecto.site_name + u" " + run.proyecto.category,
                                s.palabras_extracto);
    run.writeline(u"<html><head><title>" + title + u"</title>");
}

void write_page(Run& run) {
    const NameIndex::SteadyFolders steady;
    const Text keyword = run.tabla_kw.at(run.indice_kw);
    const Text file = rspaces(run.form, keyword) + run.extension;
    const Text path = run.main_folder + Text(path_separator) + file;
    open_page(run, path);
    write_title(run, keyword);
    meta(run, keyword, run.lista_kw);
    run.writeline(u"");
    run.writeline(body(run));
    switch (template_index(run)) {
    case 0: first_level_no_table(run); break;
    case 1: first_level_table1(run); break;
    case 2: first_level_table2(run); break;
    case 3: first_level_table3(run); break;
    default: break; // no template chosen: a page without a middle
    }
    run.writeline(u"</body></html>");
    close_page(run, path);
    analizar_pagina(run, path, main_host(run) + u"/" + file);
    ProgressBar& progress = screen<Form12>().ProgressBar1;
    progress.set_value(progress.value() + Int(25.0 / run.n_keywords) / 1.7);
}

/// Text of the box that the keyword's ties lead to; nothing when it has none.
std::optional<Text> tied_text(Run& run, const Text& keyword) {
    const Text pid = to_text(run.form.pid_form);
    Recordset tie =
        run.base_datos.OpenRecordset(u"select * from ties , keywords where ties.pid = " + pid +
                                     u" and ties.keyid = keywords.keyid and keywords.keyword = '" + keyword +
                                     u"' and keywords.pid = " + pid);
    if (tie.eof()) return std::nullopt;
    Text text;
    for (Recordset box = run.base_datos.OpenRecordset(u"select  *  from content where cid = " +
                                                      to_text(CInt(tie.Fields(u"cid").number())));
         !box.eof(); box.MoveNext())
        text = box.Fields(u"content").text();
    return text;
}

/// Box for a keyword without a tie.
int chosen_box(Run& run, int k) {
    int b = 0;
    for (int i = 0; i <= run.ultima_caja;
         ++i) // the density is compared with the index held, not with a density
        if (run.densidades[static_cast<std::size_t>(i)].at(static_cast<std::size_t>(k)) > b) b = i;
    if (b == 0) b = static_cast<int>(Int(chance().Rnd() * run.ultima_caja));
    return b;
}

} // namespace

Text joined_keywords(const Run& run) {
    Text list;
    int r = 0;
    do list += u" , " + run.tabla_kw.at(r++);
    while (!trim_view(run.tabla_kw.at(r)).empty());
    return list;
}

void first_level_pages(Run& run) {
    run.indice_kw = 0;
    do {
        if (trim_view(run.lista_kw).empty()) {
            run.lista_kw = joined_keywords(run);
            if (Len(run.lista_kw) > 3 && run.lista_kw.starts_with(u" , "))
                run.lista_kw = Trim(Mid(run.lista_kw, 4));
        }
        write_page(run);
        ++run.indice_kw;
    } while (!run.tabla_kw.at(run.indice_kw).empty());
}

Text TP1_linktoprimary(Run& run) {
    Text s = font_line(run) + u"<br>" + run.settings.frases[1] + u"<br><h3>";
    int i = 0;
    do {
        const Text& keyword = run.tabla_kw.at(i);
        s += to_text(i + 1) + u". <a href=\"" + rspaces(run.form, keyword) + run.extension + u"\"><b>" +
             keyword + u"</b></a><br>";
        ++i;
    } while (!run.tabla_kw.at(i).empty());
    s += u"</h3><br>";
    return s + u"<font color=\"" + run.form.Text4.text() + u"\"size=3>" + run.settings.frases[2] +
           u":</font>";
}

Text TP1_linktosecondary(Run& run) {
    const Text keyword = rspaces(run.form, run.tabla_kw.at(run.indice_kw));
    const Text separator = Trim(run.form.Combo6.text());
    Text s;
    int c = 1;
    do {
        const Text& sub = run.tabla_kw.at(run.indice_kw, c);
        s += u"<h3><a href=\"" + keyword + separator + rspaces(run.form, sub) + run.extension + u"\"><b>" +
             sub + u"</b></a></h3>";
        ++c;
    } while (!run.tabla_kw.at(run.indice_kw, c).empty());
    return s;
}

Text TP1_content(Run& run, int k) {
    const Text keyword = run.tabla_kw.at(k);
    Text t;
    if (std::optional<Text> tied = tied_text(run, keyword)) {
        t = std::move(*tied); // as it was typed
        if (run.form.Check15.value()) t = recalcular(run, t, keyword);
    } else {
        t = recalcular(run, run.box(chosen_box(run, k)), keyword);
    }
    status(run, u"Optimizing First-Level Page");
    if (run.form.Check6.value()) t = highLight(run, t);
    Text s = u"<p>" + t + u"<p>" + list_comment(run, run.lista_kw);
    replace_all(s, u". ", u".<p>"); // in the comment, too
    return s;
}

Text TP1_hiddenform(Run& run) {
    if (!run.form.Check3.value()) return {};
    return hidden_list(run) + hidden_field(run.tabla_kw.at(0), run.box(0));
}

Text TP1_elresto(Run& run) {
    Text s = custom_box(run) + u"<br><br><hr width=50%><font size=1>";
    if (!trim_view(run.proyecto.designer_url).empty())
        s += run.settings.rotulo_webmaster + u" " + run.proyecto.designer_url + u"<br>";
    if (!trim_view(run.proyecto.designer_name).empty()) s += u"By " + run.proyecto.designer_name + u"<br>";
    return s + u"</font><br><br>";
}

void write_first_level_image(Run& run, bool letter, TextView before) {
    if (!run.form.Check2.value()) return;
    const Text& keyword = run.tabla_kw.at(run.indice_kw);
    Text stem = keyword;
    if (letter) {
        int number = xrnum(25);
        stem += u" " + letra(number);
    }
    const Text alt = Trim(keyword + u" " + run.lista_kw);
    run.writeline(Text(before) + imagen(run, run.fase, alt, run.main_folder,
                                        preparar_texto(LCase(rspaces(run.form, stem)))));
}

} // namespace twk
