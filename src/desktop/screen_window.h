// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/binder.h"

#include <QDialog>
#include <QPointer>
#include <QWidget>
#include <memory>

namespace twk {

class FormArea;
class Room;

/// The page of one screen in the room of the main window. Closing it does not close it: the screen is asked,
/// and unloaded when it has nothing to say.
class ScreenWindow : public QWidget {
  public:
    ScreenWindow(Screen& screen, Room& room);
    ~ScreenWindow() override;

    Screen* screen() const { return binding_->screen(); }
    ScreenBinding& binding() { return *binding_; }
    /// Whether it is one of the six steps of the wizard.
    bool is_step() const { return step_; }
    /// Whether it is in the room, in front or behind, or in a dialog.
    bool is_open() const;

    void open();
    /// Shows the form in a dialog that blocks the other windows, until the screen is hidden or unloaded. The
    /// window itself is not in the room then.
    void run_modal();
    /// Takes it from sight and lets go of the screen, which is being unloaded.
    void retire();
    void put_away();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void close_screen();
    /// Size as drawn, or what the texts need.
    QSize wanted_size() const;

    Room& room_;
    const bool step_;
    QWidget* form_ = nullptr;
    FormArea* form_area_ = nullptr;
    std::unique_ptr<ScreenBinding> binding_;
    QPointer<QDialog> dialog_;
    QSize drawn_size_;
};

} // namespace twk
