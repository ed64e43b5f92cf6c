// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

struct Run;

/// Phase 5: the local list of all files, for the user.
void sitemap_local(Run& run);

} // namespace twk
