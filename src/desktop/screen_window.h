// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/binder.h"

#include <QDialog>
#include <QMdiSubWindow>
#include <QPointer>
#include <memory>

class QMdiArea;

namespace twk {

class FormArea;

/// The window of one screen inside the main window. Closing it does not close it: the screen is asked, and
/// unloaded when it has nothing to say.
class ScreenWindow : public QMdiSubWindow {
  public:
    ScreenWindow(Screen& screen, QMdiArea& area);
    ~ScreenWindow() override;

    Screen* screen() const { return binding_->screen(); }
    ScreenBinding& binding() { return *binding_; }

    void open();
    /// Shows the form in a dialog that blocks the other windows, until the screen is hidden or unloaded.
    void run_modal();
    /// Hides the window and lets go of the screen, which is being unloaded.
    void retire();
    void put_away();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void close_screen();
    void place();
    /// Size as drawn, or what the texts need.
    QSize wanted_size() const;

    QMdiArea& area_;
    QWidget* form_ = nullptr;
    FormArea* form_area_ = nullptr;
    std::unique_ptr<ScreenBinding> binding_;
    QPointer<QDialog> dialog_;
    QSize drawn_size_;
    bool placed_ = false;
};

} // namespace twk
