// SPDX-License-Identifier: MIT
#include "desktop/form_manners.h"

#include "desktop/widget_events.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <utility>

namespace twk {

namespace {

bool takes_entries(const QWidget& widget) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return !line->isReadOnly();
    if (const auto* editor = qobject_cast<const QPlainTextEdit*>(&widget)) return !editor->isReadOnly();
    return qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
}

bool can_have_focus(const QWidget* widget) {
    return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

/// The first field in the order of Tab, null when there is none.
QWidget* first_field(QWidget& root) {
    const QVariant named = root.property("first");
    if (named.isValid()) return root.findChild<QWidget*>(named.toString());
    for (QWidget* at = root.nextInFocusChain(); at != &root; at = at->nextInFocusChain())
        if (root.isAncestorOf(at) && at->focusPolicy() & Qt::TabFocus && can_have_focus(at) &&
            takes_entries(*at))
            return at;
    return nullptr;
}

void scroll_together(const QAbstractScrollArea& one, const QAbstractScrollArea& other) {
    QScrollBar* const first = one.verticalScrollBar();
    QScrollBar* const second = other.verticalScrollBar();
    QObject::connect(first, &QScrollBar::valueChanged, second, &QScrollBar::setValue);
    QObject::connect(second, &QScrollBar::valueChanged, first, &QScrollBar::setValue);
}

} // namespace

FormManners::FormManners(QObject& owner, QWidget& form)
    : QObject(&owner), form_(form), wishes_before_(times_focus_given()) {
    form.installEventFilter(this);
    for (QGroupBox* each : form.findChildren<QGroupBox*>()) each->installEventFilter(this);
    for (QLabel* each : form.findChildren<QLabel*>())
        if (qobject_cast<QAbstractButton*>(each->buddy()) != nullptr) each->installEventFilter(this);
    for (const QAbstractScrollArea* each : form.findChildren<QAbstractScrollArea*>()) {
        const QString name = each->property("scrollsWith").toString();
        if (name.isEmpty()) continue;
        if (const auto* other = form.findChild<QAbstractScrollArea*>(name)) scroll_together(*each, *other);
    }
}

bool FormManners::eventFilter(QObject* watched, QEvent* event) {
    if (const auto* label = qobject_cast<QLabel*>(watched)) {
        const auto* const mouse = static_cast<const QMouseEvent*>(event);
        if (event->type() != QEvent::MouseButtonRelease || mouse->button() != Qt::LeftButton ||
            !label->rect().contains(mouse->position().toPoint()))
            return false;
        auto* const box = qobject_cast<QAbstractButton*>(label->buddy());
        box->setFocus(Qt::MouseFocusReason);
        box->click();
        return false;
    }
    if (event->type() == QEvent::Show && watched == &form_)
        QTimer::singleShot(0, this, &FormManners::open_form); // the screen may have a wish of its own
    if (watched != &form_ && event->type() == QEvent::Show) open_frame(static_cast<QWidget&>(*watched));
    if (watched != &form_ && event->type() == QEvent::Hide) close_frame(static_cast<QWidget&>(*watched));
    return false;
}

void FormManners::open_form() {
    if (!form_.isVisible()) return;
    // Where several screens share one place, the focus has already gone to some field of the new one.
    const bool left_before = std::exchange(opened_, true) || times_focus_given() != wishes_before_;
    if (QWidget* const left = form_.focusWidget(); left_before && can_have_focus(left))
        left->setFocus(Qt::OtherFocusReason);
    else if (QWidget* const first = first_field(form_)) {
        first->setFocus(Qt::TabFocusReason);
        if (auto* const line = qobject_cast<QLineEdit*>(first))
            line->selectAll(); // it may have had the focus
    }
}

void FormManners::open_frame(QWidget& frame) {
    QWidget* const focus = form_.window()->focusWidget();
    if (qobject_cast<QPushButton*>(focus) == nullptr || !form_.isAncestorOf(focus) ||
        frame.isAncestorOf(focus))
        return;
    QWidget* const first = first_field(frame);
    if (first == nullptr) return;
    openers_[&frame] = focus;
    first->setFocus(Qt::TabFocusReason);
}

void FormManners::close_frame(QWidget& frame) {
    const QWidget* const focus = form_.window()->focusWidget();
    if (!form_.isVisible() || focus == nullptr || !frame.isAncestorOf(focus)) return;
    QWidget* const opener = openers_[&frame];
    QWidget* const next = can_have_focus(opener) ? opener : first_field(form_);
    if (next != nullptr) next->setFocus(Qt::OtherFocusReason);
}

} // namespace twk
