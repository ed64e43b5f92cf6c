// SPDX-License-Identifier: MIT
#include "assist/disclaimer.h"
#include "assist/frm_version.h"
#include "inputs/form10.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/mdi1.h"
#include "shell/module1.h"
#include "support/temp_app.h"
#include "tools/form23.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::TempApp;

void choose(const char* entry) {
    ASSERT_TRUE(screens().fire<mdi1>(entry, "Click")) << entry;
}

TEST(MainMenu, OpensScreensAndAddresses) {
    TempApp app;
    for (const char* entry : {"a2", "a3", "c1", "c2", "a4"}) choose(entry);
    EXPECT_TRUE(screens().is_loaded<Form23>() && screens().is_loaded<frmVersion>() &&
                screens().is_loaded<disclaimer>());
    choose("a2");
    EXPECT_EQ(screens().open().back()->name, "Form1") << "brought forward";
    choose("b2");
    ASSERT_EQ(app.desktop.navigated.size(), 1u);
    EXPECT_TRUE(app.desktop.navigated[0].ends_with(u"help.htm#"));
    choose("c3");
    EXPECT_EQ(app.desktop.started, std::vector<Text>{u"http://www.tarnwick.example"});
    EXPECT_FALSE(app.desktop.has_quit);
    choose("D");
    EXPECT_TRUE(app.desktop.has_quit);
}

TEST(CleanUp, ClosesNumberedScreensAndLeavesTheOthers) {
    TempApp app;
    screen<Form1>();
    screen<Form2>();
    screen<Form10>();
    screen<frmVersion>();
    close_project_screens();
    EXPECT_TRUE(screens().is_loaded<Form1>());
    EXPECT_FALSE(screens().is_loaded<Form2>());
    EXPECT_FALSE(screens().is_loaded<Form10>());
    EXPECT_TRUE(screens().is_loaded<frmVersion>());
    EXPECT_EQ(module1().formas_abiertas[1], -1);
    EXPECT_EQ(module1().formas_abiertas[2], 0);
    EXPECT_EQ(module1().formas_abiertas[10], 0);
    screen<Form10>();
    marcar_forma(10, false); // the flag decides, not the screen
    close_project_screens();
    EXPECT_TRUE(screens().is_loaded<Form10>());
}

} // namespace
} // namespace twk
