// SPDX-License-Identifier: MIT
#include "engine/page_names.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/form17.h"
#include "engine/fragments.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "inputs/form7.h"
#include "platform/faults.h"
#include "platform/numbers.h"
#include "shell/module1.h"

#include <unordered_set>

namespace twk {

namespace {

/// S: every (S + 1)th page redirects. -1 when none does.
std::int16_t redirect_step(int total, int share) {
    if (share == 0) return -1;
    if (total == 0) return 0;
    const double f = Int(static_cast<double>(total) * share / 100);
    if (f == 0) throw RuntimeFault(fault_division);
    return CInt((total - f) / f);
}

PlannedPage& planned(Run& run, int n) {
    if (n < 0 || n >= static_cast<int>(run.paginas.size())) throw RuntimeFault(fault_subscript);
    return run.paginas[static_cast<std::size_t>(n)];
}

/// Position 0 from the front, 1 from the end, 2 from the front ...: with an even count some names double and
/// some are lost; the doubles get numbers later.
void reorder(std::vector<Text>& names, std::size_t count) {
    std::vector<Text> aux(count);
    for (std::size_t i = 0; i < count; ++i) aux[i] = names[i % 2 == 0 ? i : count - 1 - i];
    std::copy(aux.begin(), aux.end(), names.begin());
}

} // namespace

void build_page_names(Run& run) {
    Form6& form = run.form;
    const int total = CInt(Int(Val(form.Combo2.text())));
    if (total < 0) throw RuntimeFault(fault_subscript);
    const std::int16_t s = redirect_step(total, static_cast<int>(Int(Val(form.Combo3.text()))));
    if (run.n_terminos == 0)
        throw RuntimeFault(fault_project_lacks,
                           u"The project has no keywords: there is nothing to name the pages after.");
    run.nombres.assign(static_cast<std::size_t>(total) + 1, Text());
    int i = 0;
    int c = 0;
    while (i <= total) {
        for (int a = 0; a < run.n_terminos && i <= total; ++a) {
            for (int b = 0; b < run.n_terminos && i <= total; ++b) {
                const Text x = Trim(preparar_texto(run.terminos[static_cast<std::size_t>(a)] + u" " +
                                                   run.terminos[static_cast<std::size_t>(b)]));
                const Text name = LCase(rspaces(form, x));
                const int words = xrnum(2) + run.settings.palabras_extracto;
                // The letter takes 25 from a `b` above 25, and the loop goes on from there.
                Text w = cortar_palabras(name, words) + rspaces(form, u" ") + letra(b);
                const bool redirects = c == s;
                w += tiene_java(redirects);
                if (redirects) c = -1;
                run.nombres[static_cast<std::size_t>(i)] = std::move(w);
                ++i;
                ++c;
            }
        }
    }
    run.n_nombres = CInt(static_cast<double>(i));
    reorder(run.nombres, static_cast<std::size_t>(i));
}

void distribute_pages(Run& run) {
    const ListBox& hosts = screen<Form7>().List1;
    const int h = hosts.list_count();
    const int total = CInt(Int(Val(run.form.Combo2.text())));
    run.paginas_host = CInt(Int(h > 0 ? static_cast<double>(total) / (h + 1) : total));
    run.paginas.assign(static_cast<std::size_t>(run.n_nombres) + 1, {});
    std::size_t n = 0;
    for (int d = 0; d <= h; ++d) {
        const Text& host = d == 0 ? main_host(run) : hosts.list(d - 1);
        // Compared is the start of the table, as far as this destination has come, not its own pages.
        std::unordered_set<Text> compared;
        for (int c = 0; c < run.paginas_host; ++c, ++n) {
            if (n >= run.nombres.size()) throw RuntimeFault(fault_subscript);
            PlannedPage& page = planned(run, static_cast<int>(n));
            const Text& name = run.nombres[n];
            if (!compared.contains(name))
                page.name = name;
            else if (name.ends_with(u"_js"))
                page.name = Left(name, Len(name) - 3) + to_text(static_cast<int>(n)) + u"_js";
            else
                page.name = name + to_text(static_cast<int>(n));
            page.host = host;
            compared.insert(run.paginas[static_cast<std::size_t>(c)].name);
        }
    }
}

bool offer_page_names(Run& run) {
    Form17& form17 = screen<Form17>();
    form17.List1.clear();
    form17.List2.clear();
    const int shown = static_cast<int>(Int(Val(run.form.Combo2.text())));
    for (int n = 0; n < shown; ++n) {
        const PlannedPage& page = planned(run, n);
        if (trim_view(page.name).empty()) continue;
        form17.List1.add_item(page.name + run.extension);
        form17.List2.add_item(page.host);
    }
    form17.Label46.caption = u"You will be creating " + to_text(run.n_nombres - 1) +
                             u" Random-Generated Pages. You can change their names here.";
    screens().show_modal<Form17>();
    if (module1().paso6_cancelado == u"1") {
        screens().unload<Form17>();
        module1().paso6_cancelado = u"0";
        return false;
    }
    for (int i = 0; i < form17.List1.list_count(); ++i) planned(run, i).name = Trim(form17.List1.list(i));
    screens().unload<Form17>(); // leaves the flag at "1": the next pass reads it as a Cancel
    return true;
}

} // namespace twk
