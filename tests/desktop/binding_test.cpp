// SPDX-License-Identifier: MIT
#include "desktop/qt_text.h"
#include "opened_addresses.h"
#include "shell/mdi1.h"
#include "support/every_screen.h"
#include "user.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

namespace twk {
namespace {

using Binding = test::WindowTest;
using test::User;

TEST_F(Binding, EveryControlOfEveryScreenHasItsWidgetAndEveryEventItsSignal) {
    test::show_every_screen();
    ASSERT_EQ(qt.window().windows().size(), test::screen_count);
    for (ScreenWindow* window : qt.window().windows()) {
        const Screen& screen = *window->screen();
        SCOPED_TRACE(screen.name);
        ASSERT_FALSE(screen.map.all_controls().empty());
        window->open();
        EXPECT_EQ(qt.window().front(), window);
        for (const std::string& each : window->binding().unbound()) ADD_FAILURE() << each;
        QSet<const QWidget*> labelled;
        for (const QLabel* label : window->findChildren<QLabel*>()) labelled << label->buddy();
        for (const QWidget* each : window->findChildren<QWidget*>()) {
            const bool named = !each->accessibleName().isEmpty() || labelled.contains(each) ||
                               qobject_cast<const QAbstractButton*>(each) != nullptr ||
                               each->objectName().startsWith(QStringLiteral("qt_"));
            const bool reached = each->focusPolicy() & Qt::TabFocus && each->isVisible();
            EXPECT_TRUE(named || !reached || each->objectName().isEmpty())
                << each->objectName().toStdString() << " has no name for a reader";
        }
    }
}

TEST_F(Binding, TheMenuIsWholeAndListsTheOpenScreens) {
    for (const MenuEntry& each : mdi1::menu()) {
        const QString name = QString::fromLatin1(each.name);
        const bool there = qt.window().findChild<QAction*>(name) != nullptr ||
                           qt.window().findChild<QMenu*>(name) != nullptr;
        EXPECT_TRUE(there) << each.name;
        const bool answered = screens().record<mdi1>().map.find_event(each.name, "Click") != nullptr;
        EXPECT_TRUE(answered || !each.command) << each.name;
    }
    user.press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(user.sees("Form1"));
    user.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(user.sees("Form10"));

    auto* const list = qt.window().findChild<QMenu*>(QStringLiteral("win"));
    Q_EMIT list->aboutToShow();
    ASSERT_EQ(list->actions().size(), 2);
    EXPECT_EQ(list->actions()[1]->text(), QStringLiteral("Synonym Dictionary"));
    EXPECT_TRUE(list->actions()[1]->isChecked());
    list->actions()[0]->trigger();
    EXPECT_EQ(screens().open().back()->name, "Form1");
}

TEST_F(Binding, EveryShortcutOfTheMenuWorksWithWindowsOpen) {
    test::OpenedAddresses opened(QStringLiteral("http"));
    screens().dispatch([] { screens().show<Form1>(); });
    user.press(Qt::Key_W, Qt::ControlModifier);
    ASSERT_EQ(opened.urls.size(), 1) << "the maker's site, not the closing of a window";
    EXPECT_TRUE(user.sees("Form1"));
    user.find<QPushButton>("Form1", "Command1")->setFocus();
    for (const auto& [key, screen] : std::initializer_list<std::pair<Qt::Key, const char*>>{
             {Qt::Key_I, "frmTip"}, {Qt::Key_D, "disclaimer"}, {Qt::Key_H, "Form9"}}) {
        user.press(key, Qt::ControlModifier);
        EXPECT_TRUE(user.sees(screen)) << screen;
        user.close(screen);
    }
}

TEST_F(Binding, WhatIsTypedOrChosenReachesTheControlAndBack) {
    Form6* form = nullptr;
    screens().dispatch([&] { form = &screen<Form6>(); });
    ASSERT_NE(form, nullptr);
    auto* const slider = user.find<QSlider>("Form6", "Slider1");
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(form->Slider1.value(), 2);
    EXPECT_TRUE(user.find<QWidget>("Form6", "Frame1")->isVisible()) << "the level's frame";
    EXPECT_FALSE(user.find<QWidget>("Form6", "Frame2")->isVisible());

    auto* const pages = user.find<QComboBox>("Form6", "Combo2");
    pages->setFocus();
    QTest::keyClick(pages, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(pages, QStringLiteral("7"));
    EXPECT_EQ(form->Combo2.text(), u"7");
    EXPECT_EQ(form->Combo2.list_index(), -1);
    form->Combo2.text = u"12";
    EXPECT_EQ(pages->currentText(), QStringLiteral("12"));

    const bool before = form->Check9.value();
    user.click("Form6", "Check9");
    EXPECT_EQ(form->Check9.value(), !before);

    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_Right);
    user.click("Form6", "Template_2");
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(form->Template[i].value(), i == 2) << i;
    form->Template[2].value = false;
    EXPECT_FALSE(user.find<QRadioButton>("Form6", "Template_2")->isChecked()) << "none is chosen";
    user.click("Form6", "Option2");
    EXPECT_TRUE(form->Option2.value());
    EXPECT_FALSE(form->Option1.value());
    EXPECT_FALSE(user.find<QPushButton>("Form6", "Command2_110")->isEnabled());

    auto* const box = user.find<QPlainTextEdit>("Form6", "Text2");
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral("one"));
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClicks(box, QStringLiteral("two"));
    EXPECT_EQ(form->Text2.text(), u"one\r\ntwo");
    form->Text2.text = u"a\r\nb";
    EXPECT_EQ(box->toPlainText(), QStringLiteral("a\nb"));
}

TEST_F(Binding, ListsFollowTheirControlAndKeepTheUsersMarks) {
    Form3* form = nullptr;
    screens().dispatch([&] { form = &screen<Form3>(); });
    auto* const list = user.find<QListWidget>("Form3", "List1");
    for (const char16_t* each : {u"one", u"two", u"three", u"four"}) form->List1.add_item(each);
    const auto shown = [list] {
        QStringList all;
        for (int i = 0; i < list->count(); ++i) all << list->item(i)->text();
        return all.join(u',');
    };
    form->List1.remove_item(1);
    EXPECT_EQ(shown(), QStringLiteral("one,three,four"));
    form->List1.set_list(0, u"first");
    EXPECT_EQ(shown(), QStringLiteral("first,three,four"));

    user.choose("Form3", "List1", 0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      list->visualItemRect(list->item(2)).center());
    EXPECT_EQ(form->List1.sel_count(), 2);
    EXPECT_TRUE(form->List1.selected(0) && form->List1.selected(2));
    EXPECT_EQ(form->Text1.text(), u"four") << "the click's event";

    user.click("Form3", "Text1"); // leaves no keyword selected
    EXPECT_EQ(form->List1.list_index(), -1);
    EXPECT_EQ(list->currentRow(), -1);
    form->List1.clear();
    EXPECT_EQ(list->count(), 0);

    Form19* suggestions = nullptr;
    screens().dispatch([&] { suggestions = &screen<Form19>(); });
    suggestions->List1.add_item(u"mint tea");
    suggestions->List1.set_selected(0, true);
    auto* const ticks = user.find<QListWidget>("Form19", "List1");
    EXPECT_EQ(ticks->item(0)->checkState(), Qt::Checked);
    ticks->item(0)->setCheckState(Qt::Unchecked);
    EXPECT_FALSE(suggestions->List1.selected(0));
}

TEST_F(Binding, LeavingABoxIsToldOnceTheFocusHasMoved) {
    screens().dispatch([] { screens().show<Form2>(); });
    user.type("Form2", "txt_url_0", QStringLiteral("  http://www.teahouse.example "));
    user.find<QLineEdit>("Form2", "txt_dat_0")->setFocus(Qt::TabFocusReason);
    User::settle();
    EXPECT_EQ(screen<Form2>().txt_url[0].text(), u"http://www.teahouse.example");

    user.type("Form2", "Text2_0", QStringLiteral("ab"));
    user.expect(QStringLiteral("The word must have more than 3 characters"));
    user.find<QLineEdit>("Form2", "txt_dat_0")->setFocus(Qt::TabFocusReason);
    User::settle();
    qt.window().activateWindow(); // off screen nobody does it when the message has gone
    User::settle();
    EXPECT_TRUE(user.find<QLineEdit>("Form2", "Text2_0")->hasFocus()) << "the user is brought back";
    EXPECT_EQ(user.find<QLineEdit>("Form2", "Text2_0")->text(), QString());
    user.find<QLineEdit>("Form2", "Text2_0")->setText(QStringLiteral("abcd"));
    screen<Form2>().Text2[0].text.from_user(u"abcd");
}

TEST_F(Binding, FoldersAreWalkedByDoubleClick) {
    screens().dispatch([] { screens().show<Form23>(); });
    Form23& form = screen<Form23>();
    auto* const folders = user.find<QListWidget>("Form23", "Dir2");
    ASSERT_NE(folders, nullptr);
    const auto images = folders->findItems(QStringLiteral("Images"), Qt::MatchContains);
    ASSERT_EQ(images.size(), 1);
    folders->setCurrentItem(images[0]);
    QTest::keyClick(folders, Qt::Key_Return);
    User::settle();
    EXPECT_EQ(form.Dir2.path(), app.path(u"Images"));
    EXPECT_EQ(form.Text1.text(), app.path(u"Images"));
    EXPECT_EQ(from_qt(folders->currentItem()->toolTip()), app.path(u"Images"));
}

} // namespace
} // namespace twk
