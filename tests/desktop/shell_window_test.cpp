// SPDX-License-Identifier: MIT
#include "desktop/qt_text.h"
#include "desktop/rail.h"
#include "desktop/user_settings.h"
#include "support/every_screen.h"
#include "support/sample_project.h"
#include "user.h"

#include <QAction>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>

namespace twk {
namespace {

using test::User;

struct Shell : test::WindowTest {
    std::string front() {
        const ScreenWindow* const window = qt.window().front();
        return window == nullptr ? "" : window->objectName().toStdString();
    }
    template <class W> W* part(const char* name) {
        W* const found = qt.window().findChild<W*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    void click_rail(const char* entry) {
        QTest::mouseClick(part<RailEntry>(entry), Qt::LeftButton);
        User::settle();
    }
    QTabBar& tabs() { return *part<QTabBar>("screen_tabs"); }
};

TEST_F(Shell, StartListsTheProjectsAndOpensOneByEnter) {
    EXPECT_TRUE(screens().open().size() == 1 && front().empty()) << "nothing but the main window is loaded";
    { test::SampleProject project(app); }
    screens().dispatch([] {
        for (Screen* each : screens().open())
            if (each->name != "mdi1") screens().unload(*each);
    });
    User::settle();
    auto* const list = part<QTreeWidget>("start_projects");
    ASSERT_EQ(list->topLevelItemCount(), 1);
    EXPECT_EQ(list->topLevelItem(0)->text(0).toStdString(), "shed");
    EXPECT_EQ(list->topLevelItem(0)->text(1).toStdString(), "3");
    QTest::keyClick(list, Qt::Key_Return);
    User::settle(200);
    EXPECT_EQ(front(), "Form2");
    EXPECT_EQ(user.find<QLineEdit>("Form2", "txt_name_0")->text().toStdString(), "shed");
    EXPECT_EQ(part<QLabel>("rail_project")->text().toStdString(), "shed");
    EXPECT_TRUE(part<RailEntry>("rail_step_2")->accessibleName().contains(QStringLiteral("3 keywords")));
    EXPECT_EQ(qt.window().statusBar()->currentMessage().toStdString(), "Project shed opened");
    EXPECT_EQ(part<QLabel>("status_project")->text().toStdString(), "shed");
    EXPECT_EQ(last_project().toStdString(), "shed") << "selected at the next start";
}

TEST_F(Shell, LoadedStepsAreReachedByTheRailAndByKeys) {
    test::SampleProject project(app);
    test::show_each<Form2, Form3>();
    user.press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(front(), "Form2");
    click_rail("rail_step_2");
    EXPECT_EQ(front(), "Form3");
    EXPECT_TRUE(part<RailEntry>("rail_step_2")->accessibleName().contains(QStringLiteral("here")));
    EXPECT_EQ(tabs().count(), 1) << "the steps share one";
    user.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(front(), "Form10");
    ASSERT_EQ(tabs().count(), 2);
    QTest::mouseClick(&tabs(), Qt::LeftButton, Qt::NoModifier, tabs().tabRect(0).center());
    User::settle();
    EXPECT_EQ(front(), "Form3");
    click_rail("rail_Form10");
    EXPECT_EQ(front(), "Form10");
}

TEST_F(Shell, EscClosesSideScreensAndCtrlF4WhateverIsInFront) {
    test::show_each<Form2, Form10, frmTip>();
    user.press(Qt::Key_Escape);
    EXPECT_FALSE(screens().is_loaded<frmTip>());
    EXPECT_EQ(front(), "Form10") << "the one used before";
    user.press(Qt::Key_Escape);
    EXPECT_EQ(front(), "Form2");
    user.press(Qt::Key_Escape);
    EXPECT_EQ(front(), "Form2") << "a step stays";
    user.press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(screens().is_loaded<Form2>());
    EXPECT_EQ(front(), "");
    EXPECT_TRUE(part<QTreeWidget>("start_projects")->isVisible());
}

TEST_F(Shell, NoScreenNeedsAScrollBarInASmallWindow) {
    qt.window().resize(1024, 640);
    test::show_every_screen();
    screens().dispatch([] {
        for (Frame* each : {&screen<Form3>().Frame1, &screen<Form3>().Frame2, &screen<Form3>().Frame3,
                            &screen<Form17>().Frame1, &screen<Form17>().Frame2, &screen<Form20>().Frame4})
            each->visible = true;
    });
    for (ScreenWindow* window : qt.window().windows()) {
        window->open();
        const auto* const area = static_cast<QScrollArea*>(window->layout()->itemAt(0)->widget());
        QSize lacking;
        const bool fits = QTest::qWaitFor(
            [&] {
                lacking = area->widget()->size() - area->viewport()->size();
                return lacking.width() <= 0 && lacking.height() <= 0;
            },
            300);
        EXPECT_TRUE(fits) << window->objectName().toStdString() << " lacks " << lacking.width() << " by "
                          << lacking.height();
    }
}

TEST_F(Shell, ThePanelOpenedLastIsInFrontAndTheFocusBringsAnotherForward) {
    test::show_each<Form2, Form3>();
    screens().dispatch([] {
        screen<Form3>().Frame1.visible = true;
        screen<Form3>().Frame3.visible = true; // opened last
    });
    User::settle();
    const auto in_front = [this](const char* name) {
        QWidget* const panel = user.find<QWidget>("Form3", name);
        QWidget* const at = panel->parentWidget()->childAt(panel->geometry().center());
        return at != nullptr && (at == panel || panel->isAncestorOf(at));
    };
    EXPECT_TRUE(in_front("Frame3"));
    user.find<QWidget>("Form3", "Command13")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(in_front("Frame1"));
    user.click("Form3", "Command13");
    EXPECT_TRUE(in_front("Frame3")) << "closed by its own button";
}

TEST_F(Shell, RemembersItsPlaceAndSaysNothingInSeparators) {
    EXPECT_TRUE(part<QAction>("kjg")->isSeparator());
    EXPECT_EQ(part<QAction>("kjg")->text().toStdString(), "");
    qt.window().resize(700, 600);
    auto* const splitter = part<QSplitter>("rail_splitter");
    splitter->setSizes({210, 490});
    qt.window().remember();
    const int rail = splitter->sizes().constFirst();
    MainWindow next;
    next.show();
    User::settle();
    EXPECT_EQ(next.size(), QSize(700, 600));
    EXPECT_EQ(next.findChild<QSplitter*>(QStringLiteral("rail_splitter"))->sizes().constFirst(), rail);
}

} // namespace
} // namespace twk
