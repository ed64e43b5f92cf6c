// SPDX-License-Identifier: MIT
#pragma once

#include "reports/page_table.h"

#include <string>

namespace twk {

/// What the report holds, page by page: a JSON array, paths relative to the application folder. Figures are
/// numbers; one that could not be computed is null. The pages of `site` are those of `pages` that have a
/// path, in their order.
std::string report_as_json(const std::vector<PageAnalysis>& pages, const SiteReport& site);

} // namespace twk
