// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/qt_desktop.h"
#include "desktop/screen_window.h"
#include "support/temp_app.h"

#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>

#include <gtest/gtest.h>

namespace twk::test {

/// Somebody at the windows: clicks on what can be seen, types, and answers the dialogs that come up. What
/// cannot be clicked (hidden, greyed out, not there) fails the test, and so does a message that nobody
/// expects.
class User {
  public:
    explicit User(QtDesktop& desktop);
    ~User();

    /// The next message must contain `part` and have `button`, which is clicked.
    void expect(const QString& part, QMessageBox::StandardButton button = QMessageBox::Ok,
                const QString& title = QStringLiteral("Tarnwick"));
    /// From now on every message that contains `part` is answered by OK.
    void always_ok(const QString& part) { always_ = part; }
    /// From now on messages that nobody expects are answered by their first button.
    void ignore_messages() { ignoring_ = true; }
    /// Runs once, when the next dialog that is no message has come up.
    void on_dialog(std::function<void()> act) { on_dialog_ = std::move(act); }

    void menu(const char* entry);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void click(const char* screen, const char* widget);
    void type(const char* screen, const char* widget, const QString& text);
    /// Typed text, then the Enter key.
    void enter(const char* screen, const char* widget, const QString& text);
    void choose(const char* screen, const char* list, int row);
    void close(const char* screen);

    // Mouse and wheel as the window system gives them: to the window, at the place of the widget.
    void press_button(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void drag_to(QWidget& widget, QPoint at, Qt::MouseButton button);
    void release_button(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void mouse(const char* screen, const char* widget, Qt::MouseButton button = Qt::LeftButton);
    void wheel(QWidget& widget, int notches);
    /// The middle of an entry, in the list's viewport.
    static QPoint row(const QListWidget& list, int at);

    bool sees(const char* screen) const;
    ScreenWindow* window(const char* screen) const;
    template <class W> W* find(const char* screen, const char* widget) const {
        for (QWidget* root : roots(screen))
            if (W* found = root->findChild<W*>(QString::fromLatin1(widget))) return found;
        ADD_FAILURE() << "no " << widget << " in " << screen;
        return nullptr;
    }
    static void settle(int milliseconds = 20);

  private:
    struct Expected {
        QString part;
        QMessageBox::StandardButton button;
        QString title;
    };
    /// The window of a screen and, while it is shown modal, its dialog.
    std::vector<QWidget*> roots(const char* screen) const;
    bool ready(QWidget* widget, const char* screen, const char* name) const;
    void look();
    void answer(QMessageBox& box);

    QtDesktop& desktop_;
    QTimer eyes_;
    std::deque<Expected> expected_;
    QString always_;
    bool ignoring_ = false;
    std::function<void()> on_dialog_;
    QPointer<QWidget> answered_;
};

/// An application folder, the program's real windows off screen, and somebody to use them.
class WindowTest : public testing::Test {
  protected:
    WindowTest();
    ~WindowTest() override;

    TempApp app;
    QtDesktop qt;
    User user;
};

} // namespace twk::test
