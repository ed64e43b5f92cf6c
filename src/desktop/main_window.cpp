// SPDX-License-Identifier: MIT
#include "desktop/main_window.h"

#include "desktop/binder.h"
#include "desktop/edit_menu.h"
#include "desktop/qt_text.h"
#include "desktop/rail.h"
#include "desktop/room.h"
#include "desktop/screen_window.h"
#include "desktop/start_page.h"
#include "desktop/user_settings.h"
#include "platform/desktop.h"
#include "shell/mdi1.h"
#include "shell/project_list.h"
#include "shell/side_tools.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <map>

namespace twk {

namespace {

constexpr QSize usual_size(1180, 820);
constexpr QSize least_size(640, 480);
/// Room for the frame and title bar that the window manager adds; their size is known only once shown.
constexpr QSize frame_room(16, 48);
/// Keys come faster than anybody reads the rail.
constexpr int look_delay = 120;

/// Names in a menu show their "&".
QString menu_text(const Text& caption) {
    return to_qt(caption).replace(u'&', QStringLiteral("&&"));
}

} // namespace

MainWindow::MainWindow()
    : rail_(new Rail), start_(new StartPage), splitter_(new QSplitter), project_(new QLabel),
      last_run_(new QLabel) {
    room_ = new Room(*start_);
    setWindowTitle(to_qt(mdi1::title));
    setObjectName(QString::fromLatin1(mdi1::name));
    splitter_->setObjectName(QStringLiteral("rail_splitter"));
    splitter_->addWidget(rail_);
    splitter_->addWidget(room_);
    splitter_->setStretchFactor(1, 1);
    splitter_->setChildrenCollapsible(false);
    setCentralWidget(splitter_);
    setMinimumSize(least_size);
    resize(usual_size.boundedTo(screen()->availableSize() - frame_room));
    restore_window(*this, *splitter_);
    add_status();
    add_keys();

    connect(rail_, &Rail::step_wanted, this, [this](int number) { run([number] { go_to_step(number); }); });
    connect(rail_, &Rail::tool_wanted, this,
            [this](const SideTool* tool) { run([tool] { open_tool(*tool); }); });
    connect(room_, &Room::picked, this, [this](ScreenWindow* window) { bring(*window); });
    connect(room_, &Room::front_changed, this, &MainWindow::show_front);
    connect(start_, &StartPage::project_wanted, this,
            [this](const QString& name) { run([name = from_qt(name)] { open_listed_project(name); }); });
    connect(start_, &StartPage::new_project_wanted, this, [this] { run([] { start_new_project(); }); });
    look_timer_.setSingleShot(true);
    look_timer_.setInterval(look_delay);
    connect(&look_timer_, &QTimer::timeout, this, &MainWindow::look);
    // Whatever an event has unloaded is destroyed once it has returned.
    ScreenBinding::after_event = [this] {
        if (!retired_.empty()) QTimer::singleShot(0, this, &MainWindow::bury);
        look_soon();
    };
    // The projects are read when the window stands.
    QTimer::singleShot(0, this, &MainWindow::show_front);
}

MainWindow::~MainWindow() {
    ScreenBinding::after_event = nullptr;
    for (ScreenWindow* window : windows_) window->binding().detach();
}

void MainWindow::add_status() {
    project_->setObjectName(QStringLiteral("status_project"));
    last_run_->setObjectName(QStringLiteral("status_run"));
    for (QLabel* label : {last_run_, project_}) {
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(6, 0, 6, 0);
        statusBar()->addPermanentWidget(label);
    }
}

void MainWindow::add_keys() {
    for (int i = 1; i <= wizard_steps; ++i) {
        auto* const key = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + i)), this);
        connect(key, &QShortcut::activated, this, [this, i] { run([i] { go_to_step(i); }); });
    }
    auto* const close = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F4), this);
    connect(close, &QShortcut::activated, this, [this] { close_front(false); });
    auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, [this] { close_front(true); });
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
        if (each.caption == u"-") {
            action->setText(QString()); // a separator with a text shows it
            action->setSeparator(true);
        }
        action->setShortcut(QKeySequence(to_qt(each.shortcut)));
        connect(action, &QAction::triggered, this, [this, name] { choose(name); });
    }
    auto* const edit = new EditMenu([this] { return front(); }, this);
    menuBar()->insertMenu(tops.at("b")->menuAction(), edit);
    QMenu* const open_screens = tops.at("win");
    connect(open_screens, &QMenu::aboutToShow, this, [this, open_screens] { list_screens(*open_screens); });
}

void MainWindow::run(const std::function<void()>& event) {
    screens().dispatch(event);
    ScreenBinding::after_event();
}

void MainWindow::choose(const std::string& entry) {
    if (shell_ == nullptr) return;
    menu_event_alone_ = !screens().event_running();
    screens().fire(*shell_, entry, "Click");
    menu_event_alone_ = false;
    ScreenBinding::after_event();
}

void MainWindow::list_screens(QMenu& menu) {
    menu.clear();
    for (ScreenWindow* window : windows_) {
        Screen* const screen = window->screen();
        if (screen == nullptr || !screen->visible) continue;
        QAction* const action = menu.addAction(menu_text(screen->caption()));
        action->setCheckable(true);
        action->setChecked(front() == window);
        connect(action, &QAction::triggered, window, [this, window] { bring(*window); });
    }
    if (menu.isEmpty()) menu.addAction(tr("No open screens"))->setEnabled(false);
}

ScreenWindow* MainWindow::front() const {
    return room_->front();
}

ScreenWindow& MainWindow::add(Screen& screen) {
    windows_.push_back(new ScreenWindow(screen, *room_));
    restore_splitters(*windows_.back());
    return *windows_.back();
}

void MainWindow::bring(ScreenWindow& window) {
    if (window.screen() != nullptr)
        window.binding().run([&window] { screens().bring_forward(*window.screen()); });
}

void MainWindow::run_modal(ScreenWindow& window) {
    room_->put_away(window);
    rail_->show_front(window.objectName().toStdString());
    window.run_modal();
    show_front();
}

void MainWindow::close_front(bool side_screens_alone) {
    ScreenWindow* const window = front();
    if (window != nullptr && !(side_screens_alone && window->is_step())) window->close();
}

void MainWindow::show_front() {
    const ScreenWindow* const window = front();
    rail_->show_front(window != nullptr ? window->objectName().toStdString() : std::string());
    if (window == nullptr) {
        start_->list_projects(last_project());
        start_->setFocus(Qt::OtherFocusReason);
    }
    look_soon();
}

void MainWindow::look_soon() {
    if (!look_timer_.isActive()) look_timer_.start();
}

void MainWindow::look() {
    if (screens().event_running()) { // the next event that ends asks again
        return;
    }
    const WizardState state = look_at_wizard();
    rail_->show_state(state);
    project_->setText(state.project.empty() ? tr("No project") : to_qt(state.project));
    if (!state.project.empty()) set_last_project(to_qt(state.project));
    if (state.pages >= 0)
        last_run_->setText(tr("Last run: %1 pages, %2 s").arg(state.pages).arg(state.seconds, 0, 'f', 1));
}

void MainWindow::retire(ScreenWindow& window) {
    keep_splitters(window);
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
        room_->remove(*each);
        each->deleteLater();
    }
}

void MainWindow::say(const QString& what) {
    statusBar()->showMessage(what);
}

void MainWindow::remember() const {
    keep_window(*this, *splitter_);
    for (const ScreenWindow* window : windows_) keep_splitters(*window);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    choose("D");
}

} // namespace twk
