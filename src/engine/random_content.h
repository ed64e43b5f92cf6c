// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Fills the pool of content that the random pages draw from.
void fill_content_pool(Run& run);

/// The generated text of a random page: drawn boxes, adjusted to one or two keywords, their surplus replaced.
/// Writes the animation, when there is one, ahead of the text. Faults of the density adjustment come out.
Text tp3_content(Run& run);

/// The same, under Check5 through the synonyms.
Text random_content(Run& run);

} // namespace twk
