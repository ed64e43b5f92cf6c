// SPDX-License-Identifier: MIT
#include "desktop/chart_view.h"

#include "desktop/qt_text.h"

#include <QPainter>

namespace twk {

ChartView::ChartView(QWidget* parent) : QWidget(parent) {
    setMinimumSize(260, 150);
    setAccessibleName(QStringLiteral("Chart"));
}

void ChartView::show(Histogram chart) {
    setAccessibleDescription(to_qt(chart.title));
    chart_ = std::move(chart);
    update();
}

void ChartView::show(LinkMatrix chart) {
    setAccessibleDescription(QStringLiteral("Links between kinds of pages"));
    chart_ = std::move(chart);
    update();
}

void ChartView::clear() {
    chart_ = {};
    update();
}

QColor ChartView::colour(int kind, const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    const auto& colours = dark ? kind_colours_on_dark : kind_colours_on_light;
    return {colours[kind >= 1 && kind <= 3 ? static_cast<std::size_t>(kind) : 0]};
}

void ChartView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (const auto* const bars = std::get_if<Histogram>(&chart_)) draw(painter, *bars);
    if (const auto* const matrix = std::get_if<LinkMatrix>(&chart_)) draw(painter, *matrix);
}

void ChartView::draw(QPainter& painter, const Histogram& chart) const {
    if (chart.bars.empty()) return;
    const QFontMetrics letters(font());
    const int line = letters.height();
    const int key = line + 6;
    const int margin = letters.horizontalAdvance(QString::number(chart.most)) + 12;
    const QRect plot = rect().adjusted(margin, key + 4, -10, -2 * line - 6);
    const double step = static_cast<double>(plot.width()) / static_cast<double>(chart.bars.size());
    int x = margin;
    for (const int kind : {1, 2, 3}) {
        painter.fillRect(QRect(x, 7, 10, 10), colour(kind, palette()));
        const QString name = to_qt(kind_name(kind));
        painter.drawText(x + 15, 4 + letters.ascent(), name);
        x += 25 + letters.horizontalAdvance(name);
    }
    for (std::size_t b = 0; b < chart.bars.size(); ++b) {
        double base = plot.bottom();
        for (const int kind : {1, 2, 3, 0}) {
            const double height =
                static_cast<double>(chart.bars[b].of_kinds[static_cast<std::size_t>(kind)]) * plot.height() /
                chart.most;
            base -= height;
            painter.fillRect(QRectF(plot.left() + static_cast<double>(b) * step + 1, base,
                                    std::max(1.0, step - 2), height),
                             colour(kind, palette()));
        }
    }
    painter.setPen(palette().color(QPalette::Text));
    painter.drawLine(plot.topLeft(), plot.bottomLeft());
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
    const auto under = [&](const QString& text, Qt::Alignment side, int lines) {
        painter.drawText(QRect(plot.left(), plot.bottom() + 2 + lines * line, plot.width(), line), text,
                         side);
    };
    const double from = chart.bars.front().from, to = chart.bars.back().to;
    under(QString::number(from), Qt::AlignLeft, 0);
    under(QString::number((from + to) / 2), Qt::AlignHCenter, 0);
    under(QString::number(to), Qt::AlignRight, 0);
    under(to_qt(chart.unit), Qt::AlignHCenter, 1);
    painter.drawText(QRect(0, plot.top(), margin - 6, line), Qt::AlignRight, QString::number(chart.most));
    painter.drawText(QRect(0, plot.bottom() - line, margin - 6, line), Qt::AlignRight, QStringLiteral("0"));
}

void ChartView::draw(QPainter& painter, const LinkMatrix& chart) const {
    const auto n = static_cast<int>(chart.kinds.size());
    if (n == 0) return;
    const QFontMetrics letters(font());
    const int head = letters.horizontalAdvance(QStringLiteral("Second-level")) + 14;
    const int top = letters.height() + 8;
    const double w = std::min(140.0, static_cast<double>(width() - head - 8) / n);
    const double h = std::min(44.0, static_cast<double>(height() - top - 8) / n);
    painter.setPen(palette().color(QPalette::Text));
    for (int i = 0; i < n; ++i) {
        const QString name = to_qt(kind_name(chart.kinds[static_cast<std::size_t>(i)]));
        painter.drawText(QRectF(head + i * w, 0, w, top), Qt::AlignCenter, name);
        painter.drawText(QRectF(0, top + i * h, head - 8, h), Qt::AlignRight | Qt::AlignVCenter, name);
        for (int to = 0; to < n; ++to) {
            const int links = chart.links[static_cast<std::size_t>(i)][static_cast<std::size_t>(to)];
            QColor back = colour(1, palette());
            back.setAlphaF(links == 0
                               ? 0.04F
                               : 0.12F + 0.5F * static_cast<float>(links) / static_cast<float>(chart.most));
            const QRectF cell(head + to * w + 1, top + i * h + 1, w - 2, h - 2);
            painter.fillRect(cell, back);
            painter.drawText(cell, Qt::AlignCenter, QString::number(links));
        }
    }
}

} // namespace twk
