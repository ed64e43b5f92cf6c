// SPDX-License-Identifier: MIT
#include "desktop/control_links.h"

#include "desktop/binder.h"
#include "desktop/browser.h"
#include "desktop/control_watch.h"
#include "desktop/field_manners.h"
#include "desktop/qt_text.h"
#include "desktop/tool_tips.h"
#include "desktop/widget_events.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTableWidget>
#include <QTextCursor>
#include <QTextDocument>
#include <type_traits>

namespace twk {

namespace {

/// Check boxes and options do not break their captions by themselves.
constexpr int caption_columns = 78;

/// The text of an editor with the line ends that the program uses.
Text edited_text(const QPlainTextEdit& editor) {
    QString text = editor.document()->toRawText();
    text.replace(QChar::LineSeparator, QStringLiteral("\r\n"));
    text.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
    return from_qt(text);
}

/// One insertion, however long the text already is. It is no change that the user could take back.
void put_in_front(QPlainTextEdit& editor, const QString& piece) {
    QTextCursor front(editor.document());
    front.insertText(piece);
}

/// Puts the program's text into an editor as one edit, so that what stood there comes back by Undo. What
/// nobody can edit, and an empty editor that nothing was ever typed into, have nothing to give back.
void put_text(QPlainTextEdit& editor, const Text& text) {
    if (edited_text(editor) == text) return;
    QTextDocument& document = *editor.document();
    if (editor.isReadOnly() || (document.isEmpty() && !document.isUndoAvailable())) {
        editor.setPlainText(to_qt(text));
        return;
    }
    QTextCursor all(&document);
    all.beginEditBlock();
    all.select(QTextCursor::Document);
    all.insertText(to_qt(text));
    all.endEditBlock();
    editor.moveCursor(QTextCursor::Start);
}

/// The same for a single line.
void put_text(QLineEdit& line, const QString& text) {
    if (line.text() == text) return;
    if (line.isReadOnly() || (line.text().isEmpty() && !line.isUndoAvailable())) {
        line.setText(text);
        return;
    }
    const QSignalBlocker quiet(line);
    line.selectAll();
    line.insert(text);
}

template <class Box> bool link_editor(const ControlLink<Box>& link, QPlainTextEdit& editor) {
    editor.setReadOnly(editor.isReadOnly() || link.control.read_only);
    watch_control(link, {Prop::text}, [&editor, &box = link.control](Prop changed) {
        const QSignalBlocker quiet(editor);
        if (changed == Prop::text) put_text(editor, box.text());
        if constexpr (std::is_same_v<Box, TextBox>)
            if (changed == Prop::front) put_in_front(editor, to_qt(box.text.newest()));
    });
    QObject::connect(&editor, &QPlainTextEdit::textChanged, &link.binding, [link, &editor] {
        if (link.binding.screen() == nullptr) return;
        link.control.text.from_user(edited_text(editor));
        link.binding.act(link.name, "Change");
    });
    link.binding.offer(link.name, "Change");
    watch_widget(link.binding, link.name, editor);
    return true;
}

bool link_line(const ControlLink<TextBox>& link, QLineEdit& line) {
    constexpr int longest = 1 << 24;
    line.setMaxLength(longest);
    line.setReadOnly(line.isReadOnly() || link.control.read_only);
    watch_control(link, {Prop::text}, [&line, &box = link.control](Prop changed) {
        if (changed != Prop::text && changed != Prop::front) return;
        put_text(line, to_qt(box.text()));
        if (!line.hasFocus()) line.setCursorPosition(0); // a long text shows its beginning
    });
    QObject::connect(&line, &QLineEdit::textEdited, &link.binding, [link](const QString& text) {
        if (link.binding.screen() == nullptr) return;
        link.control.text.from_user(from_qt(text));
        link.binding.act(link.name, "Change");
    });
    if (link.control.take_lines) new LinePaste(link.binding, line, link.control.take_lines);
    show_full_text(line, [&line](QPoint) {
        return line.fontMetrics().horizontalAdvance(line.text()) > line.width() ? line.text() : QString();
    });
    for (const char* event : {"Change", "Enter"}) link.binding.offer(link.name, event);
    watch_widget(link.binding, link.name, line);
    return true;
}

} // namespace

bool link(const ControlLink<Label>& link) {
    auto* const label = qobject_cast<QLabel*>(&link.widget);
    if (label == nullptr) return false;
    label->setTextFormat(Qt::PlainText);
    watch_control(link, {Prop::caption}, [label, &control = link.control](Prop changed) {
        if (changed == Prop::caption) label->setText(to_qt(control.caption()));
    });
    watch_widget(link.binding, link.name, *label);
    return true;
}

bool link(const ControlLink<Frame>& link) {
    auto* const box = qobject_cast<QGroupBox*>(&link.widget);
    if (box == nullptr) return false;
    watch_control(link, {Prop::caption}, [box, &control = link.control](Prop changed) {
        if (changed == Prop::caption) box->setTitle(to_qt(control.caption()));
    });
    watch_widget(link.binding, link.name, *box);
    return true;
}

bool link(const ControlLink<CommandButton>& link) {
    auto* const button = qobject_cast<QAbstractButton*>(&link.widget);
    if (button == nullptr) return false;
    watch_control(link, {Prop::caption}, [button, &control = link.control](Prop changed) {
        if (changed != Prop::caption) return;
        button->setText(to_qt(control.caption()));
        if (button->shortcut().isEmpty() && button->text().contains(QStringLiteral("Next")))
            button->setShortcut(Qt::ALT | Qt::Key_N);
    });
    QObject::connect(button, &QAbstractButton::clicked, &link.binding, [link, button] {
        const auto* const push = qobject_cast<const QPushButton*>(button);
        // A box that has refused what it holds, and said so, need not be refused once more by Next.
        if (ScreenBinding::raise_owed() && push != nullptr && push->isDefault()) return;
        link.binding.fire(link.name, "Click");
    });
    link.binding.offer(link.name, "Click");
    return true;
}

bool link(const ControlLink<TextBox>& link) {
    if (auto* const line = qobject_cast<QLineEdit*>(&link.widget)) return link_line(link, *line);
    auto* const editor = qobject_cast<QPlainTextEdit*>(&link.widget);
    return editor != nullptr && link_editor(link, *editor);
}

bool link(const ControlLink<RichTextBox>& link) {
    auto* const editor = qobject_cast<QPlainTextEdit*>(&link.widget);
    return editor != nullptr && link_editor(link, *editor);
}

bool link(const ControlLink<CheckBox>& link) {
    auto* const box = qobject_cast<QCheckBox*>(&link.widget);
    if (box == nullptr) return false;
    watch_control(link, {Prop::caption, Prop::value}, [box, &control = link.control](Prop changed) {
        if (changed == Prop::caption) box->setText(wrapped(to_qt(control.caption()), caption_columns));
        if (changed == Prop::value) box->setChecked(control.value());
    });
    QObject::connect(box, &QCheckBox::clicked, &link.binding, [link](bool on) {
        if (link.binding.screen() == nullptr) return;
        link.control.value.from_user(on);
        link.binding.act(link.name, "Click");
    });
    link.binding.offer(link.name, "Click");
    return true;
}

bool link(const ControlLink<OptionButton>& link) {
    auto* const option = qobject_cast<QRadioButton*>(&link.widget);
    if (option == nullptr) return false;
    watch_control(link, {Prop::caption, Prop::value}, [option, &control = link.control](Prop changed) {
        if (changed == Prop::caption) option->setText(wrapped(to_qt(control.caption()), caption_columns));
        if (changed != Prop::value) return;
        // The screen sets the group's options one by one, all off included.
        option->setAutoExclusive(false);
        option->setChecked(control.value());
        option->setAutoExclusive(true);
    });
    QObject::connect(option, &QRadioButton::toggled, &link.binding, [link](bool on) {
        if (link.binding.screen() != nullptr) link.control.value.from_user(on);
    });
    QObject::connect(option, &QRadioButton::clicked, &link.binding,
                     [link] { link.binding.act(link.name, "Click"); });
    link.binding.offer(link.name, "Click");
    return true;
}

bool link(const ControlLink<Slider>& link) {
    auto* const slider = qobject_cast<QSlider*>(&link.widget);
    if (slider == nullptr) return false;
    slider->setRange(link.control.minimum, link.control.maximum);
    watch_control(link, {Prop::value}, [slider, &control = link.control](Prop changed) {
        if (changed == Prop::value) slider->setValue(control.value());
    });
    QObject::connect(slider, &QSlider::valueChanged, &link.binding, [link](int value) {
        // What the screen has set itself is no change of the user's.
        if (link.binding.screen() == nullptr || link.control.value() == value) return;
        link.control.value.from_user(value);
        link.binding.act(link.name, "Change");
    });
    link.binding.offer(link.name, "Change");
    return true;
}

bool link(const ControlLink<ProgressBar>& link) {
    auto* const bar = qobject_cast<QProgressBar*>(&link.widget);
    if (bar == nullptr) return false;
    constexpr int steps_per_cent = 10;
    bar->setRange(0, 100 * steps_per_cent);
    watch_control(link, {Prop::value}, [bar, &control = link.control](Prop changed) {
        if (changed == Prop::value) bar->setValue(static_cast<int>(control.value() * steps_per_cent));
    });
    return true;
}

bool link(const ControlLink<PictureBox>& link) {
    auto* const label = qobject_cast<QLabel*>(&link.widget);
    if (label == nullptr) return false;
    watch_control(link, {Prop::text}, [label, &control = link.control](Prop changed) {
        if (changed != Prop::text || control.text().empty()) return;
        const QPixmap picture(QStringLiteral(":/pictures/") + to_qt(control.text()));
        if (!picture.isNull()) label->setPixmap(picture);
    });
    watch_widget(link.binding, link.name, *label);
    return true;
}

bool link(const ControlLink<Grid>& link) {
    auto* const table = qobject_cast<QTableWidget*>(&link.widget);
    if (table == nullptr) return false;
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    watch_control(link, {Prop::cells}, [table, &grid = link.control](Prop changed) {
        if (changed != Prop::cells) return;
        const QSignalBlocker quiet(table);
        const int columns = static_cast<int>(grid.header.size());
        const int rows = static_cast<int>(grid.rows.size());
        table->setColumnCount(columns);
        table->setRowCount(rows);
        for (int c = 0; c < columns; ++c) {
            const auto column = static_cast<std::size_t>(c);
            table->setHorizontalHeaderItem(c, new QTableWidgetItem(to_qt(grid.header[column])));
            for (int r = 0; r < rows; ++r)
                table->setItem(r, c,
                               new QTableWidgetItem(to_qt(grid.rows[static_cast<std::size_t>(r)][column])));
        }
    });
    const auto take = [link, table] {
        if (link.binding.screen() == nullptr) return false;
        link.control.row = table->selectedItems().isEmpty() ? 0 : table->currentRow() + 1;
        return true;
    };
    link_choice(link, *table, &QTableWidget::itemSelectionChanged, &QTableWidget::itemClicked, take);
    return true;
}

bool link(const ControlLink<WebBrowser>& link) {
    auto* const view = qobject_cast<BrowserView*>(&link.widget);
    if (view == nullptr) return false;
    watch_control(link, {}, [](Prop) {});
    link.binding.add_browser(link.control, *view);
    QObject::connect(view, &BrowserView::located, &link.binding, [link](const QString& address) {
        if (link.binding.screen() != nullptr) link.control.location_url.from_user(from_qt(address));
    });
    QObject::connect(view, &BrowserView::finished, &link.binding,
                     [link] { link.binding.fire(link.name, "NavigateComplete"); });
    link.binding.offer(link.name, "NavigateComplete");
    return true;
}

} // namespace twk
