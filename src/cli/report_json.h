// SPDX-License-Identifier: MIT
#pragma once

#include "reports/form12.h"

#include <string>

namespace twk::cli {

/// What the report holds, page by page: a JSON array, paths relative to the application folder. Figures are
/// numbers; one that could not be computed is null.
std::string report_as_json(const std::vector<PageAnalysis>& pages, const std::vector<Text>& keywords);

} // namespace twk::cli
