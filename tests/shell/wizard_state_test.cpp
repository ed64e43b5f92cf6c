// SPDX-License-Identifier: MIT
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "settings/form6.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/project_list.h"
#include "shell/side_tools.h"
#include "shell/wizard_state.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::TempApp;

const WizardStep& step(const WizardState& state, int number) {
    return state.steps.at(static_cast<std::size_t>(number - 1));
}

/// A stored project with so many keywords and boxes.
void store_project(TempApp& app, int keywords, int boxes) {
    app.run(u"insert into Projects ( name , site_name , site_url , title , category , description , "
            u"designer_name , designer_url )  values ( 'shed' , 'OakShed' , 'http://o.example' , 's' , 'c' , "
            u"'d' , '' , '' )");
    for (int i = 0; i < keywords; ++i)
        app.run(u"insert into keywords (pid, keyword) values ( 1 , 'oak shed " +
                Text(1, static_cast<char16_t>(u'a' + i)) + u"')");
    for (int i = 0; i < boxes; ++i)
        app.run(u"insert into content ( pid , content ) values ( 1 , 'some text' ) ");
}

/// Presses a Next that must refuse in the words that the rail has for it, as the one step where it hurts.
template <class S> void expect_refusal(TempApp& app, int number, const char* next) {
    const WizardState state = look_at_wizard();
    ASSERT_EQ(step(state, number).state, StepState::missing) << number;
    app.desktop.expect(step(state, number).reason);
    screens().fire<S>(next, "Click");
    EXPECT_EQ(app.desktop.last_message(), step(state, number).reason);
}

TEST(WizardState, SaysOfEachStepWhatItsNextWouldRefuse) {
    TempApp app;
    EXPECT_EQ(step(look_at_wizard(), 1).state, StepState::not_yet);
    EXPECT_TRUE(screens().open().empty()) << "the look loads nothing";
    store_project(app, 2, 1);
    open_listed_project(u"shed");
    WizardState state = look_at_wizard();
    EXPECT_EQ(state.project, u"shed");
    EXPECT_EQ(step(state, 1).state, StepState::done);
    EXPECT_EQ(step(state, 2).detail, u"2 of 3 keywords") << "from the store";
    EXPECT_EQ(step(state, 2).state, StepState::missing);
    EXPECT_EQ(step(state, 3).state, StepState::not_yet) << "waits for Step 2";

    screen<Form2>().txt_dat[1].text = u"";
    EXPECT_EQ(step(look_at_wizard(), 1).detail, u"5 of 6 fields");
    expect_refusal<Form2>(app, 1, "Command2");
    screen<Form2>().txt_dat[1].text = u"c";
    screen<Form2>().txt_url[0].text = u"http://o.example/";
    expect_refusal<Form2>(app, 1, "Command2");
    screen<Form2>().txt_url[0].text = u"http://o.example";
    screens().fire<Form2>("Command2", "Click");
    expect_refusal<Form3>(app, 2, "Command5");
    screen<Form3>().Text1.text = u"third one";
    screens().fire<Form3>("Command2", "Click");
    EXPECT_EQ(step(look_at_wizard(), 2).detail, u"3 keywords") << "from the screen";
    EXPECT_EQ(step(look_at_wizard(), 3).detail, u"1 of 2 boxes");
    screens().fire<Form3>("Command5", "Click");
    expect_refusal<Form5>(app, 3, "Command1");
    app.run(u"insert into content ( pid , content ) values ( 1 , 'more text' ) ");
    screens().fire<Form3>("Command5", "Click");
    screens().fire<Form5>("Command1", "Click");
    expect_refusal<Form7>(app, 4, "Command1");
    screen<Form7>().Text2.text = u"http://pages.example/s";
    state = look_at_wizard();
    EXPECT_EQ(step(state, 4).detail, u"1 directory");
    EXPECT_EQ(step(state, 5).detail, u"ready");
    screens().fire<Form7>("Command1", "Click");
    EXPECT_TRUE(screens().is_loaded<Form6>());
}

TEST(WizardState, GoesToWhatIsMissingAndNeverPastANext) {
    TempApp app;
    store_project(app, 2, 0);
    go_to_step(3);
    EXPECT_TRUE(screens().is_loaded<Form1>()) << "no project yet";
    open_listed_project(u"shed");
    go_to_step(4);
    EXPECT_EQ(screens().open().back()->name, "Form2");
    EXPECT_EQ(app.desktop.said.back(), u"Step 4 is reached by Next.");
    EXPECT_FALSE(screens().is_loaded<Form3>());
    bool focused = false;
    screen<Form2>().txt_dat[2].text = u"";
    screen<Form2>().txt_dat[2].observer.watch([&](Prop which) { focused = which == Prop::focus; });
    go_to_step(1);
    EXPECT_TRUE(focused);
    EXPECT_EQ(app.desktop.said.back(), step(look_at_wizard(), 1).reason);
    screen<Form2>().txt_dat[2].observer.watch({});
}

TEST(WizardState, TellsThePagesOfTheLastRun) {
    TempApp app;
    test::SampleProject project(app);
    EXPECT_EQ(look_at_wizard().pages, -1);
    ASSERT_TRUE(project.generate());
    const WizardState state = look_at_wizard();
    EXPECT_EQ(state.pages, project.run().page.pages_written);
    EXPECT_GT(state.pages, 0);
    EXPECT_EQ(step(state, 5).state, StepState::done);
}

TEST(ProjectList, CountsRowsAndFindsTheLastRun) {
    TempApp app;
    store_project(app, 2, 1);
    std::vector<ProjectLine> lines = project_lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].name, u"shed");
    EXPECT_EQ(lines[0].keywords, 2);
    EXPECT_EQ(lines[0].boxes, 1);
    EXPECT_EQ(lines[0].last_run, u"");
    std::filesystem::create_directories(app.folder() / "Projects" / "shed");
    app.write(u"Projects/shed/SITEMAP-DO-NOT-UPLOAD.HTM", "x");
    EXPECT_EQ(Len(project_lines()[0].last_run), 16);
}

TEST(SideTools, OpenByTheButtonThatAPersonWouldPress) {
    TempApp app;
    const auto tool = [](TextView name) -> const SideTool& {
        for (const SideTool& each : side_tools())
            if (each.name == name) return each;
        throw std::out_of_range("tool");
    };
    EXPECT_FALSE(can_open(tool(u"Spider")));
    EXPECT_FALSE(can_open(tool(u"Report")));
    open_tool(tool(u"Spider"));
    EXPECT_TRUE(screens().open().empty());
    store_project(app, 3, 2);
    open_listed_project(u"shed");
    screens().fire<Form2>("Command2", "Click");
    ASSERT_TRUE(can_open(tool(u"Spider")));
    open_tool(tool(u"Spider"));
    EXPECT_NE(screens().find(std::string("Form20")), nullptr);
    screens().bring_forward<Form3>();
    open_tool(tool(u"Spider"));
    EXPECT_EQ(screens().open().back()->name, "Form20") << "brought forward";
    screen<Form3>().Command6.enabled = false;
    screens().unload(*screens().find(std::string("Form20")));
    EXPECT_FALSE(can_open(tool(u"Spider")));
}

} // namespace
} // namespace twk
