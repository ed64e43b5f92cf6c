// SPDX-License-Identifier: MIT
#include "desktop/qt_text.h"
#include "desktop/user_settings.h"
#include "support/every_screen.h"
#include "support/sample_project.h"
#include "user.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabBar>
#include <QTest>

namespace twk {
namespace {

using ListManners = test::WindowTest;
using test::User;

TEST_F(ListManners, ListsTakeTheKeysThatPeopleTry) {
    test::SampleProject project(app);
    test::show_each<Form3>();
    Form3& form = screen<Form3>();
    auto* const list = user.find<QListWidget>("Form3", "List1");
    QApplication::clipboard()->setText(QStringLiteral("mint\nox\n\r\nmint\n"));
    user.expect(QStringLiteral("1 keyword added, 2 left out.\n\nKeyword too short: \"ox\"\nYou can't"));
    user.find<QLineEdit>("Form3", "Text1")->setFocus();
    QTest::keyClick(user.find<QLineEdit>("Form3", "Text1"), Qt::Key_V, Qt::ControlModifier);
    User::settle();
    EXPECT_EQ(list->item(3)->text().toStdString(), "mint");
    user.choose("Form3", "List1", 3);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("green mint"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    User::settle();
    EXPECT_EQ(form.List1.list(3), u"green mint") << "through Edit Keyword";

    for (char16_t c = u'a'; c <= u't'; ++c) form.List1.add_item(u"filler " + Text(1, c));
    auto* const filter = user.find<QLineEdit>("Form3", "filter_List1");
    EXPECT_TRUE(filter->isVisible());
    QTest::keyClicks(filter, QStringLiteral("GREEN"));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.List1.sel_count(), 1) << "what is hidden is not chosen";
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "green mint");
    user.ignore_messages();
    QTest::keyClick(list, Qt::Key_Delete);
    User::settle();
    EXPECT_EQ(form.List1.list_count(), 23);
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_TRUE(user.sees("Form3") && !list->item(0)->isHidden());

    Q_EMIT list->customContextMenuRequested({5, 5});
    auto* const menu = list->findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().constFirst()->text(), user.find<QPushButton>("Form3", "Command8")->text());
    menu->close();
}

TEST_F(ListManners, AFileDroppedOnAScreenIsTakenThere) {
    screens().dispatch([] { screens().show<Form5>(), screens().show<Form3>(), screens().show<Form6>(); });
    const auto drop = [&](const char* screen, const char* on, TextView name, const char* bytes) {
        app.write(Text(name), bytes);
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(to_qt(app.path(Text(name))))});
        QWidget* place = user.find<QWidget>(screen, on);
        if (auto* const area = qobject_cast<QAbstractScrollArea*>(place)) place = area->viewport();
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(place, &enter);
        QDropEvent dropped({5, 5}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(place, &dropped);
        User::settle(400);
    };
    drop("Form5", "rt1", u"box.txt", "one\r\ntwo");
    EXPECT_EQ(screen<Form5>().rt1.text(), u"one\r\ntwo") << "not its address";
    EXPECT_EQ(user.find<QLabel>("Form5", "lbl_live")->text().toStdString(), "2 words; no keyword");
    drop("Form5", "rt1", u"page.html", "<b>three</b>");
    EXPECT_TRUE(screen<Form5>().rt1.text().ends_with(u"two\r\n<b>three</b>"));
    drop("Form3", "Text1", u"words.exp", "");
    EXPECT_TRUE(screen<Form3>().Frame3.visible() && screen<Form3>().File2.list_index() == 0);
    user.expect(QStringLiteral(".dat Loaded"));
    drop("Form6", "pages", u"mine.dat", "1.a = 77\r\n");
    EXPECT_EQ(screen<Form6>().settings.min_palabras, 77);
}

TEST_F(ListManners, TheNamesOfStep5sPagesSetTheSliderAndFollowIt) {
    screens().dispatch([] { screens().show<Form6>(); });
    Form6& form = screen<Form6>();
    auto* const tabs = user.find<QTabBar>("Form6", "pages");
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(4).center());
    EXPECT_EQ(form.Slider1.value(), 5);
    EXPECT_TRUE(tabs->isVisible() && tabs->height() > 10 && form.Frame7.visible());
    form.Slider1.value = 2;
    EXPECT_EQ(tabs->currentIndex(), 1);
    auto* const pages = user.find<QComboBox>("Form6", "Combo2");
    const Text chosen = form.Combo2.text();
    user.wheel(*pages, -1);
    EXPECT_EQ(form.Combo2.text(), chosen) << "the wheel turns nothing that lacks the focus";
}

TEST_F(ListManners, BrowseChoosesInTheListsOfFoldersAndFiles) {
    app.write(u"Images/tea.exp", "");
    screens().dispatch([] { screens().show<Form3>(); });
    user.click("Form3", "cmd_import");
    user.on_dialog([this] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->setDirectory(to_qt(app.path(u"Images")));
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("tea.exp"));
        static_cast<QDialog*>(dialog)->accept();
    });
    user.click("Form3", "browse");
    const FileListBox& files = screen<Form3>().File2;
    EXPECT_EQ(files.list(files.list_index()), u"tea.exp");
    EXPECT_EQ(last_folder(), to_qt(app.path(u"Images")));
}

TEST(FontFamily, LosesTheNameOfItsFoundryAlone) {
    EXPECT_EQ(plain_family(QStringLiteral("Tea Sans [pot]")).toStdString(), "Tea Sans");
    EXPECT_EQ(plain_family(QStringLiteral("Tea [pot] Sans")).toStdString(), "Tea [pot] Sans");
}

} // namespace
} // namespace twk
