// SPDX-License-Identifier: MIT
#include "desktop/binder.h"
#include "desktop/control_watch.h"
#include "desktop/qt_text.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <algorithm>

namespace twk {

namespace {

QListWidgetItem* new_item(const Text& text, bool ticked_list) {
    auto* const item = new QListWidgetItem(to_qt(text));
    if (ticked_list) {
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    return item;
}

/// Brings the widget's entries up to the control's: a list grows or shrinks by one entry at a time, and
/// what has not changed keeps its place on the screen. Gives the first row whose mark may have changed.
int show_entries(QListWidget& list, const std::vector<Text>& entries, bool ticked = false) {
    const int count = static_cast<int>(entries.size());
    if (count == list.count() + 1) {
        list.addItem(new_item(entries.back(), ticked));
        return count - 1;
    }
    int same = 0;
    const auto shown = [&list](int row) { return from_qt(list.item(row)->text()); };
    while (same < count && same < list.count() && shown(same) == entries[static_cast<std::size_t>(same)])
        ++same;
    if (count == list.count() - 1) {
        delete list.takeItem(same);
        return 0;
    }
    if (count == list.count()) {
        for (int row = same; row < count; ++row)
            list.item(row)->setText(to_qt(entries[static_cast<std::size_t>(row)]));
        return 0;
    }
    list.clear();
    for (const Text& each : entries) list.addItem(new_item(each, ticked));
    return 0;
}

void show_current(QListWidget& list, int row) {
    const bool several = list.selectionMode() == QAbstractItemView::ExtendedSelection;
    list.setCurrentRow(row, several ? QItemSelectionModel::NoUpdate : QItemSelectionModel::ClearAndSelect);
    if (row < 0 && !several) list.clearSelection();
}

void show_marks(QListWidget& list, const ListBox& box, int first) {
    for (int row = first; row < list.count(); ++row) {
        if (box.tick_marks)
            list.item(row)->setCheckState(box.selected(row) ? Qt::Checked : Qt::Unchecked);
        else if (box.multi_select)
            list.item(row)->setSelected(box.selected(row));
    }
}

/// What the user has chosen in the widget, into the control.
void take_selection(const QListWidget& list, ListBox& box) {
    std::vector<int> marked;
    for (int row = 0; row < list.count(); ++row) {
        const QListWidgetItem* const item = list.item(row);
        if (box.tick_marks ? item->checkState() == Qt::Checked : item->isSelected()) marked.push_back(row);
    }
    const bool none = !box.multi_select && list.selectedItems().isEmpty();
    box.select_from_user(none ? -1 : list.currentRow(), marked);
}

/// Whenever the user has chosen in the list, `take` brings the choice into the control and says whether there
/// is one, which the screen is told as a click.
template <class C, class Take> void link_choice(const ControlLink<C>& link, QListWidget& list, Take take) {
    const auto taken = [link, take](bool told) {
        if (link.binding.screen() != nullptr && take() && told) link.binding.fire(link.name, "Click");
    };
    // A click tells itself; a selection that the keys have moved counts as one.
    QObject::connect(&list, &QListWidget::itemSelectionChanged, &link.binding,
                     [taken] { taken(QApplication::mouseButtons() == Qt::NoButton); });
    QObject::connect(&list, &QListWidget::itemClicked, &link.binding, [taken] { taken(true); });
    QObject::connect(&list, &QListWidget::itemChanged, &link.binding, [taken] { taken(false); }); // a tick
    link.binding.offer(link.name, "Click");
}

template <class C> void link_double_click(const ControlLink<C>& link, QListWidget& list) {
    QObject::connect(&list, &QListWidget::itemDoubleClicked, &link.binding,
                     [link] { link.binding.fire(link.name, "DblClick"); });
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
        const int first = changed == Prop::list ? show_entries(*list, box.entries(), box.tick_marks) : 0;
        if (changed == Prop::list || changed == Prop::list_index) show_current(*list, box.list_index());
        if (changed == Prop::list || changed == Prop::selection) show_marks(*list, box, first);
    });
    link_choice(link, *list, [list, &box] {
        take_selection(*list, box);
        return true;
    });
    link_double_click(link, *list);
    return true;
}

bool link(const ControlLink<ComboBox>& link) {
    auto* const combo = qobject_cast<QComboBox*>(&link.widget);
    if (combo == nullptr) return false;
    combo->setInsertPolicy(QComboBox::NoInsert);
    if (combo->isEditable()) combo->setCompleter(nullptr); // it would change what is typed
    const auto show_text = [combo, &box = link.control] {
        if (combo->isEditable())
            combo->setEditText(to_qt(box.text()));
        else
            combo->setPlaceholderText(to_qt(box.text())); // seen while no entry is chosen
    };
    watch_control(link, {Prop::list, Prop::list_index},
                  [combo, show_text, &box = link.control](Prop changed) {
                      const QSignalBlocker quiet(combo);
                      if (changed == Prop::list) {
                          const int count = box.list_count();
                          if (count == combo->count() + 1) {
                              combo->addItem(to_qt(box.entries().back()));
                          } else {
                              combo->clear();
                              for (const Text& each : box.entries()) combo->addItem(to_qt(each));
                          }
                      }
                      if (changed == Prop::list || changed == Prop::list_index)
                          combo->setCurrentIndex(box.list_index());
                      if (changed == Prop::list || changed == Prop::list_index || changed == Prop::text)
                          show_text();
                  });
    QObject::connect(combo, &QComboBox::activated, &link.binding, [link, combo](int index) {
        if (link.binding.screen() == nullptr) return;
        link.control.list_index.from_user(index);
        link.control.text.from_user(from_qt(combo->itemText(index)));
        link.binding.fire(link.name, "Click");
    });
    if (combo->isEditable())
        QObject::connect(combo->lineEdit(), &QLineEdit::textEdited, &link.binding,
                         [link](const QString& text) {
                             if (link.binding.screen() == nullptr) return;
                             link.control.list_index.from_user(-1);
                             link.control.text.from_user(from_qt(text));
                             link.binding.fire(link.name, "Change");
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
    link_choice(link, *list, [list, &box = link.control] {
        box.list_index.from_user(list->selectedItems().isEmpty() ? -1 : list->currentRow());
        return true;
    });
    link_double_click(link, *list);
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
    link_choice(link, *list, [list, &box = link.control] {
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
        link.binding.fire(link.name, "Change");
    });
    link.binding.offer(link.name, "Change");
    return true;
}

} // namespace twk
