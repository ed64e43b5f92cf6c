// SPDX-License-Identifier: MIT
#pragma once

#include "engine/boxes.h"
#include "engine/open_page.h"
#include "engine/page_choices.h"
#include "engine/plan.h"
#include "engine/project.h"
#include "engine/run_report.h"
#include "engine/synonyms.h"

#include <unordered_map>

namespace twk {

/// State of one run, made anew by each: its parts, and where it stands. What one phase alone needs lives in
/// that phase's file.
struct Run {
    Run(PageChoices& choices, RunReport& report)
        : choices(choices), report(report), settings(choices.settings()) {}

    PageChoices& choices;
    RunReport& report;
    const GatewaySettings& settings;

    Project project;
    Plan plan;
    Boxes boxes;
    OpenPage page;
    Synonyms synonyms;

    std::int16_t fase = 0;
    std::int16_t indice_kw = 0;
    Text lista_kw;                                      ///< keyword list of the page under way
    std::int16_t cuenta1 = 0, cuenta2 = 0, cuenta3 = 0; ///< next report index per page kind
    std::int16_t cuenta_archivos = 0;
    /// Records of the random pages until they are reported, by path in lower case.
    std::unordered_map<Text, PageRecord> made_pages;
    Text enlace_padre;     ///< what a page leaves for the report: where it links to
    Text mensaje_error;    ///< the stage under way
    double seconds = 0;    ///< from the empty report to the last page, once that is written
    bool finished = false; ///< the run came to its end

    const Text& keyword() const { return project.tabla_kw.at(indice_kw); }
};

} // namespace twk
