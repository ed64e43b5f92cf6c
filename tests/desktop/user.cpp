// SPDX-License-Identifier: MIT
#include "user.h"

#include "same.h"
#include "shell/mdi1.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace twk::test {

User::User(QtDesktop& desktop) : desktop_(desktop) {
    QObject::connect(&eyes_, &QTimer::timeout, [this] { look(); });
    eyes_.start(5);
}

User::~User() {
    for (const Expected& each : expected_)
        ADD_FAILURE() << "message never shown: " << each.part.toStdString();
}

void User::settle(int milliseconds) {
    QTest::qWait(milliseconds);
}

void User::expect(const QString& part, QMessageBox::StandardButton button, const QString& title) {
    expected_.push_back({part, button, title});
}

void User::look() {
    QWidget* const dialog = QApplication::activeModalWidget();
    // A window manager does this when a dialog has closed.
    if (QApplication::activeWindow() == nullptr)
        (dialog != nullptr ? *dialog : static_cast<QWidget&>(desktop_.window())).activateWindow();
    if (dialog == nullptr || dialog == answered_ || !dialog->isVisible()) return;
    if (auto* const box = qobject_cast<QMessageBox*>(dialog)) {
        answered_ = dialog;
        answer(*box);
        answered_ = nullptr;
    } else if (on_dialog_) {
        // Outside this timer, which must go on looking at the messages that come up meanwhile.
        QTimer::singleShot(0, dialog, std::exchange(on_dialog_, nullptr));
    }
}

void User::answer(QMessageBox& box) {
    QMessageBox::StandardButton button = QMessageBox::Ok;
    if (!expected_.empty() && box.text().contains(expected_.front().part)) {
        button = expected_.front().button;
        EXPECT_EQ(box.windowTitle().toStdString(), expected_.front().title.toStdString());
        expected_.pop_front();
    } else if (ignoring_) {
        button = box.standardButton(box.buttons().constFirst());
    } else if (always_.isEmpty() || !box.text().contains(always_)) {
        ADD_FAILURE() << "unexpected message: " << box.text().toStdString();
        button = box.standardButton(box.buttons().constLast());
    }
    QAbstractButton* const found = box.button(button);
    if (found == nullptr) {
        ADD_FAILURE() << "no such button under: " << box.text().toStdString();
        box.reject();
        return;
    }
    QTest::mouseClick(found, Qt::LeftButton);
}

void User::menu(const char* entry) {
    auto* const action = desktop_.window().findChild<QAction*>(QString::fromLatin1(entry));
    ASSERT_NE(action, nullptr) << entry;
    ASSERT_TRUE(action->isEnabled());
    action->trigger();
    settle();
}

void User::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    desktop_.window().activateWindow();
    settle();
    QWidget* const focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &desktop_.window(), key, modifiers);
    settle();
}

ScreenWindow* User::window(const char* screen) const {
    for (ScreenWindow* each : desktop_.window().windows())
        if (each->screen() != nullptr && each->screen()->name == screen) return each;
    return nullptr;
}

std::vector<QWidget*> User::roots(const char* screen) const {
    std::vector<QWidget*> all;
    if (ScreenWindow* const found = window(screen)) all.push_back(found);
    if (QWidget* const modal = QApplication::activeModalWidget()) all.push_back(modal);
    for (QWidget* each : QApplication::topLevelWidgets())
        if (qobject_cast<QDialog*>(each) != nullptr) all.push_back(each);
    return all;
}

bool User::ready(QWidget* widget, const char* screen, const char* name) const {
    if (widget == nullptr) return false;
    // As by the Windows menu: one screen is in front, the others wait behind it.
    ScreenWindow* const page = window(screen);
    if (page != nullptr && page->isAncestorOf(widget) && desktop_.window().front() != page && page->is_open())
        page->binding().run([page] { screens().bring_forward(*page->screen()); });
    EXPECT_TRUE(widget->isVisible()) << screen << "." << name << " cannot be seen";
    EXPECT_TRUE(widget->isEnabled()) << screen << "." << name << " is greyed out";
    return widget->isVisible() && widget->isEnabled();
}

void User::click(const char* screen, const char* widget) {
    auto* const found = find<QWidget>(screen, widget);
    if (!ready(found, screen, widget)) return;
    found->setFocus(Qt::MouseFocusReason);
    settle();
    if (!ready(find<QWidget>(screen, widget), screen, widget)) return;
    const bool marked = qobject_cast<QAbstractButton*>(found) != nullptr;
    // A check box is clicked on its mark, at its left end.
    QTest::mouseClick(found, Qt::LeftButton, Qt::NoModifier,
                      marked && found->width() > 40 ? QPoint(12, found->height() / 2) : QPoint());
    settle();
}

void User::type(const char* screen, const char* widget, const QString& text) {
    auto* const found = find<QWidget>(screen, widget);
    if (!ready(found, screen, widget)) return;
    found->setFocus(Qt::TabFocusReason);
    QTest::keyClick(found, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(found, Qt::Key_Delete);
    QTest::keyClicks(found, text);
    settle();
}

void User::enter(const char* screen, const char* widget, const QString& text) {
    type(screen, widget, text);
    if (auto* const found = find<QWidget>(screen, widget)) QTest::keyClick(found, Qt::Key_Return);
    settle();
}

void User::choose(const char* screen, const char* list, int row) {
    auto* const found = find<QWidget>(screen, list);
    if (!ready(found, screen, list)) return;
    if (auto* const entries = qobject_cast<QListWidget*>(found)) {
        ASSERT_LT(row, entries->count()) << screen << "." << list;
        entries->scrollToItem(entries->item(row));
        const QRect place = entries->visualItemRect(entries->item(row));
        QTest::mouseClick(entries->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    } else if (auto* const combo = qobject_cast<QComboBox*>(found)) {
        ASSERT_LT(row, combo->count()) << screen << "." << list;
        while (combo->currentIndex() < row) QTest::keyClick(combo, Qt::Key_Down);
    }
    settle();
}

void User::close(const char* screen) {
    ScreenWindow* const found = window(screen);
    ASSERT_NE(found, nullptr) << screen;
    found->close();
    settle();
}

namespace {

QWindow* handle(const QWidget& widget) {
    return widget.window()->windowHandle();
}

QPoint in_window(const QWidget& widget, QPoint at) {
    return widget.mapTo(widget.window(), at);
}

} // namespace

void User::press_button(QWidget& widget, QPoint at, Qt::MouseButton button) {
    QTest::mousePress(handle(widget), button, Qt::NoModifier, in_window(widget, at));
}

void User::drag_to(QWidget& widget, QPoint at, Qt::MouseButton button) {
    QMouseEvent move(QEvent::MouseMove, in_window(widget, at), widget.mapToGlobal(QPointF(at)), Qt::NoButton,
                     button, Qt::NoModifier);
    QTest::qWait(2);
    QCoreApplication::sendEvent(handle(widget), &move);
}

void User::release_button(QWidget& widget, QPoint at, Qt::MouseButton button) {
    QTest::mouseRelease(handle(widget), button, Qt::NoModifier, in_window(widget, at));
    settle(40);
}

void User::mouse(const char* screen, const char* widget, Qt::MouseButton button) {
    auto* const found = find<QWidget>(screen, widget);
    if (!ready(found, screen, widget)) return;
    const QPoint at(qMin(12, found->width() / 2), found->height() / 2);
    press_button(*found, at, button);
    settle(40); // a hand is slower than the program
    release_button(*found, at, button);
}

void User::wheel(QWidget& widget, int notches) {
    const QPointF at = widget.rect().center();
    QWheelEvent turn(in_window(widget, at.toPoint()), widget.mapToGlobal(at), QPoint(),
                     QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(handle(widget), &turn);
    settle();
}

QPoint User::row(const QListWidget& list, int at) {
    return list.visualItemRect(list.item(at)).center();
}

bool User::sees(const char* screen) const {
    const ScreenWindow* const found = window(screen);
    return found != nullptr && found->is_open();
}

WindowTest::WindowTest() : user(qt) {
    set_desktop(&qt);
    screens().dispatch([] { screens().record<mdi1>(); });
    qt.window().resize(1180, 820);
    qt.window().show();
    qt.window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&qt.window()));
    ScreenBinding::after_event = [this, inner = ScreenBinding::after_event] {
        inner();
        expect_widgets_like_controls(qt.window());
    };
}

WindowTest::~WindowTest() {
    screens().dispatch([] { screens().unload_all(); });
    User::settle();
    set_desktop(&app.desktop);
}

} // namespace twk::test
