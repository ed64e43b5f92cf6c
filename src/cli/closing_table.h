// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commands.h"
#include "platform/text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace twk::cli {

/// What a run left in one folder of the project.
struct DestinationFigures {
    Text folder; ///< empty for the project's own folder
    int pages = 0;
    int other_files = 0; ///< pictures and movies
    std::int64_t bytes = 0;
};

/// What a run left on disk, as the command line tells it at the end.
struct ClosingFigures {
    std::vector<DestinationFigures> destinations;
    DestinationFigures total;
    double seconds = 0;
    Text site_map; ///< path of the local site map, empty when there is none
};

/// Counts the files of a project's folder. Fault 76 when there is no such folder.
ClosingFigures measure_output(const Text& project_folder);

/// A row per destination, then "45 pages, 512345 bytes, 0.42 seconds" and the local site map.
std::string closing_table(const ClosingFigures& figures);
/// The same as one JSON object.
std::string closing_json(const std::string& project, const ClosingFigures& figures);
/// What stands in its place when there was no run: project, status and the last message.
std::string failure_json(const std::string& project, Status status, const Text& message);

} // namespace twk::cli
