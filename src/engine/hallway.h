// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

struct Run;

/// Fault 1001 for what the generated page will lack, once the content boxes have been measured.
void check_hallway(const Run& run);

/// Phase 4: the page that links the others, generated or made from the user's own.
void hallway_page(Run& run);

} // namespace twk
