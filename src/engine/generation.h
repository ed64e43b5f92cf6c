// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

class Form6;
struct Run;

/// The run behind "Next: Generate Gateway Pages": settings saved, project read, names planned, output tree
/// rebuilt, five phases, the local site map opened. Refusals are told and end it. A fault comes out with the
/// stage and the page under way. While a run writes, another call does nothing.
void generation_run(Form6& form);

/// The chosen template, 0 to 3; 4 when none is.
int template_index(const Run& run);

/// The status line of the report.
void status(Run& run, const Text& text);

} // namespace twk
