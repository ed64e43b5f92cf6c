// SPDX-License-Identifier: MIT
#include "desktop/main_window.h"

#include "desktop/binder.h"
#include "desktop/edit_menu.h"
#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "shell/mdi1.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <map>

namespace twk {

namespace {

constexpr QSize usual_size(1180, 820);
constexpr QSize least_size(640, 480);
/// Room for the frame and title bar that the window manager adds; their size is known only once shown.
constexpr QSize frame_room(16, 48);

/// Names in a menu show their "&".
QString menu_text(const Text& caption) {
    return to_qt(caption).replace(u'&', QStringLiteral("&&"));
}

} // namespace

MainWindow::MainWindow() : area_(new QMdiArea) {
    setWindowTitle(to_qt(mdi1::title));
    setObjectName(QString::fromLatin1(mdi1::name));
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    area_->setBackground(palette().brush(QPalette::Mid));
    setCentralWidget(area_);
    setMinimumSize(least_size);
    resize(usual_size.boundedTo(screen()->availableSize() - frame_room));
    // Whatever an event has unloaded is destroyed once it has returned.
    ScreenBinding::after_event = [this] {
        if (!retired_.empty()) QTimer::singleShot(0, this, &MainWindow::bury);
    };
}

MainWindow::~MainWindow() {
    ScreenBinding::after_event = nullptr;
    for (ScreenWindow* window : windows_) window->binding().detach();
}

void MainWindow::bind_menu(Screen& shell) {
    shell_ = &shell;
    std::map<std::string, QMenu*> tops;
    for (const MenuEntry& each : mdi1::menu()) {
        const std::string name = each.name;
        const bool has_command = shell.map.find_event(name, "Click") != nullptr;
        const QString caption = to_qt(each.caption);
        if (each.parent[0] == '\0' && !has_command) {
            tops[name] = menuBar()->addMenu(caption);
            tops[name]->setObjectName(QString::fromStdString(name));
            continue;
        }
        QWidget* const owner =
            each.parent[0] == '\0' ? static_cast<QWidget*>(menuBar()) : tops.at(each.parent);
        auto* const action = new QAction(caption, owner);
        owner->addAction(action);
        action->setObjectName(QString::fromStdString(name));
        action->setSeparator(each.caption == u"-");
        action->setShortcut(QKeySequence(to_qt(each.shortcut)));
        connect(action, &QAction::triggered, this, [this, name] { choose(name); });
    }
    auto* const edit = new EditMenu([this] { return front(); }, this);
    menuBar()->insertMenu(tops.at("b")->menuAction(), edit);
    QMenu* const open_screens = tops.at("win");
    connect(open_screens, &QMenu::aboutToShow, this, [this, open_screens] { list_screens(*open_screens); });
}

void MainWindow::choose(const std::string& entry) {
    if (shell_ == nullptr) return;
    menu_event_alone_ = !screens().event_running();
    screens().fire(*shell_, entry, "Click");
    menu_event_alone_ = false;
    ScreenBinding::after_event();
}

ScreenWindow* MainWindow::front() const {
    return static_cast<ScreenWindow*>(area_->activeSubWindow()); // no other windows stand in the area
}

void MainWindow::list_screens(QMenu& menu) {
    menu.clear();
    for (ScreenWindow* window : windows_) {
        Screen* const screen = window->screen();
        if (screen == nullptr || !screen->visible) continue;
        QAction* const action = menu.addAction(menu_text(screen->caption()));
        action->setCheckable(true);
        action->setChecked(area_->activeSubWindow() == window);
        connect(action, &QAction::triggered, window, [window] {
            if (window->screen() != nullptr)
                window->binding().run([window] { screens().bring_forward(*window->screen()); });
        });
    }
    if (menu.isEmpty()) menu.addAction(tr("No open screens"))->setEnabled(false);
}

ScreenWindow& MainWindow::add(Screen& screen) {
    windows_.push_back(new ScreenWindow(screen, *area_));
    return *windows_.back();
}

void MainWindow::retire(ScreenWindow& window) {
    window.retire();
    std::erase(windows_, &window);
    retired_.push_back(&window);
    QTimer::singleShot(0, this, &MainWindow::bury);
}

void MainWindow::bury() {
    if (screens().event_running()) return;
    std::vector<ScreenWindow*> dead;
    dead.swap(retired_);
    for (ScreenWindow* each : dead) {
        area_->removeSubWindow(each);
        each->deleteLater();
    }
}

void MainWindow::say(const QString& what) {
    statusBar()->showMessage(what);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    choose("D");
}

} // namespace twk
