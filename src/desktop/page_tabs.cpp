// SPDX-License-Identifier: MIT
#include "desktop/page_tabs.h"

#include <QSlider>
#include <QVariant>

namespace twk {

PageTabs::PageTabs(QWidget* parent) : QTabBar(parent) {
    setExpanding(false);
    setDrawBase(true);
    setUsesScrollButtons(true);
}

void PageTabs::follow(QSlider& slider) {
    for (const QString& name : property("pages").toStringList()) addTab(name);
    const auto show = [this, &slider] { setCurrentIndex(slider.value() - slider.minimum()); };
    show();
    updateGeometry(); // a tab bar that is not visible yet tells no layout of new tabs
    connect(this, &QTabBar::currentChanged, &slider,
            [&slider](int page) { slider.setValue(page + slider.minimum()); });
    connect(&slider, &QSlider::valueChanged, this, show);
}

} // namespace twk
