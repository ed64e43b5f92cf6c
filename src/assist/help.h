#pragma once

#include "platform/text.h"

namespace twk {

/// Shows the help page at an anchor: "form1", "form2", ...
void mostrar_ayuda(TextView anchor);

} // namespace twk
