// SPDX-License-Identifier: MIT
#include "engine/second_level.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/layouts.h"
#include "engine/page_head.h"
#include "engine/page_report.h"
#include "engine/run.h"
#include "engine/surplus.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/name_index.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

namespace twk {

namespace {

/// So many occurrences stay, whatever the settings say.
constexpr int kept_occurrences = 15;

/// Fault 5 for a count of occurrences from which so many cannot be kept.
void check_surplus(const GatewaySettings& s, int found) {
    if (found - kept_occurrences < -1)
        throw told_fault(fault_argument, u"The setting 1.c (most occurrences of a keyword) is " +
                                             to_text(s.max_repeticiones) + u"; 15 or more would do.");
}

/// Leaves the subkeyword as the count of its words does, for all that follows on the page.
void write_title(Run& run, Text& sub) {
    const GatewaySettings& s = run.settings;
    const Proyecto& p = run.project.proyecto;
    const bool alone = contar_palabras(sub) >= s.palabras_minimas;
    Text title = sub;
    if (!alone) // names the site twice as a rule
        title = cortar_palabras(sub + u" " + p.site_name + u" " + p.category, s.palabras_extracto) + u" " +
                p.site_name;
    run.page.writeline(u"<html><head><title>{1}</title>", title);
}

void write_page(Run& run, const Text& keyword, const Text& subkeyword, std::int16_t column) {
    const NameIndex::SoleWriter alone;
    OpenPage& page = run.page;
    SecondLevelPage sub{run, subkeyword};
    sub.nombre_relativo = rspaces(run.choices, keyword) + run.plan.separador +
                          rspaces(run.choices, subkeyword) + run.plan.extension;
    run.enlace_padre = keyword + run.plan.extension; // the keyword's blanks stay
    const Text path = run.plan.in_main_folder(sub.nombre_relativo);
    page.open(path);
    page.made.keyword = run.indice_kw;
    page.made.subkeyword = column;
    page.made.layout = run.choices.layout();
    write_title(run, sub.subkw_actual);
    meta(page, run.choices, run.project, sub.subkw_actual, Mid(run.lista_kw, 4));
    page.writeline(u"");
    switch (run.choices.layout()) {
    case Layout::no_table: second_level_no_table(sub); break;
    case Layout::table_1: second_level_table1(sub); break;
    case Layout::table_2:
    case Layout::table_3: second_level_table23(sub); break;
    case Layout::none: break; // a page without a middle
    }
    page.writeline(u"<br><br><hr width=30%>");
    page.writeline(u"");
    page.writeline(u"</body></html>");
    page.close();
    analizar_pagina(run, path);
}

/// The subkeywords of the keyword under way, to the first empty column.
template <class Visit> void each_subkeyword(const Run& run, Visit visit) {
    const KeywordTable& table = run.project.tabla_kw;
    for (int c = 1; c < max_columns && !table.at(run.indice_kw, c).empty(); ++c)
        visit(table.at(run.indice_kw, c));
}

/// Column of the keyword and of every subkeyword, each with the separator in front.
Text list_of_keyword(const Run& run) {
    Text list = u" , " + run.keyword();
    each_subkeyword(run, [&list](const Text& sub) { list += u" , " + sub; });
    return list;
}

/// The box for the hidden block; drawn again while it is empty, as all boxes past the last are.
int hidden_box(const Boxes& boxes, int bound) {
    const auto empty = [&](int b) { return b >= max_boxes || boxes.box(b).empty(); };
    bool any = !empty(0);
    for (int b = 1; b < bound && !any; ++b) any = !empty(b);
    if (!any)
        throw RuntimeFault(
            fault_project_lacks,
            u"All content boxes that a page could draw are empty; one with text in Step 3 would do.");
    int b = 0;
    do b = draw_below(bound);
    while (empty(b));
    return b;
}

/// Box `a`, a short one with the keyword list and box `b` behind it, and the sentences for the subkeyword.
Text with_sentences(SecondLevelPage& page, int a, int b, bool split) {
    Run& run = page.run;
    Boxes& boxes = run.boxes;
    const Text& sub = page.subkw_actual;
    const Text& first = boxes.box(a);
    const bool is_short = Len(first) < 300;
    std::vector<std::uint8_t>& drawn = run.page.made.boxes;
    drawn = {static_cast<std::uint8_t>(a)};
    if (is_short) drawn.push_back(static_cast<std::uint8_t>(b));
    constexpr FittingTo to_subkeyword{.which = 0, .row = -1, .density = 3};
    if (split && !is_short) { // a short one keeps its sentences together
        const SpacedText& spaced = boxes.spaced(a);
        return sub.empty() ? spaced.texto : fitted_text(run, spaced, sub, to_subkeyword);
    }
    Text text = is_short ? fill(u"{1}<p>{2}<p>{3}", first, run.lista_kw, boxes.box(b)) : first;
    return sub.empty() ? text : fitted_text(run, text, sub, to_subkeyword);
}

} // namespace

void second_level_pages(Run& run) {
    run.cuenta2 = run.cuenta1;
    run.indice_kw = 0;
    do {
        run.lista_kw = list_of_keyword(run);
        std::int16_t column = 0;
        each_subkeyword(run, [&](const Text& sub) { write_page(run, run.keyword(), sub, ++column); });
        ++run.indice_kw;
    } while (!run.keyword().empty());
    run.report.set_progress(run.report.progress() + 30);
}

Text second_level_url_comment(const SecondLevelPage& sub) {
    return fill(u"<!-- url {1}/{2}-->", sub.run.choices.main_host(), sub.nombre_relativo);
}

void write_link_stack(Run& run, TextView heading, bool always) {
    const PageChoices& choices = run.choices;
    const Text& k = run.keyword();
    const Text file = rspaces(choices, k);
    const Text& extension = run.plan.extension;
    run.page.writeline(uR"(<u><i><h1><a href="{1}{2}"><b>{3}</b></h1><font color="{4}"size=3>)"
                       uR"({5}:</a></i></u></font>)",
                       file, extension, k, choices.font_colour(), run.settings.frases[3]);
    if (!always && !choices.link_siblings()) return;
    each_subkeyword(run, [&](const Text& sub) {
        run.page.writeline(uR"(<{1}><a href="{2}{3}{4}{5}"><b>{6}</b></a></{1}>)", heading, file,
                           choices.word_separator(), rspaces(choices, sub), extension, sub);
    });
}

void write_content_block(SecondLevelPage& sub, bool split_sentences, bool count_file) {
    Run& run = sub.run;
    const GatewaySettings& s = run.settings;
    const Text k = run.keyword();
    const int a = xrnum2(run.boxes.ultima_caja);
    const int b = xrnum2(run.boxes.ultima_caja);
    Text texto_pagina = with_sentences(sub, a, b, split_sentences);
    texto_pagina = fitted_text(run, texto_pagina, k, {.which = 1, .row = run.indice_kw, .density = 2});
    PageRecord& made = run.page.made;
    made.empty_text = trim_view(texto_pagina).empty();
    run.report.status(u"Updating Second-Level Page");
    DoEvents();
    // The subkeyword is lower case from here on.
    const std::int16_t n = contar_kw(texto_pagina, sub.subkw_actual);
    made.own_count = n;
    if (!sub.subkw_actual.empty() && n >= s.max_repeticiones && run.choices.limit_repetitions()) {
        check_surplus(s, n);
        made.count_replaced(
            replace_last(texto_pagina, sub.subkw_actual, s.kw_sustituto, n - kept_occurrences));
    }
    run.report.status(u"Updating Second-Level Page");
    DoEvents();
    if (count_file) ++run.cuenta_archivos;
    // The caption speaks of random pages here, too.
    made.count_replaced(limit_keywords(run.project, s, run.report, texto_pagina, kept_occurrences));
    replace_all(texto_pagina, u". ", run.lista_kw); // the sentence ends go
    if (run.choices.highlight_keywords()) highLight(run.project, s, texto_pagina);
    run.page.writeline(u"<table border = 1 width=75% cellpadding=4><tr><td align=center><p>"
                       u"{1}</p></td></tr></table><br>",
                       texto_pagina);
}

void write_second_level_end(Run& run, int boxes) {
    const PageChoices& choices = run.choices;
    if (choices.animations() && percent_draw() < 30) {
        copy_flash_movie(run.page, run.plan.main_folder);
        write_flash_object(run.page, Replace(run.lista_kw, u",", u""));
    }
    if (choices.hidden_blocks()) {
        run.page.writeline(hidden_list(choices, run.lista_kw));
        const int b = hidden_box(run.boxes, boxes);
        // The keyword of the box's number; a box beyond the keywords has none.
        const KeywordTable& table = run.project.tabla_kw;
        run.page.writeline(hidden_field(b < table.rows() ? table.at(b) : Text(), run.boxes.box(b)));
    }
    run.page.writeline(link_line(choices, run.plan, u"h3"));
}

} // namespace twk
