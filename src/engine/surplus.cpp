// SPDX-License-Identifier: MIT
#include "engine/surplus.h"

#include "engine/counting/keyword_counts.h"
#include "engine/generation.h"
#include "engine/run.h"
#include "engine/run_preparation.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace twk {

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
