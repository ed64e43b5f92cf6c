// SPDX-License-Identifier: MIT
#include "engine/plan.h"

#include "engine/open_page.h"
#include "engine/page_choices.h"
#include "platform/desktop.h"

namespace twk {

Text Plan::in_main_folder(TextView file) const {
    return main_folder + Text(path_separator) + Text(file);
}

void find_folders(Plan& plan, OpenPage& page, const PageChoices& choices) {
    page.fence.emplace(beside_program(u"Projects"), choices.project_name());
    plan.project_folder = page.fence->folder();
    plan.main_folder = destination_folder(plan.project_folder, choices.main_host());
    page.fence->check(plan.main_folder);
}

void rebuild_output_tree(const Plan& plan, OpenPage& page) {
    if (dir_exists(plan.project_folder)) page.fso.DeleteFolder(plan.project_folder);
    MkDir(plan.project_folder);
    MkDir(plan.main_folder);
}

} // namespace twk
