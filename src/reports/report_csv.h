// SPDX-License-Identifier: MIT
#pragma once

#include "reports/page_table.h"

#include <string>

namespace twk {

/// The page table with a line of headings, for a spreadsheet: UTF-8, marked when it holds more than ASCII. No
/// cell is taken for a formula.
std::string report_as_csv(const SiteReport& report);

/// A text as one cell: quoted where it must be, an apostrophe in front of what would be a formula.
std::string csv_cell(TextView text);

} // namespace twk
