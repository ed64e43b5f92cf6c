// SPDX-License-Identifier: MIT
#include "desktop/qt_text.h"
#include "engine/run.h"
#include "quit_run.h"
#include "shell/mdi1.h"
#include "support/every_screen.h"
#include "support/sample_project.h"
#include "user.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>

namespace twk {
namespace {

using test::User;
using Lifecycle = test::WindowTest;

/// Runs `act` once, inside the run's own yields, when the report shows that pages are being written.
void in_the_run(QTimer& timer, User& user, const std::function<void()>& act) {
    QObject::connect(&timer, &QTimer::timeout, [&timer, &user, act] {
        ScreenWindow* const report = user.window("Form12");
        const auto* const status =
            report != nullptr ? report->findChild<QLabel*>(QStringLiteral("Label2")) : nullptr;
        if (status == nullptr || !status->text().startsWith(QStringLiteral("Creating"))) return;
        timer.stop();
        act();
    });
    timer.start(0);
}

TEST_F(Lifecycle, WindowsMayBeClosedInAnyOrder) {
    for (const std::size_t step : {1u, 20u, 8u, 13u}) {
        test::show_every_screen();
        std::vector<std::string> names;
        std::vector<QPointer<ScreenWindow>> windows;
        for (ScreenWindow* each : qt.window().windows()) {
            names.push_back(each->screen()->name);
            windows.emplace_back(each);
        }
        for (std::size_t i = 0; i < names.size(); ++i) {
            ScreenWindow* const window = user.window(names[(i * step) % names.size()].c_str());
            if (window != nullptr) window->close();
            if (i % 3 == 0) User::settle(1);
        }
        User::settle();
        // Step 6 is only hidden: its closing means Cancel.
        for (ScreenWindow* each : qt.window().windows())
            EXPECT_FALSE(each->is_open()) << each->objectName().toStdString();
        screens().dispatch([] { screens().unload<Form17>(); });
        User::settle();
        for (const auto& each : windows)
            EXPECT_TRUE(each.isNull()) << each->objectName().toStdString() << " is left over";
    }
}

TEST_F(Lifecycle, ClosingStepSixCancelsTheRun) {
    test::SampleProject project(app);
    project.form.Check9.value = true;
    User::settle();
    user.expect(QStringLiteral("Are you sure you want to proceed?"), QMessageBox::Yes,
                QStringLiteral("Create Pages?"));
    user.on_dialog([] { QApplication::activeModalWidget()->close(); });
    user.click("Form6", "Command1");
    EXPECT_FALSE(project.run().finished);
    EXPECT_FALSE(screens().is_loaded<Form17>());
    EXPECT_FALSE(user.sees("Form12"));
}

TEST_F(Lifecycle, TheWindowsStayAliveInARunAndTakeNewProjectInTheMiddle) {
    test::SampleProject project(app);
    screens().dispatch([] { screens().show<Form1>(); });
    user.ignore_messages(); // the run may break down once its screens are gone, but nothing else
    user.expect(QStringLiteral("Are you sure you want to proceed?"), QMessageBox::Yes,
                QStringLiteral("Create Pages?"));
    QTimer timer;
    bool interrupted = false;
    in_the_run(timer, user, [&] {
        interrupted = true;
        EXPECT_TRUE(screens().event_running());
        user.click("Form1", "Command1");
    });
    user.click("Form6", "Command1");
    User::settle();
    EXPECT_TRUE(interrupted);
    EXPECT_FALSE(screens().event_running());
    EXPECT_TRUE(user.sees("Form2"));
    EXPECT_EQ(user.find<QLineEdit>("Form2", "txt_name_0")->text(), QString());
}

TEST_F(Lifecycle, QuitDuringARunEndsTheProcessAndLeavesTheStoreWhole) {
    { test::SampleProject project(app); }
    screens().dispatch([] { screens().unload_all(); });
    const int rows = app.count(u"select * from content");
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QApplication::applicationFilePath(),
                  {QString::fromLatin1(test::quit_argument), QString::fromStdString(app.folder().string())});
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(app.count(u"select * from content"), rows);
    screens().dispatch([] { screens().show<Form1>(); });
    EXPECT_EQ(user.find<QComboBox>("Form1", "combo1")->count(), 1);
}

} // namespace

namespace test {

int quit_in_the_middle(const char* folder) {
    set_app_path(from_qt(QString::fromLocal8Bit(folder)));
    QtDesktop qt;
    set_desktop(&qt);
    User user(qt);
    screens().dispatch([] { screens().record<mdi1>(); });
    qt.window().show();
    user.menu("a2");
    user.choose("Form1", "combo1", 0);
    user.click("Form1", "Command3");
    user.click("Form2", "Command2");
    user.click("Form3", "Command5");
    user.click("Form5", "Command1");
    user.type("Form7", "Text2", QStringLiteral("http://www.oakshed.example/pages"));
    user.click("Form7", "Command1");
    if (user.find<QCheckBox>("Form6", "Check9")->isChecked()) screen<Form6>().Check9.value = false;
    user.expect(QStringLiteral("Are you sure you want to proceed?"), QMessageBox::Yes,
                QStringLiteral("Create Pages?"));
    QTimer timer;
    in_the_run(timer, user, [&] { user.menu("D"); });
    user.click("Form6", "Command1");
    return EXIT_FAILURE;
}

} // namespace test
} // namespace twk
