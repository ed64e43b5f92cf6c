// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Opens a page for writing: proves that the page itself can be opened, making an empty one when there is
/// none, and starts `run.salida` on its sibling, the name plus "aux". Fault 75 when the path leaves the
/// project.
void open_page(Run& run, const Text& path);

/// Closes both streams; the sibling takes the page's place. Counts the page.
void close_page(Run& run, const Text& path);

/// The folder of a destination: its address as one segment.
Text destination_folder(const Run& run, TextView address);

/// Copies a delivered file into a folder of the project, overwriting.
void copy_into_project(Run& run, const Text& from, const Text& to);

} // namespace twk
