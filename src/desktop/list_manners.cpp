// SPDX-License-Identifier: MIT
#include "desktop/list_manners.h"

#include "desktop/binder.h"
#include "desktop/entry_delegate.h"
#include "desktop/form_keys.h"
#include "desktop/qt_text.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace twk {

namespace {

/// A list with more entries than these is a long one.
constexpr int long_list = 20;

/// Its rows and those of another list belong together: filtered alone, they would no longer stand side by
/// side.
bool scrolls_with_another(const QWidget& form, const QListWidget& list) {
    const QList<QListWidget*> all = form.findChildren<QListWidget*>();
    return list.property("scrollsWith").isValid() ||
           std::any_of(all.begin(), all.end(), [&](const auto* each) {
               return each->property("scrollsWith").toString() == list.objectName();
           });
}

/// A button's words; a sign that stands in their place has them for screen readers alone.
QString words_of(const QPushButton& button) {
    return button.accessibleName().isEmpty() ? button.text() : button.accessibleName();
}

} // namespace

ListManners::ListManners(ScreenBinding& binding, QWidget& form, QListWidget& list)
    : QObject(&binding), binding_(binding), form_(form), list_(list) {
    list_.installEventFilter(this);
    list_.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&list_, &QWidget::customContextMenuRequested, this, &ListManners::show_menu);
    auto* const delegate = new EntryDelegate(list_);
    list_.setItemDelegate(delegate);
    delegate->renamed = [this](int row, const QString& text) {
        // The list must be done with its editor before its entries change.
        QTimer::singleShot(0, this, [this, row, text] { rename(row, text); });
    };
    if (const ScreenMap::Control* const control = binding_.control_of(list_))
        if (auto* const* const box = std::get_if<ListBox*>(&control->ref); box != nullptr && (*box)->note)
            delegate->note = [this, box = *box](int row) {
                return binding_.screen() != nullptr ? to_qt(box->note(row)) : QString();
            };
    if (!scrolls_with_another(form, list)) add_filter();
}

void ListManners::add_filter() {
    QWidget* const parent = list_.parentWidget();
    auto* const holder = new QWidget(parent);
    auto* const column = new QVBoxLayout(holder);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    delete parent->layout()->replaceWidget(&list_, holder);
    filter_ = new QLineEdit;
    filter_->setObjectName(QStringLiteral("filter_") + list_.objectName());
    filter_->setPlaceholderText(tr("Filter"));
    filter_->setAccessibleName(tr("Filter of the list"));
    filter_->setClearButtonEnabled(true);
    filter_->installEventFilter(this);
    filter_->hide();
    column->addWidget(filter_);
    column->addWidget(&list_, 1);
    put_before_list(*filter_);
    const QAbstractItemModel& model = *list_.model();
    for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&model, changed, this, &ListManners::filter);
    connect(&model, &QAbstractItemModel::modelReset, this, &ListManners::filter);
    connect(filter_, &QLineEdit::textChanged, this, &ListManners::filter);
    connect(&list_, &QListWidget::itemSelectionChanged, this, [this] {
        for (QListWidgetItem* each : list_.selectedItems())
            if (each->isHidden()) each->setSelected(false);
    });
}

/// By Tab, too: what stood before the list is followed by the box.
void ListManners::put_before_list(QWidget& box) {
    QWidget* before = list_.previousInFocusChain();
    while (before != &form_ && (before == &box || before->focusPolicy() == Qt::NoFocus))
        before = before->previousInFocusChain();
    if (before != &form_)
        QWidget::setTabOrder(before, &box); // otherwise the last one is followed by the list
}

void ListManners::filter() {
    const bool wanted = list_.count() > long_list || !filter_->text().isEmpty();
    if (filter_->isHidden() == wanted) filter_->setVisible(wanted);
    const QString part = filter_->text();
    for (int row = 0; row < list_.count(); ++row) {
        QListWidgetItem& entry = *list_.item(row);
        const bool hidden = !part.isEmpty() && !entry.text().contains(part, Qt::CaseInsensitive);
        if (entry.isHidden() == hidden) continue;
        entry.setHidden(hidden);
        if (hidden && entry.isSelected()) entry.setSelected(false);
    }
}

bool ListManners::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (watched == filter_) {
        if (key.key() != Qt::Key_Escape || filter_->text().isEmpty()) return false;
        event->accept(); // the screen stays
        if (event->type() == QEvent::KeyPress) filter_->clear();
        return true;
    }
    return event->type() == QEvent::KeyPress && press_key(key);
}

bool ListManners::press_key(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Delete && key.modifiers() == Qt::NoModifier) {
        QPushButton* const deletes = button(named("deletes").value(0));
        if (deletes != nullptr) FormKeys::press(*deletes, &list_);
        return deletes != nullptr;
    }
    if (key.key() == Qt::Key_F2 && named("renames").size() == 2) {
        begin_rename();
        return true;
    }
    if (key.matches(QKeySequence::SelectAll) && list_.selectionMode() == QListWidget::ExtendedSelection) {
        choose_all();
        return true;
    }
    if (key.matches(QKeySequence::Copy)) {
        copy();
        return true;
    }
    if (key.matches(QKeySequence::Find) && filter_ != nullptr && !filter_->isHidden()) {
        filter_->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
    return false;
}

void ListManners::choose_all() {
    QItemSelection all;
    for (int row = 0; row < list_.count(); ++row) {
        const QModelIndex at = list_.model()->index(row, 0);
        if (!list_.item(row)->isHidden()) all.select(at, at);
    }
    list_.selectionModel()->select(all, QItemSelectionModel::ClearAndSelect);
}

void ListManners::copy() const {
    QStringList lines;
    for (int row = 0; row < list_.count(); ++row)
        if (list_.item(row)->isSelected()) lines << list_.item(row)->text();
    if (!lines.isEmpty()) QApplication::clipboard()->setText(lines.join(u'\n'));
}

void ListManners::begin_rename() {
    QListWidgetItem* const entry = list_.currentItem();
    if (entry == nullptr || !entry->isSelected()) return;
    const bool quiet = list_.blockSignals(true); // nobody has ticked it
    entry->setFlags(entry->flags() | Qt::ItemIsEditable);
    list_.blockSignals(quiet);
    list_.editItem(entry);
}

void ListManners::rename(int row, const QString& text) {
    const QStringList through = named("renames");
    auto* const field = form_.findChild<QLineEdit*>(through.value(0));
    QPushButton* const edits = button(through.value(1));
    if (field == nullptr || edits == nullptr || row != list_.currentRow()) return;
    field->selectAll();
    field->insert(text);
    FormKeys::press(*edits, &list_);
}

void ListManners::show_menu(const QPoint& at) {
    auto* const menu = new QMenu(&list_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString deletes = named("deletes").value(0);
    for (const QString& name : named("commands")) {
        QPushButton* const command = button(name);
        if (command == nullptr || !command->isVisible()) continue;
        QAction* const entry = menu->addAction(words_of(*command));
        entry->setEnabled(command->isEnabled());
        if (name == deletes) entry->setShortcut(Qt::Key_Delete);
        connect(entry, &QAction::triggered, command, [this, command] { FormKeys::press(*command, &list_); });
    }
    if (named("renames").size() == 2) {
        QAction* const entry = menu->addAction(tr("Rename"), this, &ListManners::begin_rename);
        entry->setShortcut(Qt::Key_F2);
        entry->setEnabled(list_.selectedItems().size() == 1);
    }
    if (!menu->isEmpty()) menu->addSeparator();
    QAction* const copies = menu->addAction(tr("Copy"), this, &ListManners::copy);
    copies->setShortcut(QKeySequence::Copy);
    copies->setEnabled(!list_.selectedItems().isEmpty());
    if (list_.selectionMode() == QListWidget::ExtendedSelection)
        menu->addAction(tr("Select All"), this, &ListManners::choose_all)
            ->setShortcut(QKeySequence::SelectAll);
    menu->popup(list_.viewport()->mapToGlobal(at));
}

QPushButton* ListManners::button(const QString& name) const {
    return name.isEmpty() ? nullptr : form_.findChild<QPushButton*>(name);
}

QStringList ListManners::named(const char* property) const {
    return list_.property(property).toString().split(u',', Qt::SkipEmptyParts);
}

} // namespace twk
