// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// The text with the words of its first part replaced from the synonym dictionary, both ways: a word by its
/// synonym and a synonym by its word. How large the part is depends on the seconds of the clock. Tags get
/// blanks around them, runs of blanks become one. Faults of the store come out.
Text sinonimo(Run& run, const Text& texto);

} // namespace twk
