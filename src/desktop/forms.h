// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class QWidget;

namespace twk {

/// The form drawn for a screen, not shown yet; null when there is none of that name.
QWidget* make_form(const std::string& screen);

} // namespace twk
