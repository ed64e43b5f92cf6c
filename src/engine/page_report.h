// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Hands a finished page to the report: path, text, and the strings of its kind. The next report index of the
/// kind goes up by one. `url` is told to nobody else.
void analizar_pagina(Run& run, const Text& path, const Text& url);

} // namespace twk
