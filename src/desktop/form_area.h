// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace twk {

/// Holds a form: as large as the window, scrolled when the window is smaller than the form can be.
class FormArea : public QScrollArea {
  public:
    explicit FormArea(QWidget& form);

    /// Least height in which the form's texts can be read at that width.
    int least_height(int width) const;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void fit();

    QWidget& form_;
};

} // namespace twk
