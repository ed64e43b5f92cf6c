// SPDX-License-Identifier: MIT
#include "desktop/widget_events.h"

#include "desktop/binder.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace twk {

namespace {

/// Sits on a widget as its event filter, for as long as the widget lives.
class EventSpy : public QObject {
  public:
    EventSpy(ScreenBinding& binding, const ScreenMap::Control& control, QWidget& widget)
        : QObject(&widget), binding_(&binding), control_(control) {
        widget.installEventFilter(this);
        if (auto* const area = qobject_cast<QAbstractScrollArea*>(&widget))
            area->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
        case QEvent::MouseButtonRelease:
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) raise("Click");
            break;
        case QEvent::MouseButtonDblClick: raise("DblClick"); break;
        case QEvent::FocusIn:
            if (is_move(event)) raise("GotFocus");
            break;
        case QEvent::FocusOut:
            if (is_move(event)) raise("LostFocus");
            break;
        default: break;
        }
        return false;
    }

  private:
    /// The focus has gone to another control, not to a message, a menu or another program.
    static bool is_move(QEvent* event) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
               reason != Qt::MenuBarFocusReason;
    }

    /// A press, or a change of the focus, must be over before a message may be shown.
    void raise(const char* event) {
        if (binding_ != nullptr) binding_->owe(control_, event);
    }

    QPointer<ScreenBinding> binding_;
    const ScreenMap::Control& control_;
};

} // namespace

void watch_widget(ScreenBinding& binding, const ScreenMap::Control& control, QWidget& widget) {
    new EventSpy(binding, control, widget);
    for (const char* event : {"Click", "DblClick", "GotFocus", "LostFocus"}) binding.offer(control, event);
}

static int given = 0;

int times_focus_given() {
    return given;
}

void give_focus(QWidget& widget) {
    ++given;
    widget.setFocus(Qt::OtherFocusReason);
    if (widget.isActiveWindow()) return;
    auto* const once = new QObject(&widget);
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, once,
                     [once, &widget](const QWindow* window) {
                         if (window == nullptr) return;
                         QTimer::singleShot(0, once, [once, &widget] {
                             widget.setFocus(Qt::OtherFocusReason);
                             once->deleteLater();
                         });
                     });
}

} // namespace twk
