// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAbstractButton;
class QPushButton;

namespace twk {

class ScreenBinding;

/// The keys of a form that belong to no single widget.
///
/// Enter presses the button that has the focus; else it is the field's own "Enter" event, where the screen
/// has one; else it presses the button that the field, or a frame around it, names in its property "enter";
/// else the form's default button. A mnemonic moves the focus to its button first, as the mouse does. Alt
/// with a letter that is nobody's mnemonic does not type the letter. The wheel turns a box only once it has
/// the focus.
class FormKeys : public QObject {
  public:
    FormKeys(ScreenBinding& binding, QWidget& form);
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Presses a button without the mouse: what had the focus is left first. The focus goes to `back_to`
    /// afterwards, unless the screen has sent it elsewhere. Nothing happens when it cannot be pressed.
    static void press(QAbstractButton& button, QWidget* back_to = nullptr);

  private:
    bool enter();
    QPushButton* button_for(const QWidget& field) const;

    ScreenBinding& binding_;
    QWidget& form_;
};

} // namespace twk
