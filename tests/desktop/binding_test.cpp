// SPDX-License-Identifier: MIT
#include "desktop/forms.h"
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
#include <QSplitter>
#include <QTest>

namespace twk {
namespace {

using Binding = test::WindowTest;
using test::User;

/// Captions stand in the core alone: the form is drawn without them, and its window shows the core's.
void expect_captions_of_the_core(const Screen& screen, const ScreenWindow& window) {
    const std::unique_ptr<const QWidget> drawn(make_form(screen.name));
    EXPECT_EQ(drawn->windowTitle(), QString());
    EXPECT_EQ(window.windowTitle(), to_qt(screen.caption()));
    const auto caption_in = [](const QWidget& form, const std::string& name) {
        const auto* const widget = form.findChild<const QWidget*>(QString::fromStdString(name));
        const QVariant title = widget->property("title");
        return (title.isValid() ? title : widget->property("text")).toString().simplified();
    };
    for (const ScreenMap::Control& each : screen.map.all_controls())
        std::visit(
            [&](const auto* control) {
                if constexpr (requires { control->caption(); }) {
                    const std::string name = each.object_name();
                    EXPECT_EQ(caption_in(*drawn, name), QString()) << name;
                    EXPECT_EQ(caption_in(window, name), to_qt(control->caption()).simplified()) << name;
                }
            },
            each.ref);
}

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
        expect_captions_of_the_core(screen, *window);
        QSet<const QWidget*> labelled;
        for (const QLabel* label : window->findChildren<QLabel*>()) labelled << label->buddy();
        QSet<QString> splitters;
        for (const QSplitter* each : window->findChildren<QSplitter*>()) splitters << each->objectName();
        EXPECT_EQ(splitters.size(), window->findChildren<QSplitter*>().size())
            << "each is remembered by name";
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
