// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;
struct PageRecord;

/// Hands a finished page to the report: path, text, where it links to and, for a random page, whether it
/// redirects. The next report index of its kind goes up by one.
void analizar_pagina(Run& run, const Text& path);
void analizar_pagina(Run& run, const Text& path, const Text& redirects, const PageRecord& made,
                     TextView siblings);

} // namespace twk
