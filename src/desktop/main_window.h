// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

#include <QMainWindow>
#include <QTimer>
#include <string>
#include <vector>

class QLabel;
class QSplitter;

namespace twk {

class Rail;
class Room;
class ScreenWindow;
class StartPage;

/// The main window: the menu, the rail with the steps and the tools, and the room in which the screen in
/// front stands.
class MainWindow : public QMainWindow {
    Q_OBJECT
  public:
    MainWindow();
    ~MainWindow() override;

    /// Ties the menu to the shell's screen, once that is loaded.
    void bind_menu(Screen& shell);
    void release_menu() { shell_ = nullptr; }

    ScreenWindow& add(Screen& screen);
    /// Takes a screen's window from sight; it is destroyed when no event runs any more.
    void retire(ScreenWindow& window);
    const std::vector<ScreenWindow*>& windows() const { return windows_; }
    /// Shows a screen by itself and lets events run until it is hidden; the rail tells that it is the one in
    /// front.
    void run_modal(ScreenWindow& window);
    /// The screen in front, null at the empty start.
    ScreenWindow* front() const;
    /// Shows in the status bar what has just been done.
    void say(const QString& what);
    /// Keeps the window's place and the splitters for the next start.
    void remember() const;
    /// Whether the event that the menu has just raised runs alone, not inside another one.
    bool menu_event_alone() const { return menu_event_alone_; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void add_keys();
    void add_status();
    void choose(const std::string& entry);
    void list_screens(QMenu& menu);
    /// Runs something that may end in a fault, as an event does.
    void run(const std::function<void()>& event);
    void bring(ScreenWindow& window);
    void close_front(bool side_screens_alone);
    void show_front();
    /// Looks at the project once the event under way is over.
    void look_soon();
    void look();
    void bury();

    Room* room_;
    Rail* rail_;
    StartPage* start_;
    QSplitter* splitter_;
    QLabel* project_;
    QLabel* last_run_;
    QTimer look_timer_;
    Screen* shell_ = nullptr;
    bool menu_event_alone_ = false;
    std::vector<ScreenWindow*> windows_;
    std::vector<ScreenWindow*> retired_;
};

} // namespace twk
