// SPDX-License-Identifier: MIT
#include "platform/faults.h"
#include "settings/form6.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/temp_app.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

std::string utf8(TextView text) {
    return to_utf8(text);
}

class StepFive : public testing::Test {
  protected:
    StepFive() { screen<Form2>().txt_name[0].text = u"garden"; }

    Form6& form() { return screen<Form6>(); }
    std::string caption() { return utf8(screens().record<Form6>().caption()); }
    bool click(const std::string& control, int index = -1) {
        return screens().fire<Form6>(control, "Click", index);
    }

    test::TempApp app;
};

TEST_F(StepFive, loads_the_default_strategy_without_a_word) {
    app.run(u"insert into Projects ( name ) values ( 'garden' ) ");
    app.run(u"insert into Projects ( name ) values ( 'other' ) ");
    app.run(u"insert into Projects ( name ) values ( 'GARDEN' ) ");
    module1().paso6_cancelado = u"1";
    EXPECT_EQ(form().pid_form, 3); // the last of two rows
    EXPECT_EQ(caption(), "Step 5 of 6 - Gateway Generation - Using twk.dat");
    EXPECT_EQ(form().settings.min_palabras, 300);
    EXPECT_TRUE(form().carga_inicial);
    EXPECT_EQ(utf8(module1().paso6_cancelado), "0");
    EXPECT_EQ(module1().formas_abiertas[6], -1);
    EXPECT_TRUE(form().Frame2.visible());
    EXPECT_FALSE(form().Frame8.visible());
    EXPECT_TRUE(app.desktop.messages.empty());
    screens().unload<Form6>();
    EXPECT_EQ(module1().formas_abiertas[6], 0);
}

TEST_F(StepFive, prefers_the_file_of_the_project_under_the_same_caption) {
    app.write(u"garden.dat", "1.a = 7\n5.n = .asp\n9.d = 0\n9.e = 1\n9.f = 123\n");
    EXPECT_EQ(form().settings.min_palabras, 7);
    EXPECT_EQ(caption(), "Step 5 of 6 - Gateway Generation - Using twk.dat");
    EXPECT_EQ(utf8(form().Combo10.text()), ".htm"); // whatever the file says
    EXPECT_EQ(form().Combo10.list_count(), 2);
    EXPECT_FALSE(form().Command2_110.enabled());
    EXPECT_EQ(utf8(form().Text1.text()), "123");
    EXPECT_TRUE(click("Option1"));
    EXPECT_TRUE(form().Command2_110.enabled());
    EXPECT_TRUE(click("Option2"));
    EXPECT_FALSE(form().Command2_110.enabled());
}

TEST_F(StepFive, shows_one_level_at_a_time) {
    const Frame* const frames[] = {&form().Frame2, &form().Frame1, &form().Frame3, &form().Frame4,
                                   &form().Frame7};
    const auto slide = [&](int to) {
        form().Slider1.value = to;
        screens().fire<Form6>("Slider1", "Change");
        std::string shown;
        for (const Frame* frame : frames) shown += frame->visible() ? '1' : '0';
        return shown + " " + utf8(Left(form().lbl_level.caption(), 1));
    };
    EXPECT_EQ(slide(4), "00010 4");
    EXPECT_EQ(slide(9), "00010 4"); // no such level
    EXPECT_EQ(slide(5), "00001 5");
    EXPECT_EQ(slide(1), "10000 1");
}

TEST_F(StepFive, saves_by_dialog_until_a_file_has_been_loaded) {
    form();
    app.desktop.save_files = {std::nullopt, app.path(u"mine"), app.path(u"late.dat"), std::nullopt};
    EXPECT_TRUE(click("Command4"));                      // cancelled: nothing is saved
    EXPECT_FALSE(std::filesystem::exists("garden.dat")); // where the bare name would lead
    EXPECT_TRUE(click("Command4"));
    EXPECT_TRUE(app.exists(u"mine.dat"));
    EXPECT_EQ(utf8(app.desktop.file_questions.back().file_name), "garden");
    EXPECT_EQ(utf8(app.desktop.file_questions.back().ending), ".dat");
    EXPECT_EQ(utf8(app.desktop.file_questions.back().title), "Save settings to .dat");

    app.desktop.open_files = {std::nullopt, app.path(u"mine.dat")};
    EXPECT_TRUE(click("Command3")); // cancelled without a word
    EXPECT_EQ(caption(), "Step 5 of 6 - Gateway Generation - Using twk.dat");
    app.desktop.expect(u".dat Loaded");
    EXPECT_TRUE(click("Command3"));
    EXPECT_EQ(caption(), "Step 5 of 6 - Gateway Generation - Using " + utf8(app.path(u"mine.dat")));

    EXPECT_TRUE(click("Command4")); // the dialog comes, and nothing is saved
    EXPECT_FALSE(app.exists(u"late.dat"));
    app.desktop.expect(u"Run-time error '32755'");
    EXPECT_FALSE(click("Command4"));
}

TEST_F(StepFive, takes_colours_as_decimal_numbers) {
    form();
    app.desktop.open_files = {std::nullopt};
    EXPECT_TRUE(click("Command3")); // a cancelled load makes no fault of the colour's Cancel
    app.desktop.colors = {0x00FF8000U, 255U, std::nullopt};
    EXPECT_TRUE(click("Command2", 0));
    EXPECT_EQ(utf8(form().Text4.text()), "16744448");
    EXPECT_TRUE(click("Command2", 110));
    EXPECT_EQ(utf8(form().Text1.text()), "255");
    EXPECT_TRUE(click("Command2", 110));
    EXPECT_EQ(utf8(form().Text1.text()), "255");
}

TEST_F(StepFive, wants_a_template_for_the_hallway_when_one_is_asked_for) {
    form().Frame8.visible = true;
    form().checkBulgaro.value = true;
    app.desktop.expect(u"If you want to use a sitemap as template you must pick one.");
    click("Command5");
    EXPECT_TRUE(form().Frame8.visible());
    form().Dir2.set_path(app.path(u"."));
    screens().fire<Form6>("Dir2", "Change");
    const auto& files = form().File2.entries();
    const auto help = std::find(files.begin(), files.end(), u"help.htm");
    ASSERT_NE(help, files.end());
    click("File2"); // nothing chosen yet
    EXPECT_EQ(utf8(form().Label52.caption()), "Sitemap to use:");
    form().File2.list_index = static_cast<int>(help - files.begin());
    click("File2");
    EXPECT_EQ(utf8(form().Label52.caption()), "SiteMap to use: help.htm");
    EXPECT_EQ(utf8(form().plantilla_sitemap), utf8(form().Dir2.path()) + "/help.htm");
    click("Command5");
    EXPECT_FALSE(form().Frame8.visible());
}

} // namespace
} // namespace twk
