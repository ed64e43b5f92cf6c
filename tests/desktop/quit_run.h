// SPDX-License-Identifier: MIT
#pragma once

namespace twk::test {

inline constexpr const char* quit_argument = "--quit-in-the-middle";

/// In a process of its own: starts a run on the project in `folder` and quits while pages are written.
/// Returns only when the program has not ended.
int quit_in_the_middle(const char* folder);

} // namespace twk::test
