// SPDX-License-Identifier: MIT
#include "engine/page_names.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/form17.h"
#include "engine/page_choices.h"
#include "engine/plan.h"
#include "engine/project.h"
#include "engine/text_toolkit.h"
#include "platform/module1.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

#include <unordered_set>

namespace twk {

namespace {

/// S: every (S + 1)th page redirects. -1 when none does.
int redirect_step(int total, int share) {
    if (share == 0) return -1;
    if (total == 0) return 0;
    const double f = Int(static_cast<double>(total) * share / 100);
    if (f == 0) throw RuntimeFault(fault_division);
    return CInt((total - f) / f);
}

/// Position 0 from the front, 1 from the end, 2 from the front ...: with an even count some names double and
/// some are lost; the doubles get numbers later.
void reorder(std::vector<Text>& names, std::size_t count) {
    std::vector<Text> aux(count);
    for (std::size_t i = 0; i < count; ++i) aux[i] = names[i % 2 == 0 ? i : count - 1 - i];
    std::copy(aux.begin(), aux.end(), names.begin());
}

} // namespace

void build_page_names(Plan& plan, const Project& project, const PageChoices& choices) {
    const int total = CInt(Int(Val(choices.random_pages())));
    if (total < 0) throw RuntimeFault(fault_subscript);
    const int s = redirect_step(total, static_cast<int>(Int(Val(choices.redirecting_share()))));
    if (project.n_terminos == 0)
        throw RuntimeFault(fault_project_lacks,
                           u"The project has no keywords: there is nothing to name the pages after.");
    plan.nombres.assign(static_cast<std::size_t>(total) + 1, Text());
    int i = 0;
    int c = 0;
    while (i <= total) {
        for (int a = 0; a < project.n_terminos && i <= total; ++a) {
            for (int b = 0; b < project.n_terminos && i <= total; ++b) {
                const Text x = Trim(preparar_texto(at(project.terminos, a) + u" " + at(project.terminos, b)));
                const Text name = LCase(rspaces(choices, x));
                const int words = xrnum(2) + choices.settings().palabras_extracto;
                // The letter takes 25 from a `b` above 25, and the loop goes on from there.
                Text w = cortar_palabras(name, words) + rspaces(choices, u" ") + letra(b);
                const bool redirects = c == s;
                w += tiene_java(redirects);
                if (redirects) c = -1;
                at(plan.nombres, i) = std::move(w);
                ++i;
                ++c;
            }
        }
    }
    plan.n_nombres = CInt(static_cast<double>(i));
    reorder(plan.nombres, static_cast<std::size_t>(i));
}

void distribute_pages(Plan& plan, const PageChoices& choices) {
    const std::vector<Text>& hosts = choices.secondary_hosts();
    const auto h = static_cast<int>(hosts.size());
    const int total = CInt(Int(Val(choices.random_pages())));
    plan.paginas_host = CInt(Int(h > 0 ? static_cast<double>(total) / (h + 1) : total));
    plan.paginas.assign(static_cast<std::size_t>(plan.n_nombres) + 1, {});
    int n = 0;
    for (int d = 0; d <= h; ++d) {
        const Text& host = d == 0 ? choices.main_host() : at(hosts, d - 1);
        // Compared is the start of the table, as far as this destination has come, not its own pages.
        std::unordered_set<Text> compared;
        for (int c = 0; c < plan.paginas_host; ++c, ++n) {
            const Text& name = at(plan.nombres, n);
            PlannedPage& page = at(plan.paginas, n);
            if (!compared.contains(name))
                page.name = name;
            else if (name.ends_with(u"_js"))
                page.name = Left(name, Len(name) - 3) + to_text(n) + u"_js";
            else
                page.name = name + to_text(n);
            page.host = host;
            compared.insert(at(plan.paginas, c).name);
        }
    }
}

bool offer_page_names(Plan& plan, const PageChoices& choices) {
    Form17& form17 = screen<Form17>();
    form17.project_name = Trim(choices.project_name());
    form17.List1.clear();
    form17.List2.clear();
    const int shown = static_cast<int>(Int(Val(choices.random_pages())));
    for (int n = 0; n < shown; ++n) {
        const PlannedPage& page = at(plan.paginas, n);
        if (trim_view(page.name).empty()) continue;
        form17.List1.add_item(page.name + plan.extension);
        form17.List2.add_item(page.host);
    }
    form17.Label46.caption = u"You will be creating " + to_text(plan.n_nombres - 1) +
                             u" Random-Generated Pages. You can change their names here.";
    screens().show_modal<Form17>();
    if (module1().paso6_cancelado == u"1") {
        screens().unload<Form17>();
        module1().paso6_cancelado = u"0";
        return false;
    }
    for (int i = 0; i < form17.List1.list_count(); ++i) at(plan.paginas, i).name = Trim(form17.List1.list(i));
    screens().unload<Form17>(); // leaves the flag at "1": the next pass reads it as a Cancel
    return true;
}

} // namespace twk
