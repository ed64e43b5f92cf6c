// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

class RunReport;
struct GatewaySettings;
struct Project;

/// Replaces all but the first `kept` occurrences of every keyword. The status line tells of random pages,
/// with `tail` behind. Returns how many were replaced.
int limit_keywords(Project& project, const GatewaySettings& settings, RunReport& report, Text& text, int kept,
                   TextView tail = u"");

} // namespace twk
