// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QMimeData;

namespace twk {

class ScreenBinding;

/// Lets a file be dropped anywhere on the form of a screen that takes files of its ending. What a field would
/// take of it, its address as text, is not what anybody wants.
class FileDrop : public QObject {
  public:
    FileDrop(ScreenBinding& binding, QWidget& form);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// The first file that the screen takes, empty for none.
    QString file_of(const QMimeData& dropped) const;

    ScreenBinding& binding_;
};

} // namespace twk
