// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

struct Run;

/// The index page of the destination; its body is left open for the cross-links.
void index_page(Run& run);

} // namespace twk
