// SPDX-License-Identifier: MIT
#pragma once

#include "reports/page_table.h"

#include <string>

namespace twk {

/// The whole report as one page that needs nothing besides itself: findings, charts, where to upload, and the
/// table with how each page was made. It can be read without script, which only sorts and filters the table.
/// Above `stories_up_to` pages the table tells how a page was made in a few marks, and says so.
std::string report_as_html(const SiteReport& report);

inline constexpr std::size_t stories_up_to = 2000;

} // namespace twk
