// SPDX-License-Identifier: MIT
#include "desktop/edit_menu.h"

#include "desktop/qt_text.h"
#include "desktop/screen_window.h"

#include <QAction>

namespace twk {

/// An entry shows no more of what it brings back: that may be a whole content box.
static constexpr int most_columns = 50;

EditMenu::EditMenu(std::function<ScreenWindow*()> front, QWidget* parent)
    : QMenu(tr("Edit"), parent), front_(std::move(front)), undo_(addAction(tr("Undo Delete"))) {
    setObjectName(QStringLiteral("edit"));
    undo_->setObjectName(QStringLiteral("undo_delete"));
    undo_->setShortcut(QKeySequence::Undo);
    connect(undo_, &QAction::triggered, this, &EditMenu::take_back);
    connect(this, &QMenu::aboutToShow, this, &EditMenu::show_what);
    // Its key must work while the menu is closed, whatever it showed last.
    connect(this, &QMenu::aboutToHide, this, [this] { undo_->setEnabled(true); });
}

void EditMenu::show_what() {
    const ScreenWindow* const window = front_();
    const Screen* const screen = window != nullptr ? window->screen() : nullptr;
    const bool any = screen != nullptr && screen->deletions != nullptr && !screen->deletions->empty();
    QString what = tr("Undo Delete");
    if (any)
        what += tr(" of ") + fontMetrics()
                                 .elidedText(to_qt(screen->deletions->description()).simplified(),
                                             Qt::ElideMiddle, fontMetrics().averageCharWidth() * most_columns)
                                 .replace(u'&', QStringLiteral("&&"));
    undo_->setText(what);
    undo_->setEnabled(any);
}

void EditMenu::take_back() {
    ScreenWindow* const window = front_();
    if (window == nullptr || window->screen() == nullptr || screens().event_running()) return;
    if (window->screen()->undo_event) window->binding().run(window->screen()->undo_event);
}

} // namespace twk
