// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

class QGroupBox;
class QTabBar;

namespace twk {

/// Holds the panels of a screen that come and go (its group boxes), all in one place: the one opened last is
/// in front, with tabs above when there are several. Takes no room without any. A panel behind comes forward
/// when something in it gets the focus.
class SidePanels : public QWidget {
  public:
    explicit SidePanels(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void childEvent(QChildEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// Those that are not hidden, in the order of the form.
    std::vector<QGroupBox*> open_panels() const;
    QSize largest(QSize (QWidget::*hint)() const) const;
    void rearrange();
    void place();
    void bring(QGroupBox* panel);

    QTabBar* tabs_;
    std::vector<QGroupBox*> tabbed_;
    QGroupBox* front_ = nullptr;
};

} // namespace twk
