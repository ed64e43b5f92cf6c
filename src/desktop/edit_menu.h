// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <functional>

namespace twk {

class ScreenWindow;

/// The Edit menu: takes back what the screen in front has deleted last. Text boxes keep their own Undo on the
/// same key.
class EditMenu : public QMenu {
  public:
    /// `front` gives the window in front, null when there is none.
    EditMenu(std::function<ScreenWindow*()> front, QWidget* parent);

  private:
    void show_what();
    void take_back();

    std::function<ScreenWindow*()> front_;
    QAction* undo_;
};

} // namespace twk
