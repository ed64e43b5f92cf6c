// SPDX-License-Identifier: MIT
#include "engine/form17.h"
#include "shell/module1.h"
#include "support/temp_app.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

class RandomNames : public testing::Test {
  protected:
    RandomNames() : form(screen<Form17>()) {
        form.project_name = u"shed";
        for (int i = 0; i < 4; ++i) {
            form.List1.add_item(names[i]);
            form.List2.add_item(u"http://h" + Text(1, static_cast<char16_t>(u'0' + i)));
        }
    }
    std::string list() const {
        std::string all;
        for (const Text& each : form.List1.entries()) all += (all.empty() ? "" : " ") + to_utf8(each);
        return all;
    }
    void load(std::string_view file) {
        app.write(u"names.fnm", file);
        app.desktop.open_files.push_back(app.path(u"names"));
        click("Command3");
    }
    static void click(const char* button) { ASSERT_TRUE(screens().fire<Form17>(button, "Click")); }
    void update(const Text& typed) {
        form.Text1.text = typed;
        click("Command2");
    }

    const Text names[4] = {u"a.htm", u"b_js.htm", u"c.htm", u"d.htm"};
    const Text more = u"has more files than the number you're trying to generate.\nSome files in (";
    const Text less =
        u"has less files than the number you're trying to generate.\nNew files will be created.";
    test::TempApp app;
    Form17& form;
};

TEST_F(RandomNames, one_is_changed_when_it_stays_a_page_of_its_own) {
    update(u"x.htm"); // nothing selected
    form.List1.list_index = 1;
    click("List1");
    EXPECT_EQ(form.Label3.caption(), u"http://h1");
    EXPECT_EQ(form.Text1.text(), u"b_js.htm");
    for (const TextView refused : {TextView(u"  "), TextView(u"x.HTM"), TextView(u"x")})
        update(Text(refused));
    EXPECT_EQ(list(), "a.htm b_js.htm c.htm d.htm");
    app.desktop.expect(u"Name file already exists!");
    update(u" b_js.htm ");
    app.desktop.expect(u"File Name Changed.");
    update(u" new name.htm");
    EXPECT_EQ(list(), "a.htm  new name.htm c.htm d.htm");
}

TEST_F(RandomNames, are_replaced_in_all_entries) {
    click("Command6");
    EXPECT_TRUE(form.Frame1.visible());
    form.Text2.text = u" htm ";
    form.Text3.text = u"x";
    click("Command8");
    EXPECT_FALSE(form.Frame1.visible());
    EXPECT_EQ(list(), "a.x b_js.x c.x d.x");
    form.Text2.text = u" ";
    click("Command8");
    EXPECT_EQ(list(), "a.x b_js.x c.x d.x");
}

TEST_F(RandomNames, too_many_in_a_file_are_skipped) {
    app.desktop.expect(more);
    load("#c\r\n1.htm\r\n   # Host: h\r\n\r\n 2.htm \r\n3.htm\r\n4.htm\r\n5.htm\r\n6.htm\r\n");
    EXPECT_EQ(list(), "1.htm 2.htm 3.htm 4.htm");
    EXPECT_EQ(form.List2.list_count(), 4);
    app.desktop.expect(more); // the comments behind the last name are unread by then
    load("1.htm\r\n2.htm\r\n3.htm\r\n4.htm\r\n#\r\n");
    load("1.htm\r\n2.htm\r\n3.htm\r\n4.htm\r\n");
    EXPECT_EQ(list(), "1.htm 2.htm 3.htm 4.htm");
}

TEST_F(RandomNames, too_few_in_a_file_are_filled_up_from_the_old_ones_but_the_last) {
    load("1.htm\r\n2.htm\r\n3.htm\r\n"); // one short: no message, and it stays short
    EXPECT_EQ(list(), "1.htm 2.htm 3.htm");
    form.List1.clear();
    for (const Text& name : names) form.List1.add_item(name);
    app.desktop.expect(less);
    load("a.htm\r\n");
    EXPECT_EQ(list(), "a.htm b_js.htm c.htm");
    form.List1.clear();
    for (const Text& name : names) form.List1.add_item(name);
    app.desktop.expect(less);
    load("1.htm\r\n2.htm\r\n");
    EXPECT_EQ(list(), "1.htm 2.htm a.htm b_js.htm");
}

TEST_F(RandomNames, come_back_when_the_dialog_is_cancelled) {
    app.desktop.open_files.push_back(std::nullopt);
    app.desktop.expect(u"An error has occured. File was not loaded.");
    click("Command3");
    EXPECT_EQ(list(), "a.htm b_js.htm c.htm d.htm");
    EXPECT_EQ(form.List2.list(3), u"http://h3");
}

TEST_F(RandomNames, are_saved_with_their_hosts_as_comments) {
    const std::string expected =
        "#\r\n# Random-Generated Pages List\r\n# Generated 24/11/2026 10:18:05 a.m.\r\n"
        "# Project: shed\r\n#\r\n"
        "a.htm\r\n     # Host: http://h0\r\nb_js.htm\r\n     # Host: http://h1\r\n"
        "c.htm\r\n     # Host: http://h2\r\nd.htm\r\n     # Host: http://h3\r\n"
        "#\r\n# You can use this file to re-generate projects with the same filename, "
        "even when you change the keywords.\r\n#\r\n";
    app.desktop.save_files.push_back(app.path(u"mine"));
    app.desktop.expect(u"Do you want to save this filename set?", Answer::yes);
    click("Command1");
    EXPECT_EQ(app.read(u"mine.fnm"), expected);
    EXPECT_EQ(app.read(u"last-generated.txt"), expected);
    EXPECT_FALSE(app.exists(u"mine.fnmaux"));
    EXPECT_EQ(app.desktop.file_questions.back().file_name, u"shed.fnm");
    click("Command1"); // saved once: not asked again
    app.desktop.save_files.push_back(std::nullopt);
    click("Command4"); // a cancel ends quietly
}

TEST_F(RandomNames, keep_the_mark_of_a_cancel_after_any_unload) {
    screens().show<Form17>();
    EXPECT_EQ(module1().nombre_fnm, u"");
    module1().paso6_cancelado = u"0";
    click("Command9");
    EXPECT_EQ(module1().paso6_cancelado, u"1");
    EXPECT_FALSE(screens().record<Form17>().visible);
    module1().paso6_cancelado = u"0";
    screens().unload<Form17>();
    EXPECT_EQ(module1().paso6_cancelado, u"1");
}

} // namespace
} // namespace twk
