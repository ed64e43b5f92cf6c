// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Phase 3: the random pages of every destination, with index page and cross-links.
void random_pages(Run& run);

/// Writes the meta tags of random and index pages, and "</head>". `revisit_attribute` carries the value of
/// the revisit line.
void write_random_head(Run& run, TextView revisit_attribute);

// What the layouts of a random page are made of.

/// The heading block, by chance with a link to the target. Leaves the address in `enlace_padre`. Fault 1001
/// when a link needs a second keyword and the project has one.
Text tp3_linktotarget(Run& run);

/// The links to the hallway page and to a first-level page, and the second of them alone. Fault 1001 when no
/// keyword behind the first can be drawn.
Text tp3_cajadekeywords(Run& run);
Text first_level_link(Run& run);

/// The hidden field, or an empty text.
Text tp3_hiddenform(Run& run);

/// Two search links.
Text tp3_linktogoogle(const Run& run);
Text google_search_link(const Run& run);
Text google_related_link(const Run& run);

/// The picture of a random page under Check2.
void write_random_image(Run& run);
/// The search links under Check7.
void write_google_links(Run& run);

} // namespace twk
