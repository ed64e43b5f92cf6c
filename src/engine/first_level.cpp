// SPDX-License-Identifier: MIT
#include "engine/first_level.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/layouts.h"
#include "engine/page_head.h"
#include "engine/page_report.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/name_index.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

#include <algorithm>

namespace twk {

namespace {

/// Leaves the keyword as the count of its words does, for the head and the headings of the page.
void write_title(Run& run, Text& keyword) {
    const GatewaySettings& s = run.settings;
    const Proyecto& p = run.project.proyecto;
    const bool alone = contar_palabras(keyword) >= s.palabras_minimas;
    const Text title =
        alone ? keyword
              : cortar_palabras(keyword + u" " + p.site_name + u" " + p.category, s.palabras_extracto);
    run.page.writeline(u"<html><head><title>{1}</title>", title);
}

void write_page(Run& run) {
    const NameIndex::SoleWriter alone;
    Text keyword = run.keyword();
    const Text path = run.plan.in_main_folder(rspaces(run.choices, keyword) + run.plan.extension);
    OpenPage& page = run.page;
    page.open(path);
    page.made.keyword = run.indice_kw;
    page.made.layout = run.choices.layout();
    write_title(run, keyword);
    meta(page, run.choices, run.project, keyword, run.lista_kw);
    page.writeline(u"");
    page.writeline(body(run.choices, run.fase));
    switch (run.choices.layout()) {
    case Layout::no_table: first_level_no_table(run, keyword); break;
    case Layout::table_1: first_level_table1(run, keyword); break;
    case Layout::table_2: first_level_table2(run, keyword); break;
    case Layout::table_3: first_level_table3(run, keyword); break;
    case Layout::none: break; // a page without a middle
    }
    page.writeline(u"</body></html>");
    page.close();
    analizar_pagina(run, path);
    run.report.set_progress(run.report.progress() + Int(25.0 / run.project.n_keywords) / 1.7);
}

/// Text of the box that the keyword's ties lead to; nothing when it has none. `cid` gets the box's key.
std::optional<Text> tied_text(Run& run, const Text& keyword, std::int16_t& cid) {
    const std::int16_t pid = run.choices.project_key();
    Database& store = run.project.base_datos;
    const Recordset tie = store.OpenRecordset(
        {u"select * from ties , keywords where ties.pid = {} and ties.keyid = keywords.keyid and "
         u"keywords.keyword = '{}' and keywords.pid = {}",
         pid, keyword, pid});
    if (tie.eof()) return std::nullopt;
    cid = CInt(tie.Fields(u"cid").number());
    Text text;
    for (const auto box : store.OpenRecordset({u"select  *  from content where cid = {}", cid}))
        text = box.Fields(u"content").text();
    return text;
}

/// Box for a keyword without a tie, noted in the page's record.
int chosen_box(const Boxes& boxes, int k, PageRecord& made) {
    int b = 0;
    for (int i = 0; i <= boxes.ultima_caja; ++i)
        if (at(at(boxes.densidades, i), k) > b) b = i; // compared with the box held, not with its density
    made.choice = b == 0 ? BoxChoice::drawn : BoxChoice::densest;
    if (b == 0) b = draw_below(boxes.ultima_caja);
    made.boxes.push_back(static_cast<std::uint8_t>(b));
    return b;
}

} // namespace

bool first_level_reads_density(Run& run) {
    const auto blank = [](const Text& box) { return trim_view(box).empty(); };
    const auto& boxes = run.boxes.contenidos;
    if (std::any_of(boxes.begin(), boxes.begin() + run.boxes.ultima_caja + 1, blank))
        return false; // a page may draw it
    if (run.choices.fit_tied_texts()) return true;
    int k = 0;
    std::int16_t cid = 0;
    do
        if (!tied_text(run, run.project.tabla_kw.at(k), cid)) return true;
    while (!run.project.tabla_kw.at(++k).empty());
    return false;
}

void first_level_pages(Run& run) {
    run.indice_kw = 0;
    do {
        if (trim_view(run.lista_kw).empty()) {
            run.lista_kw = run.project.joined_keywords();
            if (Len(run.lista_kw) > 3 && run.lista_kw.starts_with(u" , "))
                run.lista_kw = Trim(Mid(run.lista_kw, 4));
        }
        write_page(run);
        ++run.indice_kw;
    } while (!run.keyword().empty());
}

Text TP1_linktoprimary(const Run& run) {
    const GatewaySettings& s = run.settings;
    Text list = fill(u"{1}<br>{2}<br><h3>", font_line(run.choices), s.frases[1]);
    int i = 0;
    do {
        const Text& keyword = run.project.tabla_kw.at(i);
        list += fill(uR"({1}. <a href="{2}{3}"><b>{4}</b></a><br>)", to_text(i + 1),
                     rspaces(run.choices, keyword), run.plan.extension, keyword);
        ++i;
    } while (!run.project.tabla_kw.at(i).empty());
    return list +
           fill(uR"(</h3><br><font color="{1}"size=3>{2}:</font>)", run.choices.font_colour(), s.frases[2]);
}

Text TP1_linktosecondary(const Run& run) {
    const Text keyword = rspaces(run.choices, run.keyword());
    const Text separator = Trim(run.choices.word_separator());
    const KeywordTable& table = run.project.tabla_kw;
    Text list;
    int c = 1;
    do {
        const Text& sub = table.at(run.indice_kw, c);
        list += fill(uR"(<h3><a href="{1}{2}{3}{4}"><b>{5}</b></a></h3>)", keyword, separator,
                     rspaces(run.choices, sub), run.plan.extension, sub);
        ++c;
    } while (!table.at(run.indice_kw, c).empty());
    return list;
}

Text TP1_content(Run& run, int k) {
    const Text keyword = run.project.tabla_kw.at(k);
    PageRecord& made = run.page.made;
    Text t;
    std::int16_t cid = 0;
    if (std::optional<Text> tied = tied_text(run, keyword, cid)) {
        t = std::move(*tied); // as it was typed
        made.choice = BoxChoice::tied;
        made.boxes.push_back(run.boxes.number_of(cid));
        if (run.choices.fit_tied_texts()) t = recalcular(run, t, keyword);
    } else {
        t = recalcular(run, run.boxes.box(chosen_box(run.boxes, k, made)), keyword);
    }
    made.empty_text = trim_view(t).empty();
    run.report.status(u"Optimizing First-Level Page");
    if (run.choices.highlight_keywords()) highLight(run.project, run.settings, t);
    Text s = fill(u"<p>{1}<p>{2}", t, list_comment(run.choices, run.lista_kw));
    replace_all(s, u". ", u".<p>"); // in the comment, too
    return s;
}

Text TP1_hiddenform(const Run& run) {
    if (!run.choices.hidden_blocks()) return {};
    return hidden_list(run.choices, run.lista_kw) +
           hidden_field(run.project.tabla_kw.at(0), run.boxes.box(0));
}

Text TP1_elresto(const Run& run) {
    const Proyecto& p = run.project.proyecto;
    Text s = custom_box(run.choices) + u"<br><br><hr width=50%><font size=1>";
    if (!trim_view(p.designer_url).empty())
        s += fill(u"{1} {2}<br>", run.settings.rotulo_webmaster, p.designer_url);
    if (!trim_view(p.designer_name).empty()) s += fill(u"By {1}<br>", p.designer_name);
    return s + u"</font><br><br>";
}

void write_first_level_image(Run& run, bool letter, TextView before) {
    if (!run.choices.pictures_wanted()) return;
    Text stem = run.keyword();
    if (letter) {
        int number = xrnum(25);
        stem += u" " + letra(number);
    }
    const Text alt = Trim(run.keyword() + u" " + run.lista_kw);
    stem = preparar_texto(LCase(rspaces(run.choices, stem)));
    run.page.writeline({before, imagen(run, run.fase, alt, run.plan.main_folder, stem)});
}

} // namespace twk
