// SPDX-License-Identifier: MIT
#include "engine/plan.h"

#include "engine/open_page.h"
#include "engine/page_choices.h"
#include "platform/desktop.h"

namespace twk {

Text Plan::in_main_folder(TextView file) const {
    return joined_path(main_folder, file);
}

namespace {

/// Fault 75 for an address that no folder can be named after.
void check_destination(const Plan& plan, const Text& address, TextView control) {
    const Text name = Mid(destination_folder(plan.project_folder, address), Len(plan.project_folder) + 2);
    constexpr std::size_t most_bytes = 255;
    if (!name.empty() && name != u"." && name != u".." && to_utf8(name).size() <= most_bytes) return;
    throw told_fault(fault_path_access, Text(control) + u" of Step 4 is \"" + address +
                                            u"\", after which no folder can be named; an address such as "
                                            u"http://www.mysite.com/pages would do.");
}

} // namespace

void find_folders(Plan& plan, OpenPage& page, const PageChoices& choices) {
    page.fence.emplace(beside_program(u"Projects"), choices.project_name());
    plan.project_folder = page.fence->folder();
    plan.main_folder = destination_folder(plan.project_folder, choices.main_host());
    for (const char16_t* const behind : {u"", u"_More_Files"})
        check_destination(plan, choices.main_host() + behind, u"The main gateway directory");
    for (const Text& host : choices.secondary_hosts())
        check_destination(plan, host, u"A secondary gateway directory");
    page.fence->within(plan.main_folder);
}

void rebuild_output_tree(const Plan& plan, OpenPage& page) {
    const FencedPath project = page.fence->itself();
    if (dir_exists(plan.project_folder)) page.fso.DeleteFolder(project);
    page.fence->forget();
    MkDir(project.as_given());
    MkDir(page.fence->within(plan.main_folder));
}

} // namespace twk
