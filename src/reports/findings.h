// SPDX-License-Identifier: MIT
#pragma once

#include "reports/page_table.h"

#include <string_view>
#include <vector>

namespace twk {

/// How much a finding matters to the visitor of the pages.
enum class Weight { broken, poor, hint };

/// Something about a run that its user may want to change.
struct Finding {
    std::string_view rule; ///< a name for programs, "empty-body"
    Weight weight = Weight::hint;
    Text name{};
    Text why{};
    Text remedy{};                    ///< the setting or input that changes it
    std::vector<std::size_t> pages{}; ///< rows of the table that it holds for
    std::vector<Text> items{};        ///< what else it holds for: boxes, keywords, folders, addresses
};

/// What the rules find, by weight and then in the order of the rules; a rule without a case is left out.
std::vector<Finding> find_findings(const SiteReport& report);

Text weight_name(Weight weight);

} // namespace twk
