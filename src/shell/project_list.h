// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <vector>

namespace twk {

/// A project as the empty start lists it.
struct ProjectLine {
    Text name;
    int keywords = 0;
    int boxes = 0;
    Text last_run; ///< "2026-11-24 10:18", local time; empty when it has no pages
};

/// Name of the project that the store is delivered with.
inline constexpr TextView sample_project = u"garden-sample";

/// When the last page of the project's last run was written, which is the local site map; empty when it is
/// not there.
Text last_run_of(const Text& project);

/// All projects in the order of the store. The faults of the store.
std::vector<ProjectLine> project_lines();

/// Opens a project by the project manager's own events. One that has been deleted meanwhile is refused there.
void open_listed_project(const Text& name);
/// Starts a new project in the same way.
void start_new_project();

} // namespace twk
