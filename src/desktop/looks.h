// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

class QWidget;

namespace twk {

/// All letters are of one of these sizes, in proportion to the system's own. Gaps are the style's own; what
/// belongs closely together stands 2 apart, what does not 12.
enum class Letters { small, heading, title };
QFont sized(QFont font, Letters size);

/// Gives a form what Designer has no word for: its `large` labels their letters, its buttons with a `sign`
/// the icon, which follows the palette.
void dress(QWidget& form);

} // namespace twk
