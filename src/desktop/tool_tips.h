// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>
#include <functional>

class QWidget;

namespace twk {

/// Shows a text as a widget's tool tip, asked for at the place of the pointer. Where there is none, the
/// widget's own tip stands.
void show_full_text(QWidget& widget, std::function<QString(QPoint)> text_at);

} // namespace twk
