// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

struct Run;

/// Erases the project's folder and all that is in it, and makes it and the main folder anew. Fault 75, with
/// nothing touched, for a project name that is no plain folder name.
void rebuild_output_tree(Run& run);

} // namespace twk
