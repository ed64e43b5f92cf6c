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

    /// How often it holds: its pages, or what else there is when it speaks of none.
    std::size_t cases() const { return pages.empty() ? items.size() : pages.size(); }
};

/// What the rules find, by weight and then in the order of the rules; a rule without a case is left out.
std::vector<Finding> find_findings(const SiteReport& report);

/// The findings of each row of a table of so many, as indices in their order.
std::vector<std::vector<std::size_t>> findings_of_pages(const std::vector<Finding>& findings,
                                                        std::size_t pages);

Text weight_name(Weight weight);

} // namespace twk
