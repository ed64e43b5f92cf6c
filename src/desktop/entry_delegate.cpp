// SPDX-License-Identifier: MIT
#include "desktop/entry_delegate.h"

#include "desktop/looks.h"
#include "desktop/tool_icons.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>

namespace twk {

namespace {

constexpr int margin = 3;

} // namespace

EntryDelegate::EntryDelegate(QListWidget& list) : QStyledItemDelegate(&list) {}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& at) const {
    QSize size = QStyledItemDelegate::sizeHint(option, at);
    if (!note) return size;
    size.setWidth(1); // a long one is cut to the width of the list
    size.rheight() += QFontMetrics(sized(option.font, Letters::small)).height() + margin;
    return size;
}

void EntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& at) const {
    const QString words = note_of(at);
    if (words.isEmpty()) {
        QStyledItemDelegate::paint(painter, option, at);
        return;
    }
    QStyleOptionViewItem whole(option);
    initStyleOption(&whole, at);
    const QString name = std::exchange(whole.text, QString());
    const QWidget* const list = option.widget;
    list->style()->drawControl(QStyle::CE_ItemViewItem, &whole, painter, list);

    const bool chosen = option.state & QStyle::State_Selected;
    QColor colour = option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text);
    const QRect room = option.rect.adjusted(margin + 1, margin, -margin, 0);
    painter->save();
    painter->setFont(option.font);
    painter->setPen(colour);
    const int first = option.fontMetrics.height();
    painter->drawText(QRect(room.topLeft(), QSize(room.width(), first)), Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(name, Qt::ElideRight, room.width()));
    painter->setFont(sized(option.font, Letters::small));
    painter->setPen(faded(colour));
    painter->drawText(room.adjusted(0, first, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                      QFontMetrics(painter->font()).elidedText(words, Qt::ElideRight, room.width()));
    painter->restore();
}

void EntryDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& at) const {
    const auto* const line = qobject_cast<QLineEdit*>(editor);
    if (line != nullptr && renamed && line->text() != at.data().toString()) renamed(at.row(), line->text());
}

} // namespace twk
