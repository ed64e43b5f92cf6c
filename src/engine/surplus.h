// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

/// What goes when there is too much of it.
namespace twk {

struct Run;

/// Replaces the last `count` occurrences, case-sensitive, looked for from the end: what the replacement of
/// the reversed text gives, without reversing it. 0 leaves the text alone, -1 replaces all, below that is
/// fault 5.
void replace_last(Text& text, TextView find, TextView with, int count);

/// Replaces all but the first `kept` occurrences of every keyword. The status line tells of random pages,
/// with `tail` behind.
void limit_keywords(Run& run, Text& text, int kept, TextView tail = u"");

} // namespace twk
