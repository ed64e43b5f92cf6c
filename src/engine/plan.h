// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <vector>

namespace twk {

class PageChoices;
struct OpenPage;

/// A random page of the plan: name and host it belongs to.
struct PlannedPage {
    Text name; ///< without extension until Step 6 has shown it, afterwards perhaps with it
    Text host;
};

/// Which pages a run writes, and where.
struct Plan {
    Text extension;       ///< with its point
    Text separador;       ///< word separator of file names, read once
    Text archivo_sitemap; ///< file name of the hallway page

    std::vector<Text> nombres; ///< random page names, without extension
    std::int16_t n_nombres = 0;
    std::vector<PlannedPage> paginas;  ///< 0 to n_nombres
    std::int16_t paginas_host = 0;     ///< random pages per destination
    std::vector<Text> ultima_por_host; ///< the latest page of each destination, by its address

    Text project_folder; ///< `Projects` and the project's name
    Text main_folder;    ///< the main destination's folder in it

    /// Name of the main destination's folder.
    Text main_folder_name() const { return Mid(main_folder, Len(project_folder) + 2); }
    /// Path of a page of the main destination.
    Text in_main_folder(TextView file) const;
};

/// Where the project's pages go: sets the fence around its folder, and the folders. Fault 75 for a project
/// name that is no plain folder name.
void find_folders(Plan& plan, OpenPage& page, const PageChoices& choices);

/// Erases the project's folder and all that is in it, and makes it and the main folder anew.
void rebuild_output_tree(const Plan& plan, OpenPage& page);

} // namespace twk
