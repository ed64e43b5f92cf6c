// SPDX-License-Identifier: MIT
#include "cli/commands.h"
#include "cli/wizard.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "shell/module1.h"

#include <ostream>

namespace twk::cli {

Status check_project(const Console& console, const std::filesystem::path& application_folder,
                     const std::string& project) {
    Session session(console, application_folder);
    Wizard wizard(console, session.desktop);
    const Status status = wizard.walk_to_step5(from_utf8(project));
    if (status != Status::done) return status;
    const Form7& hosts = screen<Form7>();
    console.out << to_utf8(module1().proyecto_actual) << ": ready for Step 5 with "
                << screen<Form3>().List1.list_count() << " keywords, " << screen<Form5>().List1.list_count()
                << " content boxes and " << hosts.List1.list_count() + 1 << " gateway directories.\n";
    return Status::done;
}

} // namespace twk::cli
