// SPDX-License-Identifier: MIT
#include "desktop/step_bar.h"

#include <QPainter>
#include <array>

namespace twk {

namespace {

const std::array<const char*, 6> step_names = {"Properties", "Keywords",   "Content",
                                               "Hosts",      "Generation", "File names"};
constexpr int step_count = static_cast<int>(step_names.size());

} // namespace

StepBar::StepBar(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setStep(1);
}

void StepBar::setStep(int step) {
    step_ = qBound(1, step, step_count);
    setAccessibleName(tr("Step %1 of %2").arg(step_).arg(step_count));
    setToolTip(accessibleName());
    update();
}

QSize StepBar::sizeHint() const {
    return {step_count * fontMetrics().averageCharWidth() * 18, fontMetrics().height() * 2 + 4};
}

QSize StepBar::minimumSizeHint() const {
    return {step_count * fontMetrics().height() * 2, sizeHint().height()};
}

void StepBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette& colours = palette();
    const int disc = fontMetrics().height() + 8;
    const int place = width() / step_count;
    const bool with_names = place > disc + 8 + fontMetrics().horizontalAdvance(QStringLiteral("File names"));
    const int middle = height() / 2;
    for (int i = 0; i < step_count; ++i) {
        const bool present = i + 1 == step_;
        const bool done = i + 1 < step_;
        const QRect circle(i * place + 1, middle - disc / 2, disc, disc);
        painter.setPen(present || done ? colours.color(QPalette::Highlight) : colours.color(QPalette::Mid));
        painter.setBrush(present ? colours.brush(QPalette::Highlight) : QBrush(Qt::NoBrush));
        painter.drawEllipse(circle);
        painter.setPen(colours.color(present ? QPalette::HighlightedText : QPalette::WindowText));
        QFont font = this->font();
        font.setBold(present);
        painter.setFont(font);
        painter.drawText(circle, Qt::AlignCenter, QString::number(i + 1));
        if (!with_names) continue;
        painter.setPen(colours.color(QPalette::WindowText));
        const QRect label(circle.right() + 6, 0, place - disc - 8, height());
        painter.drawText(label, Qt::AlignVCenter | Qt::AlignLeft,
                         QString::fromLatin1(step_names[static_cast<std::size_t>(i)]));
    }
}

} // namespace twk
