// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Writes the meta tags whose switches are on, and "</head>". `lista` is the keyword list, separated by ",".
void meta(Run& run, TextView titulo, TextView lista);

/// The body tag of the template, and before the third phase the redirection, which draws an address.
Text body(Run& run);

/// Address of a link to the target site: the main one, or one of the others by chance. Draws nothing when
/// there are no others.
Text target(Run& run);

} // namespace twk
