// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QKeyEvent;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace twk {

class ScreenBinding;

/// What a list of a screen does beyond choosing. A long one has a box above it that shows only the entries
/// with some text in them; what it hides is never chosen. Delete presses the button that the list names in
/// its property "deletes". F2 renames the entry in its place, through the field and the button that the
/// property "renames" names ("Text1,Command21"). Ctrl+A chooses all that can be seen where several can be
/// chosen, Ctrl+C copies what is chosen, Ctrl+F goes to the box above. The context menu has the screen's own
/// commands, the buttons in the property "commands".
class ListManners : public QObject {
  public:
    ListManners(ScreenBinding& binding, QWidget& form, QListWidget& list);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void add_filter();
    void put_before_list(QWidget& box);
    void filter();
    bool press_key(const QKeyEvent& key);
    void choose_all();
    void copy() const;
    void begin_rename();
    void rename(int row, const QString& text);
    void show_menu(const QPoint& at);
    QPushButton* button(const QString& name) const;
    /// Names in a property, parted by commas.
    QStringList named(const char* property) const;

    ScreenBinding& binding_;
    QWidget& form_;
    QListWidget& list_;
    QLineEdit* filter_ = nullptr; ///< null for a list that scrolls with another
};

} // namespace twk
