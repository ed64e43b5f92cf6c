// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <cstdint>

namespace twk {

/// The colour of a number as the program holds it: blue, green, red from the high byte down.
inline QColor to_qt_colour(std::uint32_t value) {
    return QColor(static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF),
                  static_cast<int>(value >> 16 & 0xFF));
}

} // namespace twk
