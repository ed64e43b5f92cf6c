// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

class PageChoices;
struct OpenPage;
struct Project;

/// Writes the meta tags whose switches are on, and "</head>". `lista` is the keyword list, separated by ",".
void meta(OpenPage& page, const PageChoices& choices, const Project& project, TextView titulo,
          TextView lista);

/// The body tag of the layout, and before the third phase the redirection, which draws an address.
Text body(const PageChoices& choices, int fase);

/// Address of a link to the target site: the main one, or one of the others by chance. Draws nothing when
/// there are no others.
Text target(const PageChoices& choices);

} // namespace twk
