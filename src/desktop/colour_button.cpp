// SPDX-License-Identifier: MIT
#include "desktop/colour_button.h"

#include "desktop/qt_colour.h"

#include <QLineEdit>
#include <QPainter>
#include <QPixmap>

namespace twk {

namespace {

QColor colour_of(const QString& text) {
    bool decimal = false;
    const uint value = text.trimmed().toUInt(&decimal);
    return decimal ? to_qt_colour(value) : QColor(text.trimmed());
}

} // namespace

ColourButton::ColourButton(QWidget* parent) : QPushButton(parent) {}

void ColourButton::showEvent(QShowEvent* event) {
    QPushButton::showEvent(event);
    if (watching_) return;
    for (QWidget* form = parentWidget(); form != nullptr && !watching_; form = form->parentWidget()) {
        const auto* const found = form->findChild<QLineEdit*>(source_);
        if (found == nullptr) continue;
        watching_ = true;
        connect(found, &QLineEdit::textChanged, this, &ColourButton::show_colour);
        show_colour(found->text());
    }
}

void ColourButton::show_colour(const QString& text) {
    QPixmap swatch(iconSize() * devicePixelRatioF());
    swatch.setDevicePixelRatio(devicePixelRatioF());
    swatch.fill(Qt::transparent);
    QPainter painter(&swatch);
    const QColor colour = colour_of(text);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setBrush(colour.isValid() ? QBrush(colour) : QBrush(Qt::BDiagPattern));
    painter.drawRect(QRect(QPoint(), iconSize()).adjusted(0, 0, -1, -1));
    painter.end();
    setIcon(QIcon(swatch));
}

} // namespace twk
