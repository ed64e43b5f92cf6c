// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Appends to every page of a destination's folder the links to all of them and the closing tags, and hands
/// it to the report. Pages whose name does not match "*.htm*" are not seen.
void cross_link_pass(Run& run, const Text& folder);

} // namespace twk
