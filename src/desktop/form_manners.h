// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <map>

namespace twk {

/// Where the focus is when a form or one of its frames comes and goes, and what lies side by side on it.
///
/// A form opens in the field that its property "first" names, or in its first field; later on in the one that
/// was left. A frame that a button has opened gets the focus into its first field, and gives it back when it
/// closes. A click on the label beside a check box is one on the box. A list whose property "scrollsWith"
/// names another is scrolled together with it.
class FormManners : public QObject {
  public:
    FormManners(QObject& owner, QWidget& form);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void open_form();
    void open_frame(QWidget& frame);
    void close_frame(QWidget& frame);

    QWidget& form_;
    int wishes_before_;   ///< times a screen had asked for the focus when the form was made
    bool opened_ = false; ///< the form has been shown before
    std::map<const QWidget*, QPointer<QWidget>> openers_; ///< by frame
};

} // namespace twk
