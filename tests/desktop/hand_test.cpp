// SPDX-License-Identifier: MIT
#include "desktop/qt_text.h"
#include "platform/numbers.h"
#include "same.h"
#include "shell/module1.h"
#include "support/every_screen.h"
#include "user.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QToolTip>
#include <chrono>

namespace twk {
namespace {

using test::User;

/// Keys and buttons as a hand presses them, and what the screens hear of it.
class Hand : public test::WindowTest {
  protected:
    template <class S> static S& shown() {
        screens().dispatch([] { screens().show<S>(); });
        User::settle();
        return screen<S>();
    }
    static std::string focus() {
        const QWidget* const widget = QApplication::focusWidget();
        return widget == nullptr ? "" : widget->objectName().toStdString();
    }
    static void key(Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), which, modifiers);
        User::settle();
    }
    static Form17& names(int count) {
        Form17& form = shown<Form17>();
        for (int i = 0; i < count; ++i) {
            form.List1.add_item(Text(1, static_cast<char16_t>(u'a' + i % 26)) + to_text(i) + u"-tea.htm");
            form.List2.add_item(u"host " + to_text(i));
        }
        User::settle();
        return form;
    }
};

TEST_F(Hand, WhateverAListShowsAsChosenIsWhatTheScreenWasTold) {
    Form17& form = names(9);
    auto& list = *user.find<QListWidget>("Form17", "List1");
    QWidget& view = *list.viewport();
    const auto told = [&](int row, const char* by) {
        EXPECT_EQ(list.currentRow(), row) << by;
        EXPECT_EQ(form.List1.list_index(), row) << by;
        EXPECT_EQ(form.Text1.text(), form.List1.list(row)) << by;
    };
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        user.press_button(view, User::row(list, 2), button);
        user.release_button(view, User::row(list, 2), button);
        told(list.currentRow(), "a click");
        user.press_button(view, User::row(list, 1), button);
        for (const int row : {2, 3, 4}) user.drag_to(view, User::row(list, row), button);
        user.release_button(view, User::row(list, 4), button);
        told(list.currentRow(), "a drag");
    }
    list.setFocus();
    key(Qt::Key_End);
    told(8, "End");
    key(Qt::Key_Home);
    told(0, "Home");
    key(Qt::Key_D);
    told(3, "typing");
    user.wheel(view, -3);
    told(3, "the wheel");
    form.Text1.text = u"";
    user.press_button(view, User::row(list, 3));
    user.release_button(view, User::row(list, 3));
    told(3, "a click on what is chosen");

    // Of several entries the last one touched counts.
    Form3& step2 = shown<Form3>();
    for (const char16_t* each : {u"one", u"two", u"three"}) step2.List1.add_item(each);
    auto& keywords = *user.find<QListWidget>("Form3", "List1");
    for (const int last : {2, 0}) {
        user.press_button(*keywords.viewport(), User::row(keywords, 1));
        user.drag_to(*keywords.viewport(), User::row(keywords, last), Qt::LeftButton);
        user.release_button(*keywords.viewport(), User::row(keywords, last));
        EXPECT_EQ(step2.Text1.text(), step2.List1.list(keywords.currentRow()));
        EXPECT_EQ(step2.List1.sel_count(), static_cast<int>(keywords.selectedItems().size()));
    }
}

TEST_F(Hand, EnterPressesWhatTheUserMeansByIt) {
    user.on_dialog([this] {
        Form17& form = screen<Form17>();
        EXPECT_EQ(focus(), "List1") << "the list first";
        key(Qt::Key_Return);
        user.choose("Form17", "List1", 1);
        user.expect(QStringLiteral("File Name Changed."));
        user.enter("Form17", "Text1", QStringLiteral("mine.htm"));
        EXPECT_EQ(form.List1.list(1), u"mine.htm");
        user.mouse("Form17", "Command6");
        EXPECT_EQ(focus(), "Text2") << "the Find box";
        user.type("Form17", "Text2", QStringLiteral("tea"));
        user.enter("Form17", "Text3", QStringLiteral("pot"));
        EXPECT_EQ(form.List1.list(0), u"a0-pot.htm");
        EXPECT_EQ(focus(), "Command6") << "where the user was before";
        key(Qt::Key_Return);
        EXPECT_EQ(focus(), "Text2");
        ASSERT_TRUE(screens().find("Form17")->visible) << "the step has not been left";
        screens().hide<Form17>();
    });
    screens().dispatch([] {
        for (const char16_t* each : {u"a0-tea.htm", u"b1-tea.htm"}) screen<Form17>().List1.add_item(each);
        screens().show_modal<Form17>();
    });

    Form2& step1 = shown<Form2>();
    user.enter("Form2", "txt_url_1", QStringLiteral(" http://other.example "));
    EXPECT_EQ(step1.List1.list(0), u"http://other.example") << "left, then added";
    EXPECT_EQ(focus(), "txt_url_1") << "ready for another";
    user.type("Form2", "Text2_0", QStringLiteral("Tea"));
    user.expect(QStringLiteral("The Project must have a Name"));
    user.enter("Form2", "txt_dat_0", QStringLiteral("x"));

    Form7& step4 = shown<Form7>();
    user.enter("Form7", "Text1", QStringLiteral("http://more.example"));
    EXPECT_EQ(step4.List1.list(0), u"http://more.example");
    Form10& dictionary = shown<Form10>();
    user.expect(QStringLiteral("The keyword was added."));
    user.enter("Form10", "Text2", QStringLiteral("tea"));
    EXPECT_EQ(dictionary.List1.list(0), u"tea");
}

TEST_F(Hand, AltWithALetterPressesNextOrNothingButNeverTypes) {
    Form5& step3 = shown<Form5>();
    user.type("Form5", "rt1", QStringLiteral("text"));
    step3.RTAux = u"text";
    user.expect(QStringLiteral("You Must enter at least 2 content boxes."));
    key(Qt::Key_N, Qt::AltModifier);
    key(Qt::Key_X, Qt::AltModifier);
    EXPECT_EQ(step3.rt1.text(), u"text");

    shown<Form2>();
    user.type("Form2", "txt_name_0", QStringLiteral("tea"));
    user.type("Form2", "Text2_0", QStringLiteral("Tea"));
    for (const char* box : {"txt_dat_0", "txt_dat_1", "txt_dat_2"})
        user.type("Form2", box, QStringLiteral("x"));
    user.type("Form2", "txt_url_0", QStringLiteral("  http://tea.example  "));
    key(Qt::Key_N, Qt::AltModifier);
    User::settle(200);
    EXPECT_EQ(app.value(u"select * from Projects", u"site_url"), u"http://tea.example") << "left before Next";
}

TEST_F(Hand, WhatIsLeftIsHandledBeforeTheClickThatLeftIt) {
    shown<Form2>();
    user.type("Form2", "Text2_0", QString());
    user.expect(QStringLiteral("The word must have more than 3 characters"));
    user.mouse("Form2", "Command3");
    EXPECT_TRUE(user.sees("Form9")) << "Help";
    user.close("Form9");
    screens().dispatch([] { screens().bring_forward<Form2>(); });

    user.type("Form2", "Text2_0", QStringLiteral("a b"));
    user.expect(QStringLiteral("letters, numbers and dashes"));
    user.mouse("Form2", "Command2"); // told once: Next would say it again
    EXPECT_TRUE(user.sees("Form2"));

    user.find<QWidget>("Form2", "Text2_0")->setFocus();
    user.expect(QStringLiteral("The word must have more than 3 characters"));
    user.mouse("Form2", "Command1");
    EXPECT_FALSE(user.sees("Form2")) << "Exit";
    EXPECT_TRUE(user.sees("Form1"));
}

TEST_F(Hand, AScreenOpensInItsFirstFieldAndTabVisitsWhatCanBeSeen) {
    shown<Form2>();
    EXPECT_EQ(focus(), "txt_name_0");
    shown<Form3>();
    EXPECT_EQ(focus(), "Text1");
    shown<Form5>();
    EXPECT_EQ(focus(), "rt1");
    shown<Form7>();
    EXPECT_EQ(focus(), "Text2");
    EXPECT_TRUE(user.find<QLineEdit>("Form7", "Text2")->hasSelectedText());
    Form6& step5 = shown<Form6>();
    EXPECT_EQ(focus(), "Combo9");
    step5.Slider1.value = 4;
    step5.Slider1_Change();
    std::string order;
    user.find<QWidget>("Form6", "combo1")->setFocus();
    for (int i = 0; i < 7; ++i, key(Qt::Key_Tab)) order += focus() + " ";
    EXPECT_EQ(order, "combo1 Text4 Command2_0 Option1 Text1 Command2_110 Text3 ");
    test::show_every_screen();
    User::settle();
    for (ScreenWindow* window : qt.window().windows())
        for (const QWidget* each : window->findChildren<QWidget*>()) {
            const bool stop = each->focusPolicy() & Qt::TabFocus && each->isVisible();
            const bool frame = qobject_cast<const QScrollArea*>(each) != nullptr;
            EXPECT_FALSE(stop && frame) << window->screen()->name << " stops at an invisible area";
        }
}

TEST_F(Hand, LongTextsShowTheirBeginningAndAllOfThemselvesOnDemand) {
    Form17& form = names(60);
    form.Text1.text = Text(300, u'x');
    EXPECT_EQ(user.find<QLineEdit>("Form17", "Text1")->cursorPosition(), 0);
    auto& left = *user.find<QListWidget>("Form17", "List1");
    auto& right = *user.find<QListWidget>("Form17", "List2");
    EXPECT_EQ(left.mapTo(left.window(), QPoint()).y(), right.mapTo(right.window(), QPoint()).y());
    EXPECT_EQ(left.height(), right.height());
    user.wheel(*left.viewport(), -5);
    EXPECT_GT(left.verticalScrollBar()->value(), 0);
    EXPECT_EQ(left.verticalScrollBar()->value(), right.verticalScrollBar()->value());

    const Text box = u"Tea " + Text(200, u'x') + u" end.";
    app.run("insert into Projects ( name ) values ( 'tea' );"
            "insert into keywords ( pid , keyword ) values ( 1 , 'green tea' );"
            "insert into ties ( pid , keyid , cid ) values ( 1 , 1 , 1 );"
            "insert into content ( pid , content ) values ( 1 , '" +
            to_utf8(box) + "' );");
    module1().pid_actual = 1;
    screens().dispatch([] { screen<Form2>().txt_name[0].text = u"tea"; });
    shown<Form3>();
    shown<Form5>();
    const auto tip_at = [](QWidget& widget, QPoint at) {
        QToolTip::hideText();
        QHelpEvent ask(QEvent::ToolTip, at, widget.mapToGlobal(at));
        QCoreApplication::sendEvent(&widget, &ask);
        return QToolTip::text();
    };
    auto& boxes = *user.find<QListWidget>("Form5", "List1");
    EXPECT_TRUE(tip_at(*boxes.viewport(), User::row(boxes, 0)).contains(to_qt(box)));
    auto& keyword = *user.find<QComboBox>("Form5", "lstkeyword");
    user.choose("Form5", "lstkeyword", 0);
    EXPECT_TRUE(tip_at(keyword, keyword.rect().center()).contains(to_qt(box)));
    module1().pid_actual = 0;
}

TEST_F(Hand, EveryControlIsShownAsItIsAfterEveryKeyAndClickOnEveryScreen) {
    test::show_every_screen();
    user.ignore_messages();
    for (ScreenWindow* window : std::vector(qt.window().windows())) {
        const std::string name = window->screen()->name;
        SCOPED_TRACE(name);
        screens().dispatch([&] { screens().bring_forward(*window->screen()); });
        for (const ScreenMap::Control& control : window->screen()->map.all_controls()) {
            auto* const widget = window->findChild<QWidget*>(QString::fromStdString(control.object_name()));
            if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) continue;
            if (std::holds_alternative<CommandButton*>(control.ref)) continue;
            if (auto* const list = std::get_if<ListBox*>(&control.ref))
                for (const char16_t* each : {u"one", u"two", u"three"}) (*list)->add_item(each);
            if (auto* const combo = std::get_if<ComboBox*>(&control.ref)) {
                (*combo)->add_item(u"entry");
                (*combo)->select(-1);
                test::expect_widgets_like_controls(qt.window());
                (*combo)->text = u"Pick one";
            }
            test::expect_widgets_like_controls(qt.window());
            widget->setFocus();
            for (const Qt::Key each : {Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_Space, Qt::Key_E}) {
                QTest::keyClick(widget, each);
                test::expect_widgets_like_controls(qt.window());
            }
            for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
                if (std::holds_alternative<ComboBox*>(control.ref)) break; // opens its list
                QTest::mouseClick(widget, button, Qt::NoModifier, QPoint(12, widget->height() / 2));
                test::expect_widgets_like_controls(qt.window());
            }
            if (window->screen() == nullptr) break;
        }
    }
}

} // namespace
} // namespace twk
