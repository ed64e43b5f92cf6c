// SPDX-License-Identifier: MIT
#pragma once

#include <QTabBar>

class QSlider;

namespace twk {

/// Tabs with the names of pages, the lines of the property "pages", which set a slider and follow it.
class PageTabs : public QTabBar {
    Q_OBJECT
  public:
    explicit PageTabs(QWidget* parent = nullptr);
    /// Takes the names; the first stands for the slider's least value.
    void follow(QSlider& slider);
};

} // namespace twk
