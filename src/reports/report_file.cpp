// SPDX-License-Identifier: MIT
#include "reports/report_file.h"

#include "platform/file_system.h"
#include "reports/form12.h"
#include "reports/report_csv.h"
#include "reports/report_html.h"
#include "reports/report_json.h"

namespace twk {

std::optional<ReportFormat> format_of(const Text& file) {
    const Text name = LCase(file);
    if (name.ends_with(u".html") || name.ends_with(u".htm")) return ReportFormat::html;
    if (name.ends_with(u".csv")) return ReportFormat::csv;
    if (name.ends_with(u".json")) return ReportFormat::json;
    return {};
}

TextView ending_of(ReportFormat format) {
    return format == ReportFormat::html ? u".html" : format == ReportFormat::csv ? u".csv" : u".json";
}

std::optional<std::string> written_report(Form12& report, ReportFormat format) {
    const std::shared_ptr<const SiteReport> site = report.overview();
    if (!site) return {};
    switch (format) {
    case ReportFormat::html: return report_as_html(*site);
    case ReportFormat::csv: return report_as_csv(*site);
    case ReportFormat::json: return report_as_json(report.informe, *site);
    }
    return {};
}

void write_report(Form12& report, ReportFormat format, const Text& file) {
    const std::optional<std::string> written = written_report(report, format);
    if (!written) return;
    FileSystemObject fso;
    const Text aux = file + u"aux";
    const TextStreamPtr out = fso.OpenTextFile(aux, OpenMode::writing, true);
    out->write(from_utf8(*written));
    out->Close();
    fso.ReplaceFile(aux, file);
}

} // namespace twk
