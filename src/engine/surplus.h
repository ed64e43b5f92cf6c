#pragma once

#include "platform/text.h"

namespace twk {

/// Replaces the last `count` occurrences, case-sensitive, looked for from the end: what the replacement of
/// the reversed text gives, without reversing it. 0 leaves the text alone, -1 replaces all, below that is
/// fault 5.
void replace_last(Text& text, TextView find, TextView with, int count);

} // namespace twk
