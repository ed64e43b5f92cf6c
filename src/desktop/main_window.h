// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

#include <QMainWindow>
#include <string>
#include <vector>

class QMdiArea;

namespace twk {

class ScreenWindow;

/// The main window: the menu, and the area in which the screens stand.
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
    /// Shows in the status bar what has just been done.
    void say(const QString& what);
    /// Whether the event that the menu has just raised runs alone, not inside another one.
    bool menu_event_alone() const { return menu_event_alone_; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void choose(const std::string& entry);
    void list_screens(QMenu& menu);
    ScreenWindow* front() const;
    void bury();

    QMdiArea* area_;
    Screen* shell_ = nullptr;
    bool menu_event_alone_ = false;
    std::vector<ScreenWindow*> windows_;
    std::vector<ScreenWindow*> retired_;
};

} // namespace twk
