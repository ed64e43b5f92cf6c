// SPDX-License-Identifier: MIT
#include "cli/closing_table.h"
#include "cli/commands.h"
#include "cli/wizard.h"
#include "engine/run.h"
#include "platform/file_system.h"
#include "reports/form12.h"
#include "reports/report_file.h"
#include "settings/form6.h"

#include <chrono>
#include <fstream>
#include <ostream>

namespace twk::cli {

namespace {

Status walk_and_generate(const Console& console, Session& session, const std::string& project) {
    Wizard wizard(console, session.desktop);
    if (const Status status = wizard.walk_to_step5(from_utf8(project)); status != Status::done) return status;
    session.desktop.tell_progress(true);
    const Status status = wizard.generate();
    session.desktop.tell_progress(false);
    session.desktop.end_progress();
    return status;
}

/// The folder is proved before a run that may take minutes.
bool can_be_written(const std::filesystem::path& file) {
    std::error_code ignored;
    const auto folder = std::filesystem::absolute(file).parent_path();
    return std::filesystem::is_directory(folder, ignored) && !std::filesystem::is_directory(file, ignored);
}

Status write_report(const Console& console, const std::filesystem::path& file) {
    // An ending that is none of these has always been JSON.
    const ReportFormat format = format_of(from_utf8(file.string())).value_or(ReportFormat::json);
    const std::optional<std::string> written = written_report(screen<Form12>(), format);
    std::ofstream stream(file, std::ios::binary);
    stream << written.value_or("");
    stream.close();
    if (stream) return Status::done;
    console.err << "The report could not be written to " << file.string() << ".\n";
    return Status::fault;
}

} // namespace

Status generate_project(const Console& console, const std::filesystem::path& application_folder,
                        const GenerateOptions& options) {
    if (!options.report.empty() && !can_be_written(options.report)) {
        console.err << "The report cannot be written to " << options.report.string() << ".\n";
        return Status::fault;
    }
    // With --json nothing but the figures goes to the output: what is told on the way goes to the other side.
    const Console talk{options.json ? console.err : console.out, console.err,
                       console.terminal && !options.json};
    Session session(talk, application_folder, options.seed, options.now);
    const auto start = std::chrono::steady_clock::now();
    const Status status = walk_and_generate(talk, session, options.project);
    if (status != Status::done) {
        const std::vector<Text>& messages = session.desktop.messages();
        if (options.json)
            console.out << failure_json(options.project, status, messages.empty() ? Text() : messages.back());
        return status;
    }
    ClosingFigures figures = measure_output(screen<Form6>().run->plan.project_folder);
    figures.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (!session.desktop.opened().empty())
        figures.site_map = from_utf8(disk_path(session.desktop.opened())); // in the case that it has on disk
    console.out << (options.json ? closing_json(options.project, figures) : closing_table(figures));
    return options.report.empty() ? Status::done : write_report(console, options.report);
}

} // namespace twk::cli
