#pragma once

#include "platform/screens.h"

class QWidget;

namespace twk {

class ScreenBinding;

/// Raises the events that a widget has no signal for: "Click", "DblClick", "GotFocus" and "LostFocus".
void watch_widget(ScreenBinding& binding, const ScreenMap::Control& control, QWidget& widget);

} // namespace twk
