// SPDX-License-Identifier: MIT
#include "same.h"

#include "desktop/qt_text.h"
#include "desktop/screen_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace twk::test {

namespace {

template <class W> const W& as(const QWidget& widget) {
    return dynamic_cast<const W&>(widget);
}

/// Line ends apart, and without the breaks that keep a caption short.
std::string flat(QString text) {
    text.remove(u'\r');
    return text.replace(u'\n', u' ').toStdString();
}
std::string flat(const Text& text) {
    return flat(to_qt(text));
}

void same_entries(const QListWidget& list, const std::vector<Text>& entries) {
    ASSERT_EQ(list.count(), static_cast<int>(entries.size()));
    for (int i = 0; i < list.count(); ++i)
        EXPECT_EQ(from_qt(list.item(i)->text()), entries[static_cast<std::size_t>(i)]);
}

void same_choice(const QListWidget& list, int index) {
    EXPECT_EQ(list.selectedItems().isEmpty() ? -1 : list.currentRow(), index);
}

void same(const Label& control, const QWidget& widget) {
    EXPECT_EQ(flat(as<QLabel>(widget).text()), flat(control.caption()));
}
void same(const Frame& control, const QWidget& widget) {
    EXPECT_EQ(flat(as<QGroupBox>(widget).title()), flat(control.caption()));
}
void same(const CommandButton& control, const QWidget& widget) {
    EXPECT_EQ(flat(as<QAbstractButton>(widget).text()), flat(control.caption()));
}
template <class Box> void same_text(const Box& control, const QWidget& widget) {
    const auto* line = dynamic_cast<const QLineEdit*>(&widget);
    EXPECT_EQ(flat(line != nullptr ? line->text() : as<QPlainTextEdit>(widget).toPlainText()),
              flat(Replace(control.text(), u"\r\n", u"\n")));
}
void same(const TextBox& control, const QWidget& widget) {
    same_text(control, widget);
}
void same(const RichTextBox& control, const QWidget& widget) {
    same_text(control, widget);
}
template <class Switch> void same_switch(const Switch& control, const QWidget& widget) {
    EXPECT_EQ(as<QAbstractButton>(widget).isChecked(), control.value());
    if (!control.caption().empty()) {
        EXPECT_EQ(flat(as<QAbstractButton>(widget).text()), flat(control.caption()));
    }
}
void same(const CheckBox& control, const QWidget& widget) {
    same_switch(control, widget);
}
void same(const OptionButton& control, const QWidget& widget) {
    same_switch(control, widget);
}
void same(const ListBox& control, const QWidget& widget) {
    const auto& list = as<QListWidget>(widget);
    same_entries(list, control.entries());
    if (!control.multi_select && !control.tick_marks) return same_choice(list, control.list_index());
    for (int i = 0; i < list.count(); ++i)
        EXPECT_EQ(control.tick_marks ? list.item(i)->checkState() == Qt::Checked : list.item(i)->isSelected(),
                  control.selected(i));
}
void same(const ComboBox& control, const QWidget& widget) {
    const auto& combo = as<QComboBox>(widget);
    ASSERT_EQ(combo.count(), control.list_count());
    for (int i = 0; i < combo.count(); ++i)
        EXPECT_EQ(from_qt(combo.itemText(i)), control.entries()[static_cast<std::size_t>(i)]);
    const bool of_list = !combo.isEditable() && combo.currentIndex() >= 0;
    if (!combo.isEditable()) {
        EXPECT_EQ(combo.currentIndex(), control.list_index());
    }
    EXPECT_EQ(flat(combo.isEditable() || of_list ? combo.currentText() : combo.placeholderText()),
              flat(control.text()));
}
void same(const Slider& control, const QWidget& widget) {
    EXPECT_EQ(as<QSlider>(widget).value(), control.value());
}
void same(const ProgressBar& control, const QWidget& widget) {
    const auto& bar = as<QProgressBar>(widget);
    EXPECT_NEAR(bar.value() * 100.0 / bar.maximum(), control.value(), 1);
}
void same(const Grid& control, const QWidget& widget) {
    const auto& table = as<QTableWidget>(widget);
    ASSERT_EQ(table.rowCount(), static_cast<int>(control.rows.size()));
    ASSERT_EQ(table.columnCount(), static_cast<int>(control.header.size()));
    for (int r = 0; r < table.rowCount(); ++r)
        for (int c = 0; c < table.columnCount(); ++c)
            EXPECT_EQ(from_qt(table.item(r, c)->text()),
                      control.rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)]);
    EXPECT_EQ(table.selectedItems().isEmpty() ? 0 : table.currentRow() + 1, control.row);
}
void same(const FileListBox& control, const QWidget& widget) {
    same_entries(as<QListWidget>(widget), control.entries());
    same_choice(as<QListWidget>(widget), control.list_index());
}
void same(const DirListBox& control, const QWidget& widget) {
    const auto* current = as<QListWidget>(widget).currentItem();
    EXPECT_EQ(current == nullptr ? Text() : from_qt(current->toolTip()), control.list(control.list_index()));
}
void same(const DriveListBox& control, const QWidget& widget) {
    EXPECT_EQ(as<QComboBox>(widget).currentIndex(), control.list_index());
}
template <class Other> void same(const Other&, const QWidget&) {}

} // namespace

void expect_widgets_like_controls(const MainWindow& window) {
    for (ScreenWindow* each : window.windows()) {
        Screen* const screen = each->screen();
        if (screen == nullptr) continue;
        for (const ScreenMap::Control& name : screen->map.all_controls()) {
            // A modal screen's form stands in a dialog meanwhile.
            const QWidget* const top = each->layout()->isEmpty() ? QApplication::activeModalWidget() : each;
            if (top == nullptr) continue;
            const auto* const widget = top->findChild<QWidget*>(QString::fromStdString(name.object_name()));
            if (widget == nullptr) continue;
            SCOPED_TRACE(screen->name + "." + name.object_name());
            std::visit(
                [&](const auto* control) {
                    if constexpr (requires { control->visible; }) {
                        EXPECT_EQ(widget->isHidden(), !control->visible());
                        EXPECT_EQ(widget->isEnabledTo(widget->parentWidget()), control->enabled());
                        same(*control, *widget);
                    }
                },
                name.ref);
        }
    }
}

} // namespace twk::test
