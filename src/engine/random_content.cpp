// SPDX-License-Identifier: MIT
#include "engine/random_content.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/run.h"
#include "engine/surplus.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

namespace twk {

namespace {

constexpr std::size_t long_text = PageRecord::long_text;

/// Draws the boxes of a page into `seleccion`; returns how many. No place of the pool is drawn twice.
int draw_boxes(ContentPool& pool) {
    std::vector<int> fuente_aux = pool.fuente;
    const int m = xrnum2(pool.n_fuente);
    for (int k = 0; k < m; ++k) {
        const int r = xrnum2(pool.n_fuente - k);
        at(pool.seleccion, k) = at(fuente_aux, r);
        fuente_aux.erase(fuente_aux.begin() + r);
    }
    return m;
}

/// The boxes 0 to m: the last one was not drawn for this page, so it is what an earlier page left there.
/// Every sentence is in a paragraph of its own; `whole` gets the units that the boxes have without that.
Text joined_boxes(Boxes& boxes, const ContentPool& pool, int m, std::size_t& whole) {
    constexpr TextView start = u" <p><!-- Still Info --> ";
    const auto drawn = [&](auto take) {
        for (int i = 0; i <= m; ++i) take(at(pool.seleccion, i));
    };
    std::size_t size = 0;
    whole = 0;
    drawn([&](int box) {
        whole += start.size() + (box == ContentPool::nothing ? 0 : boxes.box(box).size());
        size += start.size() + 4 + (box == ContentPool::nothing ? 0 : boxes.split(box).size());
    });
    Text s;
    s.reserve(size);
    drawn([&](int box) {
        // A point before the start ends a sentence, too.
        s.append(s.ends_with(u'.') ? u" <p>" : u" ").append(start.substr(1));
        if (box != ContentPool::nothing) s.append(boxes.split(box));
    });
    return s;
}

/// Notes the boxes of the page: those drawn and the one that an earlier page left. Without a word in any of
/// them there is no text.
void note_boxes(Run& run, const ContentPool& pool, int m) {
    PageRecord& made = run.page.made;
    made.empty_text = true;
    for (int i = 0; i <= m; ++i) {
        const int box = at(pool.seleccion, i);
        made.boxes.push_back(box == ContentPool::nothing ? PageRecord::no_box
                                                         : static_cast<std::uint8_t>(box));
        if (box != ContentPool::nothing && !trim_view(run.boxes.box(box)).empty()) made.empty_text = false;
    }
}

/// Draws the densities of a text of so many units; at exactly the limit those of the page before stay.
void draw_densities(ContentPool& pool, const GatewaySettings& bounds, std::size_t units) {
    if (units > long_text) {
        pool.d1 = xrnum2(bounds.tope_largo1);
        pool.d2 = xrnum2(bounds.tope_largo2);
    } else if (units < long_text) {
        pool.d1 = xrnum2(bounds.tope_corto1);
        pool.d2 = xrnum2(bounds.tope_corto2);
    }
}

/// Fits the text to a drawn keyword, in `below` of ten cases. What was drawn is noted as fitting `which`.
void perhaps_adjust(Run& run, Text& s, int below, int density, std::size_t which) {
    run.page.made.fittings[which].density = static_cast<std::int16_t>(density);
    if (xrnum2(10) >= below) return;
    const int row = xrnum2(run.project.n_keywords);
    const Text keyword = run.project.tabla_kw.at(row);
    s = fitted_text(run, s, keyword, {which, row, density});
}

} // namespace

ContentPool::ContentPool(const Boxes& boxes) : n_fuente(2 * boxes.ultima_caja) {
    for (int twice = 0; twice < 2; ++twice)
        for (int i = 0; i <= boxes.ultima_caja; ++i) fuente.push_back(i);
    fuente.push_back(nothing);
    seleccion.assign(fuente.size(), nothing);
}

Text tp3_content(Run& run, ContentPool& pool) {
    const PageChoices& choices = run.choices;
    PageRecord& made = run.page.made;
    std::size_t units = 0;
    const int drawn = draw_boxes(pool);
    note_boxes(run, pool, drawn);
    Text s = joined_boxes(run.boxes, pool, drawn, units);
    if (choices.animations() && percent_draw() < 35) {
        Text words = Trim(Replace(run.lista_kw, u",", u""));
        flash(run.page, words);
    }
    if (xrnum2(30) > 15 && choices.hidden_blocks()) {
        const Text list = hidden_list(choices, run.lista_kw);
        units += list.size();
        s += split_sentences(list); // begins with a tag
    }
    draw_densities(pool, run.settings, units);
    made.units = static_cast<std::int32_t>(units);
    perhaps_adjust(run, s, 7, pool.d1, 0);
    run.report.status(u"Optimizing Random-Generated Pages [1/2] ");
    DoEvents();
    run.report.status(u"Optimizing Random-Generated Pages [2/2] ");
    DoEvents();
    perhaps_adjust(run, s, 4, pool.d2, 1);
    made.empty_text = made.empty_text || s.empty();
    const int kept = xrnum(40);
    if (choices.limit_repetitions()) {
        ++run.cuenta_archivos;
        made.count_replaced(limit_keywords(run.project, run.settings, run.report, s, kept,
                                           u" for file " + to_text(run.cuenta_archivos)));
    }
    if (choices.highlight_keywords()) highLight(run.project, run.settings, s);
    // In place: the text is long, and has room.
    return s.insert(0, font_line(choices) + u"<p>").append(u"<p></font>");
}

Text random_content(Run& run, ContentPool& pool) {
    Text text = tp3_content(run, pool);
    run.page.made.synonyms = run.choices.use_synonyms();
    return run.page.made.synonyms ? run.synonyms.sinonimo(std::move(text)) : text;
}

} // namespace twk
