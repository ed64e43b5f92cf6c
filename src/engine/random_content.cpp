// SPDX-License-Identifier: MIT
#include "engine/random_content.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/fragments.h"
#include "engine/generation.h"
#include "engine/run.h"
#include "engine/surplus.h"
#include "engine/synonyms.h"
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace twk {

namespace {

constexpr std::size_t long_text = 10000; ///< units; a text of exactly so many is neither long nor short

/// Draws the boxes of a page into `seleccion`; returns how many. No place of the pool is drawn twice.
int draw_boxes(Run& run) {
    std::vector<int> fuente_aux = run.fuente;
    const int m = xrnum2(run.n_fuente);
    for (int k = 0; k < m; ++k) {
        const int r = xrnum2(run.n_fuente - k);
        run.seleccion[static_cast<std::size_t>(k)] = fuente_aux[static_cast<std::size_t>(r)];
        fuente_aux.erase(fuente_aux.begin() + r);
    }
    return m;
}

/// The boxes 0 to m: the last one was not drawn for this page, so it is what an earlier page left there.
/// Every sentence is in a paragraph of its own; `whole` gets the units that the boxes have without that.
Text joined_boxes(Run& run, int m, std::size_t& whole) {
    constexpr TextView start = u" <p><!-- Still Info --> ";
    const auto drawn = [&run, m](auto take) {
        for (int i = 0; i <= m; ++i) take(run.seleccion[static_cast<std::size_t>(i)]);
    };
    std::size_t size = 0;
    whole = 0;
    drawn([&](int box) {
        whole += start.size() + (box == Run::nothing ? 0 : run.box(box).size());
        size += start.size() + 4 + (box == Run::nothing ? 0 : split_box(run, box).size());
    });
    Text s;
    s.reserve(size);
    drawn([&](int box) {
        // A point before the start ends a sentence, too.
        s.append(s.ends_with(u'.') ? u" <p>" : u" ").append(start.substr(1));
        if (box != Run::nothing) s.append(split_box(run, box));
    });
    return s;
}

/// Draws the densities of a text of so many units; at exactly the limit those of the page before stay.
void draw_densities(Run& run, std::size_t units) {
    const GatewaySettings& bounds = run.settings;
    if (units > long_text) {
        run.d1 = xrnum2(bounds.tope_largo1);
        run.d2 = xrnum2(bounds.tope_largo2);
    } else if (units < long_text) {
        run.d1 = xrnum2(bounds.tope_corto1);
        run.d2 = xrnum2(bounds.tope_corto2);
    }
}

/// Fits the text to a drawn keyword, in `below` of ten cases.
void perhaps_adjust(Run& run, Text& s, int below, int density) {
    if (xrnum2(10) >= below) return;
    const Text keyword = run.tabla_kw.at(xrnum2(run.n_keywords));
    s = Ajustar_KW(run, s, keyword, density);
}

} // namespace

void fill_content_pool(Run& run) {
    const int u = run.ultima_caja;
    const int size = 2 * u + 3;
    run.fuente.assign(static_cast<std::size_t>(size), Run::nothing);
    for (int i = 0; i <= u; ++i) run.fuente[static_cast<std::size_t>(i)] = i;
    for (int i = u + 1; i <= 2 * u + 1; ++i) run.fuente[static_cast<std::size_t>(i)] = i - u - 1;
    run.seleccion.assign(run.fuente.size(), Run::nothing);
    run.n_fuente = static_cast<std::int16_t>(2 * u); // the last entry is never drawn
}

Text tp3_content(Run& run) {
    const Form6& form = run.form;
    std::size_t units = 0;
    Text s = joined_boxes(run, draw_boxes(run), units);
    if (form.Check4.value() && percent_draw() < 35) {
        Text words = Trim(Replace(run.lista_kw, u",", u""));
        flash(run, words);
    }
    if (xrnum2(30) > 15 && form.Check3.value()) {
        const Text list = hidden_list(run);
        units += list.size();
        s += split_sentences(list); // begins with a tag
    }
    draw_densities(run, units);
    perhaps_adjust(run, s, 7, run.d1);
    status(run, u"Optimizing Random-Generated Pages [1/2] ");
    DoEvents();
    status(run, u"Optimizing Random-Generated Pages [2/2] ");
    DoEvents();
    perhaps_adjust(run, s, 4, run.d2);
    const int kept = xrnum(40);
    if (form.Check8.value()) {
        ++run.cuenta_archivos;
        limit_keywords(run, s, kept, u" for file " + to_text(run.cuenta_archivos));
    }
    if (form.Check6.value()) s = highLight(run, s);
    const Text font = font_line(run);
    Text content;
    content.reserve(font.size() + s.size() + 16);
    return content.append(font).append(u"<p>").append(s).append(u"<p></font>");
}

Text random_content(Run& run) {
    const Text text = tp3_content(run);
    return run.form.Check5.value() ? sinonimo(run, text) : text;
}

} // namespace twk
