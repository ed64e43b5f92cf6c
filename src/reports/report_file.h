// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <optional>
#include <string>

namespace twk {

class Form12;

/// The forms that a report is written in.
enum class ReportFormat { html, csv, json };

/// By the ending of a file's name, whatever its case; nothing for another ending.
std::optional<ReportFormat> format_of(const Text& file);

/// ".html", ".csv" or ".json".
TextView ending_of(ReportFormat format);

/// What the report holds, in UTF-8. Nothing when no run has ended. Fault 76 when its pages are gone.
std::optional<std::string> written_report(Form12& report, ReportFormat format);

/// Writes it to a file. Faults 70, 76 and those of `written_report`.
void write_report(Form12& report, ReportFormat format, const Text& file);

} // namespace twk
