// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <QObject>
#include <functional>

class QAbstractButton;
class QLineEdit;
class QMimeData;

namespace twk {

class ScreenBinding;

/// Several lines that are pasted into a line, or dropped on it, go to the screen as lines where it takes
/// them: `box.take_lines`.
class LinePaste : public QObject {
  public:
    LinePaste(ScreenBinding& binding, QLineEdit& line, const std::function<void(const Text&)>& take);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool take(const QMimeData* pasted);
    void show_menu(const QPoint& place);

    ScreenBinding& binding_;
    QLineEdit& line_;
    const std::function<void(const Text&)>& take_;
};

/// Makes a button beside the lists of drives, folders and files ask for a folder or a file by the system's
/// own dialog; what is chosen is chosen in the lists, as by hand. The button names them in its property
/// "browses"
/// ("Dir2,File2").
void browse_by(QAbstractButton& button, ScreenBinding& binding, QWidget& form);

} // namespace twk
