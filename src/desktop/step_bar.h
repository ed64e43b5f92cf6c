// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace twk {

/// Shows where one is in the wizard: six numbered steps, those done marked, the present one in full.
class StepBar : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int step READ step WRITE setStep)
  public:
    explicit StepBar(QWidget* parent = nullptr);

    int step() const { return step_; }
    /// 1 to 6.
    void setStep(int step);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int step_ = 1;
};

} // namespace twk
