// SPDX-License-Identifier: MIT
#include "engine/surplus.h"

#include "engine/gateway_settings.h"
#include "engine/project.h"
#include "engine/run_report.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace twk {

int limit_keywords(Project& project, const GatewaySettings& settings, RunReport& report, Text& text, int kept,
                   TextView tail) {
    KeywordCounts counts(project.keyword_set(), text);
    const Text of_all = u"/" + to_text(project.n_keywords) + u" done" + Text(tail);
    Text told = u"Updating Random-Generated Page ";
    const std::size_t before_number = told.size();
    int replaced = 0;
    for (int i = 0; i < project.n_keywords; ++i) {
        told.resize(before_number);
        report.status(told.append(to_text(i)).append(of_all));
        DoEvents();
        Text& keyword = project.tabla_kw.cell(i);
        const std::int16_t found = counts.contar(i, keyword);
        if (!keyword.empty() && found >= kept)
            replaced += counts.replace_last(i, settings.kw_sustituto, found - kept);
    }
    return replaced;
}

} // namespace twk
