// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Writes the read-more page of the text and appends the link to it, in place. The link holds the local path.
/// A page that cannot be written leaves the link; no fault comes out.
Text fs_rm(Run& run, Text& t);

} // namespace twk
