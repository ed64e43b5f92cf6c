// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/binder.h"
#include "desktop/control_links.h"
#include "desktop/widget_events.h"

#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QWidget>
#include <initializer_list>

namespace twk {

/// Shows in the widget what the control holds now (`content`) and every later change of it. `apply` shows the
/// properties of its own kind; enabled, visible and the focus are the same for all.
template <class C, class Apply>
void watch_control(const ControlLink<C>& link, std::initializer_list<Prop> content, Apply apply) {
    const auto update = [link, apply](Prop changed) {
        if (changed == Prop::enabled) link.widget.setEnabled(link.control.enabled());
        if (changed == Prop::visible) link.widget.setVisible(link.control.visible());
        if (changed == Prop::focus) give_focus(link.widget);
        apply(changed);
    };
    link.control.observer.watch(update);
    for (const Prop each : content) update(each);
    update(Prop::enabled);
    if (!link.control.visible()) update(Prop::visible);
}

/// Whenever the user has chosen in a list, `take` brings the choice into the control and says whether there
/// is one, which the screen is told as a click: for a key then and there, for the mouse when its button is
/// up, and for a click on what is chosen already, too.
template <class C, class W, class Changed, class Clicked, class Take>
void link_choice(const ControlLink<C>& link, W& list, Changed changed, Clicked clicked, Take take) {
    QObject::connect(&list, changed, &link.binding, [link, take] {
        if (!take()) return;
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            link.binding.act(link.name, "Click");
        else
            link.binding.owe(link.name, "Click");
    });
    // A drag moves the selection first, and the current entry behind it.
    QObject::connect(list.selectionModel(), &QItemSelectionModel::currentChanged, &link.binding,
                     [&list, take] {
                         if (!list.signalsBlocked() && QGuiApplication::mouseButtons() != Qt::NoButton)
                             take();
                     });
    QObject::connect(&list, clicked, &link.binding, [link, take] {
        if (take()) link.binding.act(link.name, "Click");
    });
    link.binding.offer(link.name, "Click");
}

} // namespace twk
