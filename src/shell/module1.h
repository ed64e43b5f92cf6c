// SPDX-License-Identifier: MIT
#pragma once

#include "platform/module1.h"

namespace twk {

/// "major.minorrevision-program".
const Text& version_app();

} // namespace twk
