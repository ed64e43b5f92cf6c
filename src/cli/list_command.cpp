// SPDX-License-Identifier: MIT
#include "cli/commands.h"
#include "cli/wizard.h"

#include <ostream>

namespace twk::cli {

Status list_projects(const Console& console, const std::filesystem::path& application_folder) {
    Session session(console, application_folder);
    std::vector<Text> names;
    const Status status = Wizard(console, session.desktop).projects(names);
    for (const Text& name : names) console.out << to_utf8(name) << '\n';
    return status;
}

} // namespace twk::cli
