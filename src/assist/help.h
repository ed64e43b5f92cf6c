// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

/// Shows the help at an anchor ("form1"), or its beginning for an empty one.
void mostrar_ayuda(const Text& anchor);

/// Opens the maker's site in the system's browser.
void open_maker_site();

} // namespace twk
