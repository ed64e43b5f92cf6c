// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/control_links.h"
#include "desktop/widget_events.h"

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

} // namespace twk
