// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

struct Run;

/// Phase 4: the page that links the others, generated or made from the user's own.
void hallway_page(Run& run);

} // namespace twk
