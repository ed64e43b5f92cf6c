// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

class QStackedWidget;
class QTabBar;

namespace twk {

class ScreenWindow;

/// The one place for screens: the screen in front fills it. Of the steps the one seen last has a tab, and
/// every other open screen one of its own. With nothing open it shows the empty start.
class Room : public QWidget {
    Q_OBJECT
  public:
    /// Takes the page of the empty start.
    explicit Room(QWidget& start);

    void add(ScreenWindow& window);
    /// Takes a screen out for good; it may be deleted afterwards.
    void remove(ScreenWindow& window);
    void bring(ScreenWindow& window);
    /// Out of sight, and the screen used before it comes forward.
    void put_away(ScreenWindow& window);

    /// Null at the empty start.
    ScreenWindow* front() const { return used_.empty() ? nullptr : used_.back(); }
    bool is_open(const ScreenWindow& window) const;
    void retitle() { show_tabs(); }

  Q_SIGNALS:
    /// Somebody has picked the tab of a screen.
    void picked(twk::ScreenWindow* window);
    void front_changed();

  private:
    void show_front();
    void show_tabs();
    /// Screens with a tab, from left to right.
    std::vector<ScreenWindow*> tabbed() const;
    void pick(int tab);

    QTabBar* tabs_;
    QStackedWidget* stack_;
    QWidget& start_;
    std::vector<ScreenWindow*> opened_; ///< what is open, in the order of opening
    std::vector<ScreenWindow*> used_;   ///< the same, the one in front at the end
    std::vector<ScreenWindow*> shown_tabs_;
};

} // namespace twk
