// SPDX-License-Identifier: MIT
#include "desktop/side_panels.h"

#include <QApplication>
#include <QChildEvent>
#include <QGroupBox>
#include <QSignalBlocker>
#include <QTabBar>
#include <algorithm>

namespace twk {

SidePanels::SidePanels(QWidget* parent) : QWidget(parent), tabs_(new QTabBar(this)) {
    tabs_->setObjectName(QStringLiteral("qt_panel_tabs"));
    tabs_->setAccessibleName(tr("Open panels"));
    tabs_->setDrawBase(false);
    tabs_->hide();
    connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) {
        if (tab >= 0 && tab < static_cast<int>(tabbed_.size())) bring(tabbed_[static_cast<std::size_t>(tab)]);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        for (QGroupBox* panel : tabbed_)
            if (panel != front_ && panel->isAncestorOf(now)) bring(panel);
    });
    hide();
}

std::vector<QGroupBox*> SidePanels::open_panels() const {
    std::vector<QGroupBox*> all;
    for (QGroupBox* each : findChildren<QGroupBox*>(Qt::FindDirectChildrenOnly))
        if (!each->isHidden()) all.push_back(each);
    return all;
}

QSize SidePanels::largest(QSize (QWidget::*hint)() const) const {
    QSize size;
    for (const QGroupBox* each : open_panels()) size = size.expandedTo((each->*hint)());
    if (tabbed_.size() > 1) size.rheight() += tabs_->sizeHint().height();
    return size;
}

QSize SidePanels::sizeHint() const {
    return largest(&QWidget::sizeHint);
}

QSize SidePanels::minimumSizeHint() const {
    return largest(&QWidget::minimumSizeHint);
}

void SidePanels::childEvent(QChildEvent* event) {
    QWidget::childEvent(event);
    if (event->added() && event->child()->isWidgetType()) event->child()->installEventFilter(this);
}

void SidePanels::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}

bool SidePanels::eventFilter(QObject* watched, QEvent* event) {
    auto* const panel = qobject_cast<QGroupBox*>(watched);
    if (panel == nullptr) return false;
    switch (event->type()) {
    case QEvent::ShowToParent:
        front_ = panel;
        rearrange();
        break;
    case QEvent::HideToParent: rearrange(); break;
    case QEvent::LayoutRequest: updateGeometry(); break;
    default: break;
    }
    return false;
}

void SidePanels::rearrange() {
    tabbed_ = open_panels();
    if (std::find(tabbed_.begin(), tabbed_.end(), front_) == tabbed_.end())
        front_ = tabbed_.empty() ? nullptr : tabbed_.back();
    const QSignalBlocker quiet(tabs_);
    while (tabs_->count() > static_cast<int>(tabbed_.size())) tabs_->removeTab(tabs_->count() - 1);
    while (tabs_->count() < static_cast<int>(tabbed_.size())) tabs_->addTab(QString());
    for (std::size_t i = 0; i < tabbed_.size(); ++i)
        tabs_->setTabText(static_cast<int>(i), tabbed_[i]->title());
    tabs_->setVisible(tabbed_.size() > 1);
    setVisible(!tabbed_.empty());
    updateGeometry();
    bring(front_);
}

void SidePanels::bring(QGroupBox* panel) {
    front_ = panel;
    if (panel == nullptr) return;
    const QSignalBlocker quiet(tabs_);
    const auto at = std::find(tabbed_.begin(), tabbed_.end(), panel);
    tabs_->setCurrentIndex(static_cast<int>(at - tabbed_.begin()));
    panel->setAutoFillBackground(true); // what lies behind must not shine through
    panel->raise();
    place();
}

void SidePanels::place() {
    const int top = tabbed_.size() > 1 ? tabs_->sizeHint().height() : 0;
    tabs_->setGeometry(0, 0, width(), top);
    for (QGroupBox* each : tabbed_) each->setGeometry(0, top, width(), height() - top);
}

} // namespace twk
