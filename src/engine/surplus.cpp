// SPDX-License-Identifier: MIT
#include "engine/surplus.h"

#include "engine/generation.h"
#include "engine/keyword_counts.h"
#include "engine/run.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/numbers.h"

#include <algorithm>
#include <vector>

namespace twk {

void replace_last(Text& text, TextView find, TextView with, int count) {
    if (count < -1) throw RuntimeFault(fault_argument);
    if (count == 0 || find.empty()) return;
    std::vector<std::size_t> all; // overlapping ones among them
    for (std::size_t at = 0; (at = position(text, find, at)) != TextView::npos; ++at) all.push_back(at);
    std::vector<std::size_t> places; // from the end
    for (auto at = all.rbegin(); at != all.rend() && static_cast<int>(places.size()) != count; ++at)
        if (places.empty() || *at + find.size() <= places.back()) places.push_back(*at);
    if (places.empty()) return;
    Text out;
    out.reserve(text.size());
    std::size_t from = 0;
    std::reverse(places.begin(), places.end());
    for (const std::size_t place : places) {
        out.append(text, from, place - from).append(with);
        from = place + find.size();
    }
    text = out.append(text, from);
}

void limit_keywords(Run& run, Text& text, int kept, TextView tail) {
    KeywordCounts counts(keyword_set(run), text);
    const Text of_all = u"/" + to_text(run.n_keywords) + u" done" + Text(tail);
    for (int i = 0; i < run.n_keywords; ++i) {
        status(run, u"Updating Random-Generated Page " + to_text(i) + of_all);
        DoEvents();
        Text& keyword = run.tabla_kw.cell(i);
        const std::int16_t found = counts.contar(i, keyword);
        if (!keyword.empty() && found >= kept)
            counts.replace_last(i, run.settings.kw_sustituto, found - kept);
    }
}

} // namespace twk
