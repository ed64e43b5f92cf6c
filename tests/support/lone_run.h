// SPDX-License-Identifier: MIT
#pragma once

#include "engine/run.h"
#include "settings/form6.h"
#include "support/temp_app.h"

namespace twk::test {

/// A run apart from its click, for the routines of the engine one by one: what they ask is what the controls
/// of `form` and of the other screens show.
struct LoneRun {
    TempApp app;
    Form6 form;
    twk::Run run{form.choices, form.report};

    /// Makes the keywords of the table.
    void set_keywords(const std::vector<Text>& keywords) {
        run.project.n_keywords = static_cast<std::int16_t>(keywords.size());
        run.project.tabla_kw.resize(run.project.n_keywords + 2);
        for (int k = 0; k < run.project.n_keywords; ++k)
            run.project.tabla_kw.cell(k) = keywords[static_cast<std::size_t>(k)];
    }
};

} // namespace twk::test
