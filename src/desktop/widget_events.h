// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

class QWidget;

namespace twk {

class ScreenBinding;

/// Raises the events that a widget has no signal for: "Click", "DblClick", "GotFocus" and "LostFocus".
void watch_widget(ScreenBinding& binding, const ScreenMap::Control& control, QWidget& widget);

/// Gives a widget the focus. While its window is not the active one, as right behind a message, it is given
/// once the window is active again, since that brings the focus back to where it was before.
void give_focus(QWidget& widget);
/// How often that has been done.
int times_focus_given();

} // namespace twk
