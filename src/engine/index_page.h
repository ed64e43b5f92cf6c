// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// The index page of a destination's folder; its body is left open for the cross-links.
void index_page(Run& run, const Text& folder);

} // namespace twk
