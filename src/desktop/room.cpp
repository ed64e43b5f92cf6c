// SPDX-License-Identifier: MIT
#include "desktop/room.h"

#include "desktop/screen_window.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace twk {

Room::Room(QWidget& start) : tabs_(new QTabBar), stack_(new QStackedWidget), start_(start) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_);
    column->addWidget(stack_, 1);
    tabs_->setObjectName(QStringLiteral("screen_tabs"));
    tabs_->setAccessibleName(tr("Open screens"));
    tabs_->setDocumentMode(true);
    tabs_->setTabsClosable(true);
    tabs_->setExpanding(false);
    tabs_->setElideMode(Qt::ElideRight);
    tabs_->setUsesScrollButtons(true);
    tabs_->hide();
    stack_->addWidget(&start_);
    connect(tabs_, &QTabBar::currentChanged, this, &Room::pick);
    connect(tabs_, &QTabBar::tabCloseRequested, this, [this](int tab) {
        QPointer<ScreenWindow> const window = shown_tabs_.at(static_cast<std::size_t>(tab));
        // The tab bar must be done with its own event before a tab may go.
        QTimer::singleShot(0, this, [window] {
            if (window != nullptr) window->close();
        });
    });
}

bool Room::is_open(const ScreenWindow& window) const {
    return std::find(used_.begin(), used_.end(), &window) != used_.end();
}

void Room::add(ScreenWindow& window) {
    stack_->addWidget(&window);
}

void Room::remove(ScreenWindow& window) {
    put_away(window);
    stack_->removeWidget(&window);
}

void Room::bring(ScreenWindow& window) {
    if (!is_open(window)) opened_.push_back(&window);
    std::erase(used_, &window);
    used_.push_back(&window);
    show_front();
}

void Room::put_away(ScreenWindow& window) {
    if (!is_open(window)) return;
    std::erase(opened_, &window);
    std::erase(used_, &window);
    show_front();
}

void Room::show_front() {
    QWidget* const page = used_.empty() ? &start_ : static_cast<QWidget*>(used_.back());
    const bool changes = stack_->currentWidget() != page;
    stack_->setCurrentWidget(page);
    show_tabs();
    if (changes) Q_EMIT front_changed();
}

std::vector<ScreenWindow*> Room::tabbed() const {
    std::vector<ScreenWindow*> all;
    const auto last_step =
        std::find_if(used_.rbegin(), used_.rend(), [](const ScreenWindow* each) { return each->is_step(); });
    if (last_step != used_.rend()) all.push_back(*last_step);
    for (ScreenWindow* each : opened_)
        if (!each->is_step()) all.push_back(each);
    return all;
}

void Room::show_tabs() {
    const QSignalBlocker quiet(tabs_);
    const std::vector<ScreenWindow*> wanted = tabbed();
    if (wanted != shown_tabs_) {
        while (tabs_->count() > static_cast<int>(wanted.size())) tabs_->removeTab(tabs_->count() - 1);
        while (tabs_->count() < static_cast<int>(wanted.size())) tabs_->addTab(QString());
        shown_tabs_ = wanted;
    }
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const QString title = wanted[i]->windowTitle();
        tabs_->setTabText(static_cast<int>(i), QString(title).replace(u'&', QStringLiteral("&&")));
        tabs_->setTabToolTip(static_cast<int>(i), title);
        if (wanted[i] == front()) tabs_->setCurrentIndex(static_cast<int>(i));
    }
    tabs_->setVisible(!wanted.empty());
}

void Room::pick(int tab) {
    if (tab < 0 || tab >= static_cast<int>(shown_tabs_.size())) return;
    QPointer<ScreenWindow> const window = shown_tabs_[static_cast<std::size_t>(tab)];
    QTimer::singleShot(0, this, [this, window] {
        if (window != nullptr && is_open(*window)) Q_EMIT picked(window);
    });
}

} // namespace twk
