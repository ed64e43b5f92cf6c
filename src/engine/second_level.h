// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>

namespace twk {

struct Run;

/// Phase 2: a page per subkeyword in the main folder.
void second_level_pages(Run& run);

// What the layouts of a second-level page are made of.

/// Writes the way up and the links to the siblings. The siblings stand under `heading`; `always` writes them
/// whatever Check12 says.
void write_link_stack(Run& run, TextView heading, bool always);

/// Writes the content block: a drawn box, adjusted to subkeyword and keyword. `split_sentences` gives every
/// sentence its paragraph; `count_file` counts the page among the files.
void write_content_block(Run& run, bool split_sentences, bool count_file);

/// Writes animation, hidden block and the link to the hallway page. `boxes` bounds the draw of the hidden
/// box.
void write_second_level_end(Run& run, std::int16_t boxes);

/// "<!-- url ...-->" with the page's address.
Text second_level_url_comment(const Run& run);

} // namespace twk
