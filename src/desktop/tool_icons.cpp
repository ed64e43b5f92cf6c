// SPDX-License-Identifier: MIT
#include "desktop/tool_icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <map>

namespace twk {

namespace {

// Each sign is drawn in a square of 16 by 16.

void two_words(QPainterPath& path) {
    path.addRoundedRect(1, 2, 9, 6, 1.5, 1.5);
    path.addRoundedRect(6, 9, 9, 5, 1.5, 1.5);
}

void web(QPainterPath& path) {
    path.addEllipse(QPointF(8, 8), 6.5, 6.5);
    path.addEllipse(QPointF(8, 8), 2.8, 6.5);
    path.moveTo(1.5, 8);
    path.lineTo(14.5, 8);
}

void wand(QPainterPath& path) {
    path.moveTo(2, 14);
    path.lineTo(10, 6);
    for (const QPointF& star : {QPointF(12, 4), QPointF(5, 3.5), QPointF(13, 11)}) {
        path.moveTo(star - QPointF(0, 2));
        path.lineTo(star + QPointF(0, 2));
        path.moveTo(star - QPointF(2, 0));
        path.lineTo(star + QPointF(2, 0));
    }
}

void into_a_box(QPainterPath& path) {
    path.moveTo(8, 1.5);
    path.lineTo(8, 10);
    path.moveTo(4.5, 6.5);
    path.lineTo(8, 10);
    path.lineTo(11.5, 6.5);
    path.moveTo(2, 10);
    path.lineTo(2, 14);
    path.lineTo(14, 14);
    path.lineTo(14, 10);
}

void lens(QPainterPath& path) {
    path.addEllipse(QPointF(6.5, 6.5), 4.8, 4.8);
    path.moveTo(10.2, 10.2);
    path.lineTo(14.5, 14.5);
}

void columns(QPainterPath& path) {
    path.moveTo(1.5, 14.5);
    path.lineTo(14.5, 14.5);
    path.addRect(3, 8, 2.5, 6.5);
    path.addRect(7, 3, 2.5, 11.5);
    path.addRect(11, 6, 2.5, 8.5);
}

} // namespace

void paint_tool_icon(QPainter& painter, const QRect& place, const QString& entry, const QColor& colour) {
    static const std::map<QString, void (*)(QPainterPath&)> signs = {
        {QStringLiteral("rail_Form10"), two_words}, {QStringLiteral("rail_Form20"), web},
        {QStringLiteral("rail_Form19"), wand},      {QStringLiteral("rail_Form11"), into_a_box},
        {QStringLiteral("rail_Form23"), lens},      {QStringLiteral("rail_Form12"), columns},
    };
    const auto sign = signs.find(entry);
    if (sign == signs.end()) return;
    QPainterPath path;
    sign->second(path);
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(place.width() / 16.0, place.height() / 16.0);
    painter.setPen(QPen(colour, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
    painter.restore();
}

namespace {

/// Is drawn anew whenever it is shown, as the palette may have changed.
class SignEngine : public QIconEngine {
  public:
    explicit SignEngine(QString entry) : entry_(std::move(entry)) {}
    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->setRenderHint(QPainter::Antialiasing);
        paint_tool_icon(*painter, place, entry_,
                        QGuiApplication::palette().color(group, QPalette::ButtonText));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap made(size);
        made.fill(Qt::transparent);
        QPainter painter(&made);
        paint(&painter, made.rect(), mode, state);
        return made;
    }
    QIconEngine* clone() const override { return new SignEngine(*this); }

  private:
    QString entry_;
};

} // namespace

QIcon tool_icon(const QString& entry) {
    return QIcon(new SignEngine(entry));
}

QColor warning_colour(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    return dark ? QColor(0xf2, 0xb1, 0x4a) : QColor(0xa8, 0x55, 0x00);
}

QColor faded(QColor colour) {
    colour.setAlphaF(0.7F);
    return colour;
}

} // namespace twk
