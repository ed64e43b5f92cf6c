// SPDX-License-Identifier: MIT
#pragma once

#include "engine/random_content.h"

namespace twk {

struct GatewaySettings;
struct Run;

/// The random pages as they are written: what they draw from, the destination and the page under way.
struct RandomPhase {
    Run& run;
    ContentPool pool;
    Text carpeta{};  ///< folder of the destination
    Text url_host{}; ///< empty at destination 0
    Text url_pagina{};
    bool es_js = false; ///< the page redirects
};

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
Text tp3_cajadekeywords(const Run& run);
Text first_level_link(const Run& run);

/// The hidden field, or an empty text.
Text tp3_hiddenform(const Run& run);

/// Two search links.
Text tp3_linktogoogle(const GatewaySettings& settings);
Text google_search_link(const GatewaySettings& settings);
Text google_related_link(const GatewaySettings& settings);

/// The picture of a random page, where pictures are wanted.
void write_random_image(RandomPhase& phase);
/// The search links, where they are wanted.
void write_google_links(Run& run);

} // namespace twk
