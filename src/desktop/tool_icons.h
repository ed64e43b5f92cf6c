// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>

class QPainter;
class QRect;

namespace twk {

/// Draws the sign of a tool of the rail in one colour; `entry` is the rail's name for it, "rail_Form20".
void paint_tool_icon(QPainter& painter, const QRect& place, const QString& entry, const QColor& colour);

/// The same sign for a button, always in the colour of its words.
QIcon tool_icon(const QString& entry);

/// The colour of what wants attention, readable on the window's background.
QColor warning_colour(const QPalette& palette);
/// The same colour, less loud.
QColor faded(QColor colour);

} // namespace twk
