// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

struct Run;

/// The run behind "Next: Generate Gateway Pages": project read, names planned, output tree rebuilt, five
/// phases, the local site map opened. Refusals are told and end it. A fault comes out with the stage and the
/// page under way.
void generation_run(Run& run);

} // namespace twk
