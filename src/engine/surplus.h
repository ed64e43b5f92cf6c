// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

/// What goes when there is too much of it.
namespace twk {

struct Run;

/// Replaces all but the first `kept` occurrences of every keyword. The status line tells of random pages,
/// with `tail` behind.
void limit_keywords(Run& run, Text& text, int kept, TextView tail = u"");

} // namespace twk
