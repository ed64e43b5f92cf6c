// SPDX-License-Identifier: MIT
#include "engine/second_level.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/generation.h"
#include "engine/page_file.h"
#include "engine/page_head.h"
#include "engine/page_report.h"
#include "engine/run.h"
#include "engine/surplus.h"
#include "engine/templates.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/name_index.h"
#include "platform/numbers.h"
#include "reports/form12.h"
#include "shell/form2.h"

namespace twk {

namespace {

/// So many occurrences stay, whatever the settings say.
constexpr int kept_occurrences = 15;

void write_title(Run& run, const Text& sub) {
    const GatewaySettings& s = run.settings;
    Text contado = sub;
    Text title = sub;
    if (contar_palabras(contado) < s.palabras_minimas) // names the site twice as a rule
        title = cortar_palabras(sub + u" " + run.proyecto.site_name + u" " + run.proyecto.category,
                                s.palabras_extracto) +
                u" " + run.proyecto.site_name;
    run.writeline(u"<html><head><title>" + title + u"</title>");
}

void write_page(Run& run, const Text& keyword) {
    const NameIndex::SteadyFolders steady;
    const Text sub = run.subkw_actual;
    run.nombre_relativo = rspaces(run.form, keyword) + run.separador + rspaces(run.form, sub) + run.extension;
    run.enlace_padre = keyword + run.extension; // the keyword's blanks stay
    const Text path = run.main_folder + Text(path_separator) + run.nombre_relativo;
    open_page(run, path);
    write_title(run, sub);
    meta(run, sub, Mid(run.lista_kw, 4));
    run.writeline(u"");
    switch (template_index(run)) {
    case 0: second_level_no_table(run); break;
    case 1: second_level_table1(run); break;
    case 2:
    case 3: second_level_table23(run); break;
    default: break; // no template chosen: a page without a middle
    }
    run.writeline(u"<br><br><hr width=30%>");
    run.writeline(u"");
    run.writeline(u"</body></html>");
    close_page(run, path);
    const Text main_name = Mid(run.main_folder, Len(run.project_folder) + 2);
    analizar_pagina(run, path,
                    screen<Form2>().txt_name[0].text() + u"\\" + main_name + u"\\" + run.nombre_relativo);
}

/// Column of the keyword and of every subkeyword, each with the separator in front.
Text list_of_keyword(const Run& run) {
    Text list;
    int c = 0;
    do list += u" , " + run.tabla_kw.at(run.indice_kw, c++);
    while (c < max_columns && !run.tabla_kw.at(run.indice_kw, c).empty());
    return list;
}

/// The box for the hidden block; drawn again while it is empty, as all boxes past the last are.
int hidden_box(Run& run, std::int16_t boxes) {
    const auto empty = [&](int b) { return b >= max_boxes || run.box(b).empty(); };
    bool any = !empty(0);
    for (int b = 1; b < boxes && !any; ++b) any = !empty(b);
    if (!any) throw RuntimeFault(fault_project_lacks, u"All content boxes that a page could draw are empty.");
    int b = 0;
    do b = static_cast<int>(Int(chance().Rnd() * boxes));
    while (empty(b));
    return b;
}

/// A split box, ready to get sentences.
const SpacedText& spaced_box(Run& run, int b) {
    std::unique_ptr<const SpacedText>& kept = run.contenidos_espaciados[static_cast<std::size_t>(b)];
    if (!kept) kept = std::make_unique<SpacedText>(split_box(run, b));
    return *kept;
}

/// Box `a`, a short one with the keyword list and box `b` behind it, and the sentences for the subkeyword.
Text with_sentences(Run& run, int a, int b, bool split) {
    const Text& sub = run.subkw_actual;
    const Text& first = run.box(a);
    const bool is_short = Len(first) < 300;
    if (split && !is_short) { // a short one keeps its sentences together
        const SpacedText& spaced = spaced_box(run, a);
        return sub.empty() ? spaced.texto : Ajustar_KW(run, spaced, sub, 3);
    }
    Text text = is_short ? first + u"<p>" + run.lista_kw + u"<p>" + run.box(b) : first;
    return sub.empty() ? text : Ajustar_KW(run, text, sub, 3);
}

} // namespace

void second_level_pages(Run& run) {
    run.cuenta2 = run.cuenta1;
    run.indice_kw = 0;
    do {
        run.lista_kw = list_of_keyword(run);
        for (int c = 1; c < max_columns && !run.tabla_kw.at(run.indice_kw, c).empty(); ++c) {
            run.subkw_actual = run.tabla_kw.at(run.indice_kw, c);
            write_page(run, run.tabla_kw.at(run.indice_kw));
        }
        ++run.indice_kw;
    } while (!run.tabla_kw.at(run.indice_kw).empty());
    ProgressBar& progress = screen<Form12>().ProgressBar1;
    progress.set_value(progress.value() + 30);
}

Text second_level_url_comment(const Run& run) {
    return u"<!-- url " + main_host(run) + u"/" + run.nombre_relativo + u"-->";
}

void write_link_stack(Run& run, TextView heading, bool always) {
    const Text& k = run.tabla_kw.at(run.indice_kw);
    const Text file = rspaces(run.form, k);
    run.writeline(u"<u><i><h1><a href=\"" + file + run.extension + u"\"><b>" + k +
                  u"</b></h1><font color=\"" + run.form.Text4.text() + u"\"size=3>" + run.settings.frases[3] +
                  u":</a></i></u></font>");
    if (!always && !run.form.Check12.value()) return;
    for (int c = 1; c < max_columns && !run.tabla_kw.at(run.indice_kw, c).empty(); ++c) {
        const Text& sub = run.tabla_kw.at(run.indice_kw, c);
        run.writeline(u"<" + Text(heading) + u"><a href=\"" + file + run.form.Combo6.text() +
                      rspaces(run.form, sub) + run.extension + u"\"><b>" + sub + u"</b></a></" +
                      Text(heading) + u">");
    }
}

void write_content_block(Run& run, bool split_sentences, bool count_file) {
    const Text k = run.tabla_kw.at(run.indice_kw);
    const int a = xrnum2(run.ultima_caja);
    const int b = xrnum2(run.ultima_caja);
    Text& text = run.texto_pagina;
    text = with_sentences(run, a, b, split_sentences);
    text = Ajustar_KW(run, text, k, 2);
    status(run, u"Updating Second-Level Page");
    DoEvents();
    const std::int16_t n = contar_kw(text, run.subkw_actual); // the subkeyword is lower case from here on
    if (!run.subkw_actual.empty() && n >= run.settings.max_repeticiones && run.form.Check8.value())
        replace_last(text, run.subkw_actual, run.settings.kw_sustituto, n - kept_occurrences);
    status(run, u"Updating Second-Level Page");
    DoEvents();
    if (count_file) ++run.cuenta_archivos;
    limit_keywords(run, text, kept_occurrences); // the caption speaks of random pages here, too
    replace_all(text, u". ", run.lista_kw);      // the sentence ends go
    if (run.form.Check6.value()) text = highLight(run, text);
    run.writeline({u"<table border = 1 width=75% cellpadding=4><tr><td align=center><p>", text,
                   u"</p></td></tr></table><br>"});
}

void write_second_level_end(Run& run, std::int16_t boxes) {
    if (run.form.Check4.value() && percent_draw() < 30) {
        copy_flash_movie(run, run.main_folder);
        write_flash_object(run, Replace(run.lista_kw, u",", u""));
    }
    if (run.form.Check3.value()) {
        run.writeline(hidden_list(run));
        const int b = hidden_box(run, boxes);
        // The keyword of the box's number; a box beyond the keywords has none.
        run.writeline(hidden_field(b < run.tabla_kw.rows() ? run.tabla_kw.at(b) : Text(), run.box(b)));
    }
    run.writeline(link_line(run, u"h3"));
}

} // namespace twk
