// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// The command line: `tarnwick-cli [--app DIR] list | generate PROJECT | check PROJECT |
/// explain PROJECT PAGE`.
namespace twk::cli {

/// How a command ended, as the process tells it.
enum class Status : int {
    done = 0,
    fault = 1,   ///< a fault ended an event; its message was shown
    usage = 2,   ///< the command line itself is wrong
    refused = 3, ///< a check of the wizard said no; its message was shown
};

/// Where a command writes: what was asked for to `out`, messages and faults to `err`.
struct Console {
    std::ostream& out;
    std::ostream& err;
    bool terminal = false; ///< `out` is a terminal, where a progress line can be written over
};

struct GenerateOptions {
    std::string project;
    std::optional<std::uint64_t> seed;
    std::optional<LocalTime> now; ///< the clock stands there for the whole run
    std::filesystem::path report; ///< empty for none
    bool json = false;            ///< the closing figures as JSON, and nothing else, on `out`
};

struct ExplainOptions {
    std::string project, page;
    std::uint64_t seed = 0;
    std::optional<LocalTime> now;
};

/// Names of all projects in the order of the store, one a line.
Status list_projects(const Console& console, const std::filesystem::path& application_folder);

/// Walks the wizard up to Step 5 with all its checks, without a run.
Status check_project(const Console& console, const std::filesystem::path& application_folder,
                     const std::string& project);

/// Walks the wizard and lets the run write its pages.
Status generate_project(const Console& console, const std::filesystem::path& application_folder,
                        const GenerateOptions& options);

/// Lets a seeded run write its pages into a folder of its own, which goes afterwards, and tells how one of
/// them was made. Refused when there is no such page.
Status explain_page(const Console& console, const std::filesystem::path& application_folder,
                    const ExplainOptions& options);

/// The whole program: reads the arguments (without the program's name) and runs the command. Returns the
/// process's status; no exception comes out.
int run_command_line(std::vector<std::string> arguments, const Console& console);

} // namespace twk::cli
