// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <vector>

namespace twk {

/// What a run left in one folder of a project.
struct OutputFolder {
    Text folder; ///< its name; empty for the project's own folder
    int pages = 0;
    int other_files = 0; ///< pictures and movies
    std::int64_t bytes = 0;
    std::vector<Text> files{}; ///< their names
};

/// Whether a file is a page. Pages may have any extension or none at all; pictures and movies are told by
/// theirs.
bool is_page_file(const Text& name);

/// The folders of a project by name, its own one last. Fault 76 when there is no such folder.
std::vector<OutputFolder> measure_folders(const Text& project_folder);

} // namespace twk
