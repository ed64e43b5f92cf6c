// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>
#include <functional>

class QListWidget;

namespace twk {

/// Shows the entries of a list: a note in small letters below those that have one. An entry that is renamed
/// in its place is handed on, and stays as it was until the screen changes it.
class EntryDelegate : public QStyledItemDelegate {
  public:
    explicit EntryDelegate(QListWidget& list);

    std::function<QString(int)> note;          ///< by row; may be empty
    std::function<void(int, QString)> renamed; ///< row and new text

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& at) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& at) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& at) const override;

  private:
    QString note_of(const QModelIndex& at) const { return note ? note(at.row()) : QString(); }
};

} // namespace twk
