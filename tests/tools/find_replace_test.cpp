// SPDX-License-Identifier: MIT
#include "platform/file_system.h"
#include "support/temp_app.h"
#include "tools/form23.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace twk {
namespace {

namespace fs = std::filesystem;
using test::bytes_of;

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
    EXPECT_EQ(app.read(u"site/b.htm"), "caf\xC3\xA9 dog\r\n");
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

TEST_F(FindReplace, leaves_a_file_what_it_was) {
    struct Case {
        const char16_t* name;
        std::string before, after;
    };
    const Case cases[] = {
        {u"site/marked.php", "\xEF\xBB\xBF<?php cat\n", "\xEF\xBB\xBF<?php d\xC3\xB6g\r\n"},
        {u"site/utf8.htm", "\xC3\xA9 cat\n", "\xC3\xA9 d\xC3\xB6g\r\n"},
        {u"site/windows.htm", "\xE9 cat \x80\n", "\xE9 d\xF6g \x80\r\n"},
        {u"site/ascii.htm", "cat\n",
         "\xEF\xBB\xBF"
         "d\xC3\xB6g\r\n"}, // a page that was plain so far
        {u"site/sub/real.htm", "cat\n",
         "\xEF\xBB\xBF"
         "d\xC3\xB6g\r\n"},
    };
    MkDir(app.path(u"site/sub"));
    for (const Case& each : cases) {
        app.write(each.name, each.before);
        fs::permissions(to_utf8(app.path(each.name)), fs::perms(0640));
    }
    const std::string owned = to_utf8(app.path(u"site/utf8.htm"));
    const uid_t owner = ::chown(owned.c_str(), 1234, 1234) == 0 ? 1234 : ::geteuid(); // root alone may
    fs::create_symlink("sub/real.htm", to_utf8(app.path(u"site/link.htm")));
    fs::create_symlink("windows.htm", to_utf8(app.path(u"site/second.htm"))); // is not treated twice
    form().Text2.text = u"*.htm; *.php";
    form().Text4.text = u"d\u00f6g";
    click("cmdFindAll");
    for (const Case& each : cases) {
        EXPECT_EQ(app.read(each.name), each.after) << to_utf8(each.name);
        const auto mode = fs::status(to_utf8(app.path(each.name))).permissions();
        EXPECT_EQ(static_cast<int>(mode), 0640) << to_utf8(each.name);
    }
    struct stat info {};
    ::stat(owned.c_str(), &info);
    EXPECT_EQ(info.st_uid, owner);
    EXPECT_TRUE(fs::is_symlink(to_utf8(app.path(u"site/link.htm"))));
    form().Text2.text = u"windows.htm;ascii.htm";
    form().Text3.text = u"d\u00f6g";
    form().Text4.text = u"\u0142"; // has no place in Windows-1252
    click("cmdFindAll");
    EXPECT_EQ(app.read(u"site/windows.htm"), "\xEF\xBB\xBF\xC3\xA9 \xC5\x82 \xE2\x82\xAC\r\n");
}

TEST_F(FindReplace, ends_at_a_file_that_is_protected_or_lies_elsewhere) {
    const fs::path first = to_utf8(app.path(u"site/a.htm"));
    app.write(u"outside.htm", "cat\n");
    app.write(u"site/b.htm", "cat\n");
    const auto refused = [&] {
        fails();
        EXPECT_EQ(bytes_of(first) + app.read(u"site/b.htm"), "cat\ncat\n");
        EXPECT_EQ(list_files(app.path(u"site"), u"*").size(), 3U);
    };
    app.write(u"site/a.htm", "cat\n");
    fs::permissions(first, fs::perms(0444));
    refused();
    fs::remove(first);
    fs::create_symlink("../outside.htm", first);
    refused();
    only_find(); // reads whatever is listed
    click("cmdFindAll");
    EXPECT_TRUE(contains(form().Text5.text(), u"a.htm - Founded in 1 lines"));
}

TEST_F(FindReplace, walks_the_files_it_was_started_with) {
    app.write(u"site/b.htm", "cat\n");
    app.desktop.on_events = [this] {
        form().Text2.text = u"none.*";
        form().Text3.text = u"d"; // half typed
        form().Check3.value = true;
        click("Command1");
    };
    app.desktop.always(u"Run-time error '9'", Answer::ok); // nothing is listed
    click("cmdFindAll");
    EXPECT_EQ(app.read(u"site/b.htm"), "dog\r\n");
}

TEST_F(FindReplace, stops_when_it_is_closed) {
    // Opened anew, it is another one.
    app.desktop.on_events = [this] {
        click("Command3");
        EXPECT_FALSE(screens().is_loaded<Form23>());
        form();
    };
    click("cmdFindAll");
    EXPECT_EQ(app.read(u"site/a.htm"), "one dog\r\ndog dog Cat\r\n");
    EXPECT_EQ(app.read(u"site/b.htm"), "nothing\n");
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
