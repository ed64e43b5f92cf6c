// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Phase 1: a page per keyword in the main folder.
void first_level_pages(Run& run);

/// Whether some page of the phase is certain to be fitted to the density that Step 5 asks for.
bool first_level_reads_density(Run& run);

/// The list of all first-level pages.
Text TP1_linktoprimary(const Run& run);

/// Links to the second-level pages of the keyword under way.
Text TP1_linktosecondary(const Run& run);

/// The content box fitted to keyword `k`: the tied one, or the one that its densities choose, or one by
/// chance.
Text TP1_content(Run& run, int k);

/// The hidden keyword block, empty when none is wanted.
Text TP1_hiddenform(const Run& run);

/// The closing block: the user's own HTML and the webmaster's lines.
Text TP1_elresto(const Run& run);

/// Where pictures are wanted: that of a first-level page. `letter` varies the name of a page's second
/// picture.
void write_first_level_image(Run& run, bool letter = false, TextView before = {});

} // namespace twk
