// SPDX-License-Identifier: MIT
#include "cli/commands.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <ostream>

#include <CLI/CLI.hpp>

namespace twk::cli {

namespace {

/// "2026-11-24 10:18:05"; nothing when it is no such moment.
std::optional<LocalTime> parse_moment(const std::string& text) {
    LocalTime at;
    char rest = 0;
    // The widths keep every number in range; `read` tells what could not be read.
    // NOLINTNEXTLINE(cert-err34-c)
    const int read = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%c", &at.year, &at.month, &at.day,
                                 &at.hour, &at.minute, &at.second, &rest);
    if (read != 6 || at.year < 1900 || !(std::chrono::year{at.year} / at.month / at.day).ok()) return {};
    const auto within = [](int value, int most) { return value >= 0 && value <= most; };
    if (!within(at.hour, 23) || !within(at.minute, 59) || !within(at.second, 59)) return {};
    return at;
}

std::string check_moment(const std::string& text) {
    return parse_moment(text) ? "" : "not a moment of the form \"YYYY-MM-DD HH:MM:SS\": " + text;
}

std::filesystem::path folder_of_program() {
    std::error_code ignored;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
    return ignored ? std::filesystem::current_path() : program.parent_path();
}

Status run_command(std::vector<std::string> arguments, const Console& console) {
    ::CLI::App app{"Generates the gateway pages of the projects in the application folder.", "tarnwick-cli"};
    std::filesystem::path folder = folder_of_program();
    app.add_option("--app", folder, "Application folder; by default that of this program")
        ->type_name("DIR")
        ->check(::CLI::ExistingDirectory);
    app.set_version_flag("--version", TARNWICK_VERSION);
    app.require_subcommand(1);
    app.footer("Status: 0 done, 1 a fault, 2 wrong usage, 3 refused by a check of the wizard.");

    const auto* const list = app.add_subcommand("list", "List the projects");

    GenerateOptions options;
    ExplainOptions explained;
    std::string now;
    const auto add_now = [&now](::CLI::App* command) {
        command->add_option("--now", now, "Moment that the run takes for the present")
            ->type_name("\"YYYY-MM-DD HH:MM:SS\"")
            ->check(::CLI::Validator(check_moment, ""));
    };
    auto* const generate = app.add_subcommand("generate", "Generate the pages of a project");
    generate->add_option("project", options.project, "Name of the project")->type_name("PROJECT")->required();
    generate
        ->add_option("--seed", options.seed,
                     "Start of the random numbers: the same seed gives the same pages")
        ->type_name("N");
    add_now(generate);
    generate
        ->add_option("--report", options.report,
                     "Write the report of all pages to a file: .html, .csv or .json by its ending, else JSON")
        ->type_name("FILE");
    generate->add_flag("--json", options.json, "Print the closing figures as JSON");

    auto* const check = app.add_subcommand("check", "Walk a project through the checks of the wizard");
    check->add_option("project", options.project, "Name of the project")->type_name("PROJECT")->required();

    auto* const explain =
        app.add_subcommand("explain", "Tell how a seeded run makes one page; no file of the project changes");
    explain->add_option("project", explained.project, "Name of the project")
        ->type_name("PROJECT")
        ->required();
    explain->add_option("page", explained.page, "The page: FILE, FOLDER/FILE or its address")
        ->type_name("PAGE")
        ->required();
    explain->add_option("--seed", explained.seed, "The seed that `generate` was given")
        ->type_name("N")
        ->required();
    add_now(explain);

    try {
        std::reverse(arguments.begin(), arguments.end()); // the parser takes them from the back
        app.parse(arguments);
    } catch (const ::CLI::ParseError& error) {
        return app.exit(error, console.out, console.err) == 0 ? Status::done : Status::usage;
    }
    if (list->parsed()) return list_projects(console, folder);
    if (check->parsed()) return check_project(console, folder, options.project);
    options.now = explained.now = parse_moment(now);
    if (explain->parsed()) return explain_page(console, folder, explained);
    return generate_project(console, folder, options);
}

} // namespace

int run_command_line(std::vector<std::string> arguments, const Console& console) {
    try {
        return static_cast<int>(run_command(std::move(arguments), console));
    } catch (const std::exception& error) {
        console.err << "tarnwick-cli: " << error.what() << '\n';
        return static_cast<int>(Status::fault);
    }
}

} // namespace twk::cli
