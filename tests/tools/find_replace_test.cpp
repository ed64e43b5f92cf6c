// SPDX-License-Identifier: MIT
#include "platform/files.h"
#include "support/temp_app.h"
#include "tools/form23.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

class FindReplace : public testing::Test {
  protected:
    FindReplace() {
        MkDir(app.path(u"site"));
        app.write(u"site/a.htm", "one cat\r\ntwo\ncat cat Cat\n");
        app.write(u"site/b.htm", "nothing\n");
        app.write(u"site/c.html", "cat\n");
        form().Dir2.set_path(app.path(u"site"));
        screens().fire<Form23>("Dir2", "Change");
        form().Text3.text = u"cat";
        form().Text4.text = u"dog";
    }

    Form23& form() { return screen<Form23>(); }
    bool click(const std::string& control, int index = -1) {
        return screens().fire<Form23>(control, "Click", index);
    }
    void only_find() {
        form().Check3.value = true;
        click("Check3");
    }
    /// The search ends with a message.
    void fails() {
        app.desktop.expect(
            u"An error has occurred (maybe a protected file).\r\nThe proccess did not finished "
            u"successfully.");
        click("cmdFindAll");
    }

    test::TempApp app;
};

TEST_F(FindReplace, finds_without_touching_a_file) {
    only_find();
    EXPECT_FALSE(form().Text4.enabled());
    click("cmdFindAll");
    EXPECT_EQ(app.read(u"site/a.htm"), "one cat\r\ntwo\ncat cat Cat\n");
    EXPECT_FALSE(app.exists(u"site/a.htm_temp"));
    const Text folder = app.path(u"site/");
    EXPECT_EQ(to_utf8(form().Text5.text()),
              to_utf8(u"Process Finished at 24/11/2026 10:18:05 a.m.\r\n1 Files processed\r\n\r\n" + folder +
                      u"b.htm - Founded in 0 lines\r\n" + folder +
                      u"a.htm - Founded in 2 lines\r\nFind started at 24/11/2026 10:18:05 a.m."));
    EXPECT_EQ(form().ProgressBar1.value(), 100);
    EXPECT_TRUE(form().Frame1[Form23::results].visible());
}

TEST_F(FindReplace, keeps_only_the_lines_in_which_it_replaced) {
    app.write(u"site/b.htm", "caf\xC3\xA9 cat\n");
    click("cmdFindAll");
    EXPECT_EQ(app.read(u"site/a.htm"), "one dog\r\ndog dog Cat\r\n");
    EXPECT_EQ(app.read(u"site/b.htm"), "\xEF\xBB\xBF"
                                       "caf\xC3\xA9 dog\r\n");
    EXPECT_EQ(app.read(u"site/c.html"), "cat\n"); // the criteria name no other file
    form().Text3.text = u"";
    click("cmdFindAll"); // finds nothing, so nothing is kept
    EXPECT_EQ(app.read(u"site/a.htm") + app.read(u"site/b.htm"), "");
    EXPECT_FALSE(app.exists(u"site/a.htm_temp"));
    EXPECT_TRUE(contains(form().Text5.text(), u"a.htm - Replaced in 0 lines\r\n"));
}

TEST_F(FindReplace, ends_at_the_first_error) {
    form().Text2.text = u"c.html"; // a single file is treated, then the progress fails
    fails();
    EXPECT_EQ(app.read(u"site/c.html"), "dog\r\n");
    form().Text2.text = u"*.xyz";
    fails();
    form().Text2.text = u"*.htm";
    form().Check1.value = true; // subfolders: one empty path is all that is listed
    fails();
    form().Check1.value = false;
    form().Text1.text = app.path(u"nowhere");
    fails();
    EXPECT_EQ(app.read(u"site/a.htm"), "one cat\r\ntwo\ncat cat Cat\n");
}

TEST_F(FindReplace, takes_names_of_the_typed_folder_in_the_chosen_one) {
    MkDir(app.path(u"typed"));
    app.write(u"typed/new.htm", "cat\n");
    app.write(u"typed/old.htm", "cat\n");
    form().Text1.text = app.path(u"typed");
    only_find();
    click("cmdFindAll");
    EXPECT_TRUE(app.exists(u"site/new.htm")); // made by opening it
    EXPECT_TRUE(contains(form().Text5.text(), app.path(u"site/old.htm") + u" - Founded in 0 lines"));
}

TEST_F(FindReplace, stops_when_it_is_closed) {
    app.desktop.on_events = [this] { click("Command3"); };
    click("cmdFindAll");
    EXPECT_EQ(app.read(u"site/a.htm"), "one dog\r\ndog dog Cat\r\n");
    EXPECT_EQ(app.read(u"site/b.htm"), "nothing\n");
    EXPECT_FALSE(screens().is_loaded<Form23>());
}

TEST_F(FindReplace, lays_out_placeholders_and_changes_nothing) {
    app.run(u"insert into Projects ( name ) values ( 'garden' ) ");
    app.run(u"insert into Projects ( name ) values ( 'empty' ) ");
    app.run(u"insert into keywords ( pid , keyword ) values ( 1 , 'roses' ) ");
    screens().unload<Form23>();
    EXPECT_EQ(form().combo1.list_count(), 1);
    click("Option1", 1);
    app.desktop.expect(u"You must pick a project!");
    click("cmdTWK");
    form().combo1.select(0);
    app.desktop.expect(u"You must select at least 1 element to replace");
    click("cmdTWK");
    form().List1.list_index = 1;
    click("cmdTWK");
    EXPECT_TRUE(form().Frame1[Form23::grid].visible());
    ASSERT_EQ(form().gridReplace.rows.size(), 99U);
    EXPECT_EQ(form().gridReplace.rows[98][1], u"99a");
    form().Text1.text = app.path(u"site");
    click("Command1");
    EXPECT_EQ(form().archivos.size(), 2U);
    EXPECT_EQ(app.read(u"site/a.htm"), "one cat\r\ntwo\ncat cat Cat\n");
}

} // namespace
} // namespace twk
