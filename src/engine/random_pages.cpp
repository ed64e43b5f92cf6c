// SPDX-License-Identifier: MIT
#include "engine/random_pages.h"

#include "engine/cross_links.h"
#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/index_page.h"
#include "engine/layouts.h"
#include "engine/page_head.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "platform/addresses.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/module1.h"
#include "platform/name_index.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

namespace twk {

namespace {

/// Name of the page, and what depends on it. A name that stands in the folder already gets the page's number.
Text take_name(RandomPhase& phase, int destination, int n, int c) {
    Run& run = phase.run;
    const Text& extension = run.plan.extension;
    Text x = at(run.plan.paginas, n).name;
    const Text base = Replace(x, extension, u"");
    phase.es_js = base.ends_with(u"_js");
    if (run.page.fso.FileExists(joined_path(phase.carpeta, x + extension)))
        x = phase.es_js ? Left(base, Len(base) - 3) + to_text(c) + u"_js" : base + to_text(c);
    phase.url_pagina = phase.url_host + u"\\" + base + extension;
    const Text& host = destination == 0 ? run.choices.main_host() : phase.url_host;
    at(run.plan.ultima_por_host, destination) = host + u"\\" + LCase(x);
    return x; // as it stands: only names that Step 6 has shown bring their extension
}

/// The list of three terms that a page starts with serves nothing, but its draws count.
void draw_unused_list(const Project& project) {
    for (int i = 0; i < 3; ++i) xrnum2(project.n_terminos - 1);
}

Text drawn_term(const Project& project) {
    Text term;
    while (term.empty()) term = at(project.terminos, xrnum(CInt(project.total_terminos)));
    return term;
}

const Text& drawn_keyword(const Project& project) {
    return project.tabla_kw.at(xrnum(project.n_keywords));
}

void write_title(Run& run) {
    const Proyecto& p = run.project.proyecto;
    Text a = drawn_term(run.project);
    const Text e = drawn_term(run.project);
    Text title;
    if (contar_palabras(a) >= run.settings.palabras_minimas) {
        title = a;
    } else {
        const int words = xrnum(5) + run.settings.palabras_extracto;
        title = cortar_palabras(a + u" " + p.category + u" " + e + u" " + p.site_name, words);
    }
    run.page.writeline(u"<html><head><title>{1}</title>", title);
}

void write_page(RandomPhase& phase, int destination, int n, int c) {
    const NameIndex::SoleWriter alone;
    Run& run = phase.run;
    OpenPage& page = run.page;
    const Text path = joined_path(phase.carpeta, take_name(phase, destination, n, c));
    draw_unused_list(run.project);
    page.open(path);
    write_title(run);
    const int row = xrnum(run.project.n_keywords);
    run.lista_kw = run.project.tabla_kw.at(row) + u" , " + run.choices.category();
    page.made.keyword = static_cast<std::int16_t>(row);
    page.made.layout = run.choices.layout();
    write_random_head(run, run.settings.meta_atributo);
    if (run.choices.animations()) copy_flash_movie(page, phase.carpeta);
    switch (run.choices.layout()) {
    case Layout::no_table: random_no_table(phase); break;
    case Layout::table_1: random_table1(phase); break;
    case Layout::table_2: random_table2(phase); break;
    case Layout::table_3: random_table3(phase); break;
    case Layout::none: break; // a page without a middle
    }
    page.writeline(u"</td></tr></table><center>");
    page.writeline(font_line(run.choices)); // the cross-links bring the closing tags
    page.close();
    run.made_pages.insert_or_assign(LCase(path), page.made);
}

/// Folder and host of a destination; the first one is the main host's second folder.
void enter_destination(RandomPhase& phase, int destination) {
    const PageChoices& choices = phase.run.choices;
    if (destination > 0) phase.url_host = at(choices.secondary_hosts(), destination - 1);
    phase.carpeta =
        destination_folder(phase.run.plan.project_folder,
                           destination == 0 ? choices.main_host() + u"_More_Files" : phase.url_host);
    const FencedPath folder = phase.run.page.fence->within(phase.carpeta);
    if (!dir_exists(phase.carpeta)) MkDir(folder);
}

/// A row below the first is there to be drawn.
bool has_keyword_to_draw(const Project& project) {
    for (int r = 1; r <= project.n_keywords; ++r)
        if (!project.tabla_kw.at(r).empty()) return true;
    return false;
}

constexpr TextView lacks_second_keyword =
    u"The project has one keyword only: a random page that links needs a second one.";

} // namespace

void random_pages(Run& run) {
    RandomPhase phase{run, ContentPool(run.boxes)};
    run.cuenta3 = run.cuenta2;
    const int last = size_of(run.choices.secondary_hosts());
    run.plan.ultima_por_host.assign(run.choices.secondary_hosts().size() + 1, Text());
    int n = 0;
    for (int d = 0; d <= last; ++d) {
        enter_destination(phase, d);
        if (run.settings.indice_extra == 1) index_page(run, phase.carpeta);
        for (int c = 0; c < run.plan.paginas_host; ++c, ++n) {
            write_page(phase, d, n, c);
            ++run.indice_kw;
        }
        cross_link_pass(run, phase.carpeta);
    }
    run.made_pages.clear();
}

void write_random_head(Run& run, TextView revisit_attribute) {
    const GatewaySettings& s = run.settings;
    const PageChoices& choices = run.choices;
    const Proyecto& p = run.project.proyecto;
    const Text& lista = run.lista_kw;
    const auto tag = [&](float meta_switch, TextView name, const Text& value, TextView end = u"") {
        if (meta_switch == 1.0F)
            run.page.writeline(uR"(<meta name="{1}" {2}="{3}"{4}>{4})", name, s.meta_atributo, value, end);
    };
    tag(s.meta_title, u"Title", cortar_palabras(lista, 6));
    tag(s.meta_description, u"Description", fill(u"{1} {2} {3}", s.frases[0], lista, p.Description));
    tag(s.meta_keywords, u"Keywords", lista);
    tag(s.meta_author, u"Author", fill(u"{1} {2} {3}", s.frases[0], lista, p.designer_name));
    tag(s.meta_robot, u"Robot", s.robot_valor, u" "); // here with blanks around its end
    tag(s.meta_rating, u"Rating", u"General");
    if (s.meta_abstract == 1.0F) { // drawn only when it is written
        const Text first = drawn_keyword(run.project);
        const Text second = drawn_keyword(run.project);
        tag(s.meta_abstract, u"Abstract", fill(u"{1} {2} {3}", choices.site_name(), first, second));
    }
    tag(s.meta_language, u"Language", choices.language());
    tag(s.meta_generator, u"Generator", u"Tarnwick");
    tag(s.meta_classification, u"Classification", choices.classification());
    if (choices.revisit_tag())
        run.page.writeline(uR"(<meta name="Revisit-After" {1}="{2}">)", revisit_attribute,
                           to_text(s.revisit_dias));
    run.page.writeline(u"</head>");
}

Text tp3_linktotarget(Run& run) {
    const Project& project = run.project;
    const Proyecto& p = project.proyecto;
    const GatewaySettings& s = run.settings;
    const Text separator = run.choices.word_separator();
    if (Val(run.choices.linking_share()) > percent_draw()) {
        if (project.n_keywords <= 1) throw RuntimeFault(fault_project_lacks, Text(lacks_second_keyword));
        int i = 0;
        while (i == 0) i = xrnum(project.n_keywords);
        run.enlace_padre = target(run.choices);
        return fill(uR"(<a href="{1}"><h1>{2} {3}</h1></a><h4>{4}</h4><br>)", run.enlace_padre, p.site_name,
                    Replace(project.tabla_kw.at(i), separator, u" "), captions_text(s, p));
    }
    run.enlace_padre.clear();
    if (xrnum(10) > 5) return fill(u"<h1>{1}</h1><br>", captions_text(s, p));
    return fill(u"<h1>{1}: {2}<br><li>{3}<br></h1><h3>{4}</h3><br>", s.rotulo_subject, p.Title,
                Replace(drawn_keyword(project), separator, u" "), p.Description);
}

Text first_level_link(const Run& run) {
    const Project& project = run.project;
    Text address;
    int r = 1;
    if (!run.choices.secondary_hosts().empty()) {
        if (!has_keyword_to_draw(project))
            throw RuntimeFault(fault_project_lacks, Text(lacks_second_keyword));
        do r = draw_below(project.n_keywords) + 1;
        while (project.tabla_kw.at(r).empty());
        address = run.choices.main_host() + u"/";
    }
    return fill(uR"(<h3><a href="{1}{2}{3}">{4}</a></h3>)", address,
                rspaces(run.choices, project.tabla_kw.at(r)), run.plan.extension, run.settings.frases[6]);
}

Text tp3_cajadekeywords(const Run& run) {
    return fill(u"{1}<br>{2}", link_line(run.choices, run.plan, u"h3"), first_level_link(run));
}

Text tp3_hiddenform(const Run& run) {
    const int r = draw_below(30) + 1; // drawn in any case
    if (r <= 15 || !run.choices.hidden_blocks()) return {};
    return fill(u"<input type=hidden name=content value={1}><br>", Replace(run.lista_kw, u",", u""));
}

Text google_search_link(const GatewaySettings& settings) {
    return fill(uR"(<li><a href="{1}/search?hl=es&ie=ISO-8859-1&q={2}&lr=">{3}</a>)",
                addresses::google_search, module1().url_principal, settings.frases[7]);
}

Text google_related_link(const GatewaySettings& settings) {
    return fill(uR"(<li><a href="{1}/search?hl=es&lr=&ie=UTF-8&q=related:{2} ">{3}</a>)",
                addresses::google_search, module1().url_principal, settings.frases[8]);
}

Text tp3_linktogoogle(const GatewaySettings& settings) {
    return google_search_link(settings) + google_related_link(settings);
}

void write_random_image(RandomPhase& phase) {
    Run& run = phase.run;
    if (!run.choices.pictures_wanted()) return;
    const Text& name = at(run.plan.nombres, xrnum(run.plan.n_nombres - 1));
    const Text stem = preparar_texto(LCase(rspaces(run.choices, name)));
    run.page.writeline(imagen(run, 3, Trim(run.lista_kw), phase.carpeta, stem));
}

void write_google_links(Run& run) {
    if (run.choices.search_links()) run.page.writeline(tp3_linktogoogle(run.settings));
}

} // namespace twk
