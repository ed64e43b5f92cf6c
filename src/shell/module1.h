// SPDX-License-Identifier: MIT
#pragma once

#include "platform/module1.h"

namespace twk {

/// "major.minorrevision-program".
const Text& version_app();

/// "5 words sent to Step 2", for the status bar.
Text sent_to_step2(int words);

} // namespace twk
