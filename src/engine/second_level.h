// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>

namespace twk {

struct Run;

/// A second-level page under way.
struct SecondLevelPage {
    Run& run;
    Text subkw_actual;      ///< in lower case once the content has been counted
    Text nombre_relativo{}; ///< the page's file name
};

/// Phase 2: a page per subkeyword in the main folder.
void second_level_pages(Run& run);

// What the layouts of a second-level page are made of.

/// Writes the way up and the links to the siblings. The siblings stand under `heading`; `always` writes them
/// whether wanted or not.
void write_link_stack(Run& run, TextView heading, bool always);

/// Writes the content block: a drawn box, adjusted to subkeyword and keyword. `split_sentences` gives every
/// sentence its paragraph; `count_file` counts the page among the files.
void write_content_block(SecondLevelPage& sub, bool split_sentences, bool count_file);

/// Writes animation, hidden block and the link to the hallway page. `boxes` bounds the draw of the hidden
/// box.
void write_second_level_end(Run& run, int boxes);

/// "<!-- url ...-->" with the page's address.
Text second_level_url_comment(const SecondLevelPage& sub);

} // namespace twk
