// SPDX-License-Identifier: MIT
#include "desktop/form_keys.h"

#include "desktop/binder.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QShortcutEvent>
#include <QSlider>

namespace twk {

namespace {

bool is_enter(const QKeyEvent& key) {
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool is_lost_mnemonic(const QKeyEvent& key) {
    return (key.modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier && key.text().size() == 1 &&
           key.text()[0].isPrint();
}

bool can_be_pressed(const QAbstractButton* button) {
    return button != nullptr && button->isVisible() && button->isEnabled();
}

} // namespace

FormKeys::FormKeys(ScreenBinding& binding, QWidget& form)
    : QObject(&binding), binding_(binding), form_(form) {
    form.installEventFilter(this);
    for (QWidget* each : form.findChildren<QWidget*>()) {
        const bool turns =
            qobject_cast<QComboBox*>(each) != nullptr || qobject_cast<QSlider*>(each) != nullptr;
        if (turns) each->setFocusPolicy(Qt::StrongFocus);
        if (turns || qobject_cast<QLineEdit*>(each) != nullptr ||
            qobject_cast<QPlainTextEdit*>(each) != nullptr || qobject_cast<QAbstractButton*>(each) != nullptr)
            each->installEventFilter(this);
    }
}

bool FormKeys::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (watched != &form_) {
            if (!is_lost_mnemonic(key)) return false;
            event->ignore();
            return true;
        }
        return is_enter(key) && (key.isAutoRepeat() || enter());
    }
    case QEvent::Shortcut: {
        auto* const button = qobject_cast<QAbstractButton*>(watched);
        if (button == nullptr || static_cast<const QShortcutEvent&>(*event).isAmbiguous()) return false;
        press(*button);
        return true;
    }
    case QEvent::Wheel:
        if (watched == &form_ || qobject_cast<QPlainTextEdit*>(watched) != nullptr ||
            static_cast<const QWidget*>(watched)->hasFocus())
            return false;
        event->ignore(); // the form is being scrolled
        return true;
    default: return false;
    }
}

bool FormKeys::enter() {
    QWidget* const focus = QApplication::focusWidget();
    if (focus == nullptr || !form_.isAncestorOf(focus)) return false;
    if (auto* const button = qobject_cast<QPushButton*>(focus)) {
        press(*button);
        return true;
    }
    if (const ScreenMap::Control* const control = binding_.control_of(*focus)) {
        if (std::holds_alternative<DirListBox*>(control->ref)) return true; // opens the folder
        if (binding_.has_event(*control, "Enter")) {
            binding_.act(*control, "Enter");
            return true;
        }
    }
    QPushButton* const button = button_for(*focus);
    if (button != nullptr) press(*button, focus);
    return button != nullptr;
}

QPushButton* FormKeys::button_for(const QWidget& field) const {
    for (const QWidget* at = &field; at != &form_; at = at->parentWidget())
        if (const QString name = at->property("enter").toString(); !name.isEmpty())
            return form_.findChild<QPushButton*>(name);
    for (QPushButton* each : form_.findChildren<QPushButton*>())
        if (each->isDefault() && can_be_pressed(each)) return each;
    return nullptr;
}

void FormKeys::press(QAbstractButton& button, QWidget* back_to) {
    if (!can_be_pressed(&button)) return;
    const QPointer<QAbstractButton> pressed(&button);
    const QPointer<QWidget> field(back_to);
    button.setFocus(Qt::ShortcutFocusReason);
    button.click();
    if (pressed != nullptr && field != nullptr && pressed->window()->focusWidget() == pressed)
        field->setFocus(Qt::OtherFocusReason);
}

} // namespace twk
