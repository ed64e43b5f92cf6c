// SPDX-License-Identifier: MIT
#include "engine/random_pages.h"

#include "engine/cross_links.h"
#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/generation.h"
#include "engine/index_page.h"
#include "engine/page_file.h"
#include "engine/page_head.h"
#include "engine/random_content.h"
#include "engine/run.h"
#include "engine/templates.h"
#include "engine/text_toolkit.h"
#include "inputs/form7.h"
#include "platform/addresses.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/name_index.h"
#include "platform/numbers.h"
#include "shell/form2.h"
#include "shell/module1.h"

namespace twk {

namespace {

/// Name of the page, and what depends on it. A name that stands in the folder already gets the page's number.
Text take_name(Run& run, int destination, int n, int c) {
    Text x = run.paginas.at(static_cast<std::size_t>(n)).name;
    const Text base = Replace(x, run.extension, u"");
    run.es_js = base.ends_with(u"_js") ? 1 : 0;
    if (run.fso.FileExists(run.carpeta + Text(path_separator) + x + run.extension))
        x = run.es_js == 1 ? Left(base, Len(base) - 3) + to_text(c) + u"_js" : base + to_text(c);
    run.url_pagina = run.url_host + u"\\" + base + run.extension;
    const Text& host = destination == 0 ? main_host(run) : run.url_host;
    run.ultima_por_host[static_cast<std::size_t>(destination)] = host + u"\\" + LCase(x);
    return x; // as it stands: only names that Step 6 has shown bring their extension
}

/// The list of three terms that a page starts with serves nothing, but its draws count.
void draw_unused_list(Run& run) {
    for (int i = 0; i < 3; ++i) xrnum2(run.n_terminos - 1);
}

Text drawn_term(Run& run) {
    Text term;
    while (term.empty())
        term = run.terminos[static_cast<std::size_t>(xrnum(CInt(static_cast<double>(run.total_terminos))))];
    return term;
}

void write_title(Run& run) {
    Text a = drawn_term(run);
    const Text e = drawn_term(run);
    Text title;
    if (contar_palabras(a) >= run.settings.palabras_minimas) {
        title = a;
    } else {
        const int words = xrnum(5) + run.settings.palabras_extracto;
        title = cortar_palabras(a + u" " + run.proyecto.category + u" " + e + u" " + run.proyecto.site_name,
                                words);
    }
    run.writeline(u"<html><head><title>" + title + u"</title>");
}

const Text& drawn_keyword(Run& run) {
    return run.tabla_kw.at(xrnum(run.n_keywords));
}

void write_page(Run& run, int destination, int n, int c) {
    const NameIndex::SteadyFolders steady;
    const Text path = run.carpeta + Text(path_separator) + take_name(run, destination, n, c);
    draw_unused_list(run);
    open_page(run, path);
    write_title(run);
    run.lista_kw = drawn_keyword(run) + u" , " + screen<Form2>().txt_dat[1].text();
    write_random_head(run, run.settings.meta_atributo);
    if (run.form.Check4.value()) copy_flash_movie(run, run.carpeta);
    switch (template_index(run)) {
    case 0: random_no_table(run); break;
    case 1: random_table1(run); break;
    case 2: random_table2(run); break;
    case 3: random_table3(run); break;
    default: break; // no template chosen: a page without a middle
    }
    run.writeline(u"</td></tr></table><center>");
    run.writeline(font_line(run)); // the cross-links bring the closing tags
    close_page(run, path);
}

/// Folder and host of a destination; the first one is the main host's second folder.
void enter_destination(Run& run, int destination) {
    if (destination > 0) run.url_host = screen<Form7>().List1.list(destination - 1);
    run.carpeta = destination_folder(run, destination == 0 ? main_host(run) + u"_More_Files" : run.url_host);
    run.fence->check(run.carpeta);
    if (!dir_exists(run.carpeta)) MkDir(run.carpeta);
}

/// A row below the first is there to be drawn.
bool has_keyword_to_draw(const Run& run) {
    for (int r = 1; r <= run.n_keywords; ++r)
        if (!run.tabla_kw.at(r).empty()) return true;
    return false;
}

constexpr TextView lacks_second_keyword =
    u"The project has one keyword only: a random page that links needs a second one.";

} // namespace

void random_pages(Run& run) {
    fill_content_pool(run);
    run.cuenta3 = run.cuenta2;
    const int last = screen<Form7>().List1.list_count();
    run.ultima_por_host.assign(static_cast<std::size_t>(last) + 1, Text());
    int n = 0;
    for (int d = 0; d <= last; ++d) {
        enter_destination(run, d);
        if (run.settings.indice_extra == 1) index_page(run);
        for (int c = 0; c < run.paginas_host; ++c, ++n) {
            write_page(run, d, n, c);
            ++run.indice_kw;
        }
        cross_link_pass(run);
    }
}

void write_random_head(Run& run, TextView revisit_attribute) {
    const GatewaySettings& s = run.settings;
    const Form6& form = run.form;
    const Text& lista = run.lista_kw;
    const auto tag = [&run](float meta_switch, TextView name, const Text& value, TextView end = u"\">") {
        if (meta_switch != 1.0F) return;
        run.writeline(u"<meta name=\"" + Text(name) + u"\" " + run.settings.meta_atributo + u"=\"" + value +
                      Text(end));
    };
    tag(s.meta_title, u"Title", cortar_palabras(lista, 6));
    tag(s.meta_description, u"Description", s.frases[0] + u" " + lista + u" " + run.proyecto.Description);
    tag(s.meta_keywords, u"Keywords", lista);
    tag(s.meta_author, u"Author", s.frases[0] + u" " + lista + u" " + run.proyecto.designer_name);
    tag(s.meta_robot, u"Robot", s.robot_valor, u"\" > "); // here with blanks around its end
    tag(s.meta_rating, u"Rating", u"General");
    if (s.meta_abstract == 1.0F) { // drawn only when it is written
        const Text first = drawn_keyword(run);
        const Text second = drawn_keyword(run);
        tag(s.meta_abstract, u"Abstract", screen<Form2>().Text2[0].text() + u" " + first + u" " + second);
    }
    tag(s.meta_language, u"Language", form.Combo5.text());
    tag(s.meta_generator, u"Generator", u"Tarnwick");
    tag(s.meta_classification, u"Classification", form.Combo7.text());
    if (form.Check1.value())
        run.writeline(u"<meta name=\"Revisit-After\" " + Text(revisit_attribute) + u"=\"" +
                      to_text(s.revisit_dias) + u"\">");
    run.writeline(u"</head>");
}

Text tp3_linktotarget(Run& run) {
    const Proyecto& p = run.proyecto;
    const GatewaySettings& s = run.settings;
    const Text separator = run.form.Combo6.text();
    if (Val(run.form.Combo4.text()) > percent_draw()) {
        if (run.n_keywords <= 1) throw RuntimeFault(fault_project_lacks, Text(lacks_second_keyword));
        int i = 0;
        while (i == 0) i = xrnum(run.n_keywords);
        const Text u = target(run);
        run.enlace_padre = u;
        return u"<a href=\"" + u + u"\"><h1>" + p.site_name + u" " +
               Replace(run.tabla_kw.at(i), separator, u" ") + u"</h1></a><h4>" + captions_text(run) +
               u"</h4><br>";
    }
    run.enlace_padre.clear();
    if (xrnum(10) > 5) return u"<h1>" + captions_text(run) + u"</h1><br>";
    return u"<h1>" + s.rotulo_subject + u": " + p.Title + u"<br><li>" +
           Replace(drawn_keyword(run), separator, u" ") + u"<br></h1><h3>" + p.Description + u"</h3><br>";
}

Text first_level_link(Run& run) {
    Text address;
    int r = 1;
    if (screen<Form7>().List1.list_count() > 0) {
        if (!has_keyword_to_draw(run)) throw RuntimeFault(fault_project_lacks, Text(lacks_second_keyword));
        do r = static_cast<int>(Int(chance().Rnd() * run.n_keywords + 1));
        while (run.tabla_kw.at(r).empty());
        address = main_host(run) + u"/";
    }
    return u"<h3><a href=\"" + address + rspaces(run.form, run.tabla_kw.at(r)) + run.extension + u"\">" +
           run.settings.frases[6] + u"</a></h3>";
}

Text tp3_cajadekeywords(Run& run) {
    return link_line(run, u"h3") + u"<br>" + first_level_link(run);
}

Text tp3_hiddenform(Run& run) {
    const double r = Int(chance().Rnd() * 30 + 1); // drawn in any case
    if (r <= 15 || !run.form.Check3.value()) return {};
    return u"<input type=hidden name=content value=" + Replace(run.lista_kw, u",", u"") + u"><br>";
}

Text google_search_link(const Run& run) {
    return u"<li><a href=\"" + Text(addresses::google_search) + u"/search?hl=es&ie=ISO-8859-1&q=" +
           module1().url_principal + u"&lr=\">" + run.settings.frases[7] + u"</a>";
}

Text google_related_link(const Run& run) {
    return u"<li><a href=\"" + Text(addresses::google_search) + u"/search?hl=es&lr=&ie=UTF-8&q=related:" +
           module1().url_principal + u" \">" + run.settings.frases[8] + u"</a>";
}

Text tp3_linktogoogle(const Run& run) {
    return google_search_link(run) + google_related_link(run);
}

void write_random_image(Run& run) {
    if (!run.form.Check2.value()) return;
    const Text& name = run.nombres[static_cast<std::size_t>(xrnum(run.n_nombres - 1))];
    const Text stem = preparar_texto(LCase(rspaces(run.form, name)));
    run.writeline(imagen(run, 3, Trim(run.lista_kw), run.carpeta, stem));
}

void write_google_links(Run& run) {
    if (run.form.Check7.value()) run.writeline(tp3_linktogoogle(run));
}

} // namespace twk
