// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main_window.h"

namespace twk::test {

/// Fails the test for every control of every loaded screen that its widget does not show as it is: texts,
/// captions, entries, marks, what is chosen, greyed out and hidden.
void expect_widgets_like_controls(const MainWindow& window);

} // namespace twk::test
