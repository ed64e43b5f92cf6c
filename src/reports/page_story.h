// SPDX-License-Identifier: MIT
#pragma once

#include "reports/page_table.h"

#include <vector>

namespace twk {

/// How a page was made, in words: a sentence per line.
std::vector<Text> page_story(const SiteReport& report, const PageRow& row);

/// The same in a few marks, for a cell of a table: "box 3, 2 %, 4 sentences".
Text short_story(const PageRow& row);

} // namespace twk
