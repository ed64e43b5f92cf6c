// SPDX-License-Identifier: MIT
#pragma once

#include "reports/charts.h"

#include <QWidget>
#include <variant>

namespace twk {

/// Draws one chart of a report in the colours of the window.
class ChartView : public QWidget {
    Q_OBJECT
  public:
    explicit ChartView(QWidget* parent = nullptr);

    void show(Histogram chart);
    void show(LinkMatrix chart);
    void clear();

    /// Colour of a kind of pages against the background of the window.
    static QColor colour(int kind, const QPalette& palette);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void draw(QPainter& painter, const Histogram& chart) const;
    void draw(QPainter& painter, const LinkMatrix& chart) const;

    std::variant<std::monostate, Histogram, LinkMatrix> chart_;
};

} // namespace twk
