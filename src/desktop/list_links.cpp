// SPDX-License-Identifier: MIT
#include "desktop/binder.h"
#include "desktop/control_watch.h"
#include "desktop/qt_text.h"
#include "desktop/tool_tips.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <algorithm>

namespace twk {

namespace {

void add_entries(QListWidget& list, int at, const std::vector<Text>& entries, bool ticked) {
    QStringList texts;
    for (auto i = static_cast<std::size_t>(at); i < entries.size(); ++i) texts << to_qt(entries[i]);
    list.insertItems(at, texts);
    if (!ticked) return;
    for (int row = at; row < list.count(); ++row) {
        list.item(row)->setFlags(list.item(row)->flags() | Qt::ItemIsUserCheckable);
        list.item(row)->setCheckState(Qt::Unchecked);
    }
}

/// Brings the widget's entries up to the control's by what the list was last changed by: the rest keeps its
/// place on the screen, and a long list costs no more than a short one. Gives whether all is new.
bool show_entries(QListWidget& list, const ListBox& box) {
    const ListChange& change = box.last_change();
    const std::vector<Text>& entries = box.entries();
    const bool follows = list.count() - change.removed + change.added == box.list_count();
    const bool at_end = change.at + change.added == box.list_count();
    if (follows && change.removed == change.added) {
        for (int row = change.at; row < change.at + change.added; ++row)
            list.item(row)->setText(to_qt(entries[static_cast<std::size_t>(row)]));
    } else if (follows && change.removed == 0 && at_end) {
        add_entries(list, change.at, entries, box.tick_marks);
    } else if (follows && change.removed == 1 && change.added == 0) {
        // Otherwise a neighbour would be chosen.
        if (list.currentRow() == change.at) list.setCurrentRow(-1, QItemSelectionModel::NoUpdate);
        delete list.takeItem(change.at);
    } else {
        list.clear();
        add_entries(list, 0, entries, box.tick_marks);
        return true;
    }
    return false;
}

void show_current(QListWidget& list, int row) {
    const bool several = list.selectionMode() == QAbstractItemView::ExtendedSelection;
    const int shown = several || !list.selectedItems().isEmpty() ? list.currentRow() : -1;
    if (shown == row) return;
    list.setCurrentRow(row, several ? QItemSelectionModel::NoUpdate : QItemSelectionModel::ClearAndSelect);
    if (row < 0 && !several) list.clearSelection();
}

void show_marks(QListWidget& list, const ListBox& box, int from, int count) {
    for (int row = from; row < from + count; ++row) {
        if (box.tick_marks)
            list.item(row)->setCheckState(box.selected(row) ? Qt::Checked : Qt::Unchecked);
        else if (box.multi_select)
            list.item(row)->setSelected(box.selected(row));
    }
}

/// What the user has chosen in the widget, into the control.
void take_selection(const QListWidget& list, ListBox& box) {
    std::vector<int> marked;
    if (box.tick_marks) {
        for (int row = 0; row < list.count(); ++row)
            if (list.item(row)->checkState() == Qt::Checked) marked.push_back(row);
    } else if (box.multi_select) {
        for (const QModelIndex& each : list.selectionModel()->selectedIndexes()) marked.push_back(each.row());
    }
    const bool none = !box.multi_select && list.selectedItems().isEmpty();
    box.select_from_user(none ? -1 : list.currentRow(), marked);
}

template <class C, class Take> void link_list(const ControlLink<C>& link, QListWidget& list, Take take) {
    link_choice(link, list, &QListWidget::itemSelectionChanged, &QListWidget::itemClicked,
                [link, take] { return link.binding.screen() != nullptr && take(); });
}

/// Tool tips of the entries: what an entry stands for, or the entry itself when it is wider than the list.
template <class Box> void show_entry_tips(QAbstractItemView& view, const Box& box) {
    show_full_text(*view.viewport(), [&view, &box](QPoint at) {
        const QModelIndex entry = view.indexAt(at);
        if (!entry.isValid()) return QString();
        if constexpr (requires { box.full_text; })
            if (const Text full = box.full_text ? box.full_text(entry.row()) : Text(); !full.empty())
                return to_qt(full);
        const QString text = entry.data().toString();
        return view.fontMetrics().horizontalAdvance(text) + 8 > view.viewport()->width() ? text : QString();
    });
}

template <class C> void link_double_click(const ControlLink<C>& link, QListWidget& list) {
    QObject::connect(&list, &QListWidget::itemDoubleClicked, &link.binding,
                     [link] { link.binding.act(link.name, "DblClick"); });
    link.binding.offer(link.name, "DblClick");
}

} // namespace

bool link(const ControlLink<ListBox>& link) {
    auto* const list = qobject_cast<QListWidget*>(&link.widget);
    if (list == nullptr) return false;
    ListBox& box = link.control;
    list->setSelectionMode(box.multi_select ? QAbstractItemView::ExtendedSelection
                                            : QAbstractItemView::SingleSelection);
    watch_control(link, {Prop::list, Prop::list_index}, [list, &box](Prop changed) {
        const QSignalBlocker quiet(list);
        const bool anew = changed == Prop::list && show_entries(*list, box);
        if (changed == Prop::list || changed == Prop::list_index) show_current(*list, box.list_index());
        if (anew) show_marks(*list, box, 0, box.list_count());
        if (changed == Prop::selection) show_marks(*list, box, box.last_change().at, 1);
        if (changed == Prop::notes) list->viewport()->update();
    });
    link_list(link, *list, [list, &box] {
        take_selection(*list, box);
        return true;
    });
    QObject::connect(list, &QListWidget::itemChanged, &link.binding, [link, list] {
        if (link.binding.screen() != nullptr) take_selection(*list, link.control); // a tick
    });
    link_double_click(link, *list);
    show_entry_tips(*list, box);
    return true;
}

namespace {

/// An editable box shows its text; any other shows the chosen entry, or the text while no entry is chosen.
void show_choice(QComboBox& combo, const ComboBox& box) {
    if (combo.isEditable()) {
        combo.setCurrentIndex(box.list_index());
        combo.setEditText(to_qt(box.text()));
        if (!combo.hasFocus()) combo.lineEdit()->setCursorPosition(0);
        return;
    }
    combo.setPlaceholderText(to_qt(box.text()));
    // Last, since an empty placeholder would choose the first entry.
    combo.setCurrentIndex(box.list(box.list_index()) == box.text() ? box.list_index() : -1);
}

void show_combo_tips(QComboBox& combo, const ComboBox& box) {
    show_entry_tips(*combo.view(), box);
    show_full_text(combo, [&combo, &box](QPoint) {
        if (box.full_text && box.list_index() >= 0) return to_qt(box.full_text(box.list_index()));
        const QString text = to_qt(box.text());
        return combo.fontMetrics().horizontalAdvance(text) + 28 > combo.width() ? text : QString();
    });
}

} // namespace

bool link(const ControlLink<ComboBox>& link) {
    auto* const combo = qobject_cast<QComboBox*>(&link.widget);
    if (combo == nullptr) return false;
    combo->setInsertPolicy(QComboBox::NoInsert);
    if (combo->isEditable()) combo->setCompleter(nullptr); // it would change what is typed
    watch_control(link, {Prop::list, Prop::list_index}, [combo, &box = link.control](Prop changed) {
        const QSignalBlocker quiet(combo);
        if (changed == Prop::list && box.list_count() == combo->count() + 1) {
            combo->addItem(to_qt(box.entries().back()));
        } else if (changed == Prop::list) {
            combo->clear();
            for (const Text& each : box.entries()) combo->addItem(to_qt(each));
        }
        if (changed == Prop::list || changed == Prop::list_index || changed == Prop::text)
            show_choice(*combo, box);
    });
    show_combo_tips(*combo, link.control);
    QObject::connect(combo, &QComboBox::activated, &link.binding, [link, combo](int index) {
        if (link.binding.screen() == nullptr) return;
        link.control.list_index.from_user(index);
        link.control.text.from_user(from_qt(combo->itemText(index)));
        link.binding.act(link.name, "Click");
    });
    if (combo->isEditable())
        QObject::connect(combo->lineEdit(), &QLineEdit::textEdited, &link.binding,
                         [link](const QString& text) {
                             if (link.binding.screen() == nullptr) return;
                             link.control.list_index.from_user(-1);
                             link.control.text.from_user(from_qt(text));
                             link.binding.act(link.name, "Change");
                         });
    for (const char* event : {"Click", "Change"}) link.binding.offer(link.name, event);
    return true;
}

bool link(const ControlLink<FileListBox>& link) {
    auto* const list = qobject_cast<QListWidget*>(&link.widget);
    if (list == nullptr) return false;
    watch_control(link, {Prop::list, Prop::list_index}, [list, &box = link.control](Prop changed) {
        const QSignalBlocker quiet(list);
        if (changed == Prop::list) {
            list->clear();
            for (const Text& each : box.entries()) list->addItem(to_qt(each));
        }
        if (changed == Prop::list || changed == Prop::list_index) show_current(*list, box.list_index());
    });
    link_list(link, *list, [list, &box = link.control] {
        box.list_index.from_user(list->selectedItems().isEmpty() ? -1 : list->currentRow());
        return true;
    });
    link_double_click(link, *list);
    show_entry_tips(*list, link.control);
    return true;
}

namespace {

/// Shows the folder's parents, itself, and the folders in it. The row of the folder itself is kept with the
/// list, since entry -1 of the control stands there.
void show_folders(QListWidget& list, const DirListBox& box) {
    list.clear();
    std::vector<Text> chain;
    for (int up = -1;; --up) {
        Text folder = box.list(up);
        if (folder.empty()) break;
        chain.push_back(std::move(folder));
    }
    const auto add = [&list](const Text& path, qsizetype depth) {
        const QString whole = to_qt(path);
        const QString name = whole.section(u'/', -1);
        auto* const item = new QListWidgetItem(QString(depth * 2, u' ') + (name.isEmpty() ? whole : name));
        item->setToolTip(whole);
        list.addItem(item);
    };
    qsizetype depth = 0;
    std::reverse(chain.begin(), chain.end());
    for (const Text& each : chain) add(each, depth++);
    for (const Text& each : box.entries()) add(each, depth);
    list.setProperty("own_row", static_cast<int>(chain.size()) - 1);
}

int own_row(const QListWidget& list) {
    return list.property("own_row").toInt();
}

/// Rows count from the topmost parent, entries from the first folder inside.
int entry_of_row(const QListWidget& list, int row) {
    return row - own_row(list) - 1;
}

} // namespace

bool link(const ControlLink<DirListBox>& link) {
    auto* const list = qobject_cast<QListWidget*>(&link.widget);
    if (list == nullptr) return false;
    watch_control(link, {Prop::list, Prop::list_index}, [list, &box = link.control](Prop changed) {
        const QSignalBlocker quiet(list);
        if (changed == Prop::list) show_folders(*list, box);
        if (changed == Prop::list || changed == Prop::list_index) {
            show_current(*list, own_row(*list) + 1 + box.list_index());
            if (list->currentItem() != nullptr) list->scrollToItem(list->currentItem());
        }
    });
    link_list(link, *list, [list, &box = link.control] {
        if (list->currentRow() < 0) return false;
        box.list_index.from_user(entry_of_row(*list, list->currentRow()));
        return true;
    });
    QObject::connect(
        list, &QListWidget::itemActivated, &link.binding,
        [link, list] {
            if (link.binding.screen() == nullptr) return;
            const Text folder = link.control.list(entry_of_row(*list, list->currentRow()));
            link.binding.run([link, folder] {
                link.control.set_path(folder);
                if (const auto* event =
                        link.binding.screen()->map.find_event(link.name.name, "Change", link.name.index))
                    event->run();
            });
        },
        Qt::QueuedConnection); // the list is filled anew
    link.binding.offer(link.name, "Change");
    return true;
}

bool link(const ControlLink<DriveListBox>& link) {
    auto* const combo = qobject_cast<QComboBox*>(&link.widget);
    if (combo == nullptr) return false;
    for (const Text& each : link.control.entries()) combo->addItem(to_qt(each));
    watch_control(link, {Prop::list, Prop::list_index}, [combo, &box = link.control](Prop changed) {
        const QSignalBlocker quiet(combo);
        if (changed == Prop::list_index) combo->setCurrentIndex(box.list_index());
    });
    QObject::connect(combo, &QComboBox::activated, &link.binding, [link](int index) {
        if (link.binding.screen() == nullptr) return;
        link.control.list_index.from_user(index);
        link.binding.act(link.name, "Change");
    });
    link.binding.offer(link.name, "Change");
    return true;
}

} // namespace twk
