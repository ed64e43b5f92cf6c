#pragma once

namespace twk {

struct Run;

/// Phase 3: the random pages of every destination, with index page and cross-links.
void random_pages(Run& run);

} // namespace twk
