// SPDX-License-Identifier: MIT
#include "cli/closing_table.h"

#include "reports/output_folders.h"

#include <algorithm>
#include <cstdio>

#include <nlohmann/json.hpp>

namespace twk::cli {

namespace {

using Json = nlohmann::ordered_json;

std::string row(const std::string& name, std::size_t width, const std::string& pages,
                const std::string& other, const std::string& bytes) {
    char figures[96];
    std::snprintf(figures, sizeof figures, "  %7s  %11s  %12s\n", pages.c_str(), other.c_str(),
                  bytes.c_str());
    return name + std::string(width - std::min(width, name.size()), ' ') + figures;
}

/// The object as text. A name on the command line may be no text at all: what is none of UTF-8 is replaced.
std::string lines(const Json& object) {
    return object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace

ClosingFigures measure_output(const Text& project_folder) {
    ClosingFigures figures;
    for (const OutputFolder& each : measure_folders(project_folder))
        figures.destinations.push_back({each.folder, each.pages, each.other_files, each.bytes});
    for (const DestinationFigures& each : figures.destinations) {
        figures.total.pages += each.pages;
        figures.total.other_files += each.other_files;
        figures.total.bytes += each.bytes;
    }
    return figures;
}

std::string closing_table(const ClosingFigures& figures) {
    std::size_t width = 11;
    for (const auto& each : figures.destinations) width = std::max(width, to_utf8(each.folder).size());
    std::string table = row("Destination", width, "Pages", "Other files", "Bytes");
    for (const auto& each : figures.destinations)
        table +=
            row(each.folder.empty() ? "(for you)" : to_utf8(each.folder), width, std::to_string(each.pages),
                std::to_string(each.other_files), std::to_string(each.bytes));
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.2f", figures.seconds);
    table += std::to_string(figures.total.pages) + " pages, " + std::to_string(figures.total.bytes) +
             " bytes, " + seconds + " seconds\n";
    if (!figures.site_map.empty()) table += "local site map: " + to_utf8(figures.site_map) + "\n";
    return table;
}

std::string closing_json(const std::string& project, const ClosingFigures& figures) {
    Json destinations = Json::array();
    for (const auto& each : figures.destinations)
        destinations.push_back({{"folder", to_utf8(each.folder)},
                                {"pages", each.pages},
                                {"other_files", each.other_files},
                                {"bytes", each.bytes}});
    const Json all = {{"project", project},
                      {"status", 0},
                      {"pages", figures.total.pages},
                      {"bytes", figures.total.bytes},
                      {"seconds", figures.seconds},
                      {"site_map", to_utf8(figures.site_map)},
                      {"destinations", std::move(destinations)}};
    return lines(all);
}

std::string failure_json(const std::string& project, Status status, const Text& message) {
    return lines({{"project", project}, {"status", static_cast<int>(status)}, {"message", to_utf8(message)}});
}

} // namespace twk::cli
