// SPDX-License-Identifier: MIT
#include "desktop/form_area.h"

#include <QEvent>
#include <QLayout>
#include <algorithm>

namespace twk {

FormArea::FormArea(QWidget& form) : form_(form) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    // A resizable scroll area asks for the form's preferred height; the least one is enough.
    setWidgetResizable(false);
    setWidget(&form_);
    form_.installEventFilter(this);
}

int FormArea::least_height(int width) const {
    const QLayout* const layout = form_.layout();
    if (layout == nullptr) return form_.minimumSizeHint().height();
    return layout->hasHeightForWidth() ? layout->totalMinimumHeightForWidth(width)
                                       : layout->totalMinimumSize().height();
}

void FormArea::fit() {
    const QSize room = maximumViewportSize();
    int width = std::max(room.width(), form_.minimumSizeHint().width());
    int height = std::max(room.height(), least_height(width));
    if (height > room.height()) {
        width = std::max(viewport()->width(), form_.minimumSizeHint().width());
        height = std::max(viewport()->height(), least_height(width));
    }
    form_.resize(width, height);
}

void FormArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    fit();
}

bool FormArea::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == &form_ && event->type() == QEvent::LayoutRequest) fit();
    return handled;
}

} // namespace twk
