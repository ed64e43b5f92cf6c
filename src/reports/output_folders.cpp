// SPDX-License-Identifier: MIT
#include "reports/output_folders.h"

#include "platform/file_system.h"

namespace twk {

namespace {

OutputFolder measure_folder(const Text& path, const Text& name) {
    OutputFolder measured{.folder = name, .files = list_files(path, u"*")};
    for (const Text& file : measured.files) {
        ++(is_page_file(file) ? measured.pages : measured.other_files);
        measured.bytes += FileLen(joined_path(path, file));
    }
    return measured;
}

} // namespace

bool is_page_file(const Text& name) {
    const Text lower = LCase(name);
    return !lower.ends_with(u".gif") && !lower.ends_with(u".jpg") && !lower.ends_with(u".swf");
}

std::vector<OutputFolder> measure_folders(const Text& project_folder) {
    std::vector<OutputFolder> folders;
    for (const Text& folder : list_folders(project_folder))
        folders.push_back(measure_folder(joined_path(project_folder, folder), folder));
    folders.push_back(measure_folder(project_folder, {}));
    return folders;
}

} // namespace twk
