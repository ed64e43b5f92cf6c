// SPDX-License-Identifier: MIT
#include "engine/page_names.h"

#include "engine/decorations.h"
#include "engine/density.h"
#include "engine/form17.h"
#include "engine/page_choices.h"
#include "engine/plan.h"
#include "engine/project.h"
#include "engine/text_toolkit.h"
#include "platform/faults.h"
#include "platform/module1.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

#include <limits>
#include <unordered_set>

namespace twk {

namespace {

constexpr TextView share_name =
    u"\"Random pages using automatic Javacript redirection to the target site\" (2.b) is ";

/// S: every (S + 1)th page redirects. -1 when none does. `share` is in per cent.
int redirect_step(int total, double share) {
    if (share == 0) return -1;
    if (total == 0) return 0;
    const double f = Int(total * share / 100);
    if (f == 0)
        throw told_fault(fault_division, Text(share_name) + to_text(share) + u" % of " + to_text(total) +
                                             u" pages, which is less than one page; " +
                                             to_text((100 + total - 1) / total) +
                                             u" or more would do, or 0.");
    return CInt((total - f) / f);
}

int redirect_step(const PageChoices& choices, int total) {
    const Text& typed = choices.redirecting_share();
    try {
        return redirect_step(total, Int(Val(typed)));
    } catch (const RuntimeFault& fault) {
        if (fault.number() != fault_overflow) throw;
        throw told_fault(fault_overflow,
                         Text(share_name) + u"\"" + typed + u"\"; a number from 0 to 100 would do.");
    }
}

/// How many random pages the settings say; infinity when that is too much to be held.
double typed_pages(const PageChoices& choices) {
    try {
        return Int(Val(choices.random_pages()));
    } catch (const RuntimeFault&) {
        return std::numeric_limits<double>::infinity();
    }
}

/// The same as the run counts them. Faults that name the setting: 6 outside 16 bits, 9 below 0.
int wanted_pages(const PageChoices& choices) {
    const double pages = typed_pages(choices);
    const bool fits = pages >= -32768 && pages <= 32767;
    if (fits && pages >= 0) return static_cast<int>(pages);
    throw told_fault(fits ? fault_subscript : fault_overflow,
                     u"\"How many random pages?\" (2.a) is \"" + choices.random_pages() +
                         u"\"; a whole number from 0 to 32766 would do.");
}

/// Position 0 from the front, 1 from the end, 2 from the front ...: with an even count some names double and
/// some are lost; the doubles get numbers later.
void reorder(std::vector<Text>& names) {
    const std::vector<Text> before = names;
    for (std::size_t i = 1; i < names.size(); i += 2) names[i] = before[names.size() - 1 - i];
}

} // namespace

void build_page_names(Plan& plan, const Project& project, const PageChoices& choices) {
    const int total = wanted_pages(choices);
    const int s = redirect_step(choices, total);
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
    plan.n_nombres = CInt(i);
    reorder(plan.nombres);
}

void distribute_pages(Plan& plan, const PageChoices& choices) {
    const std::vector<Text>& hosts = choices.secondary_hosts();
    const int h = size_of(hosts);
    const int total = wanted_pages(choices);
    plan.paginas_host = CInt(total / (h + 1));
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
    const int shown = wanted_pages(choices);
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
