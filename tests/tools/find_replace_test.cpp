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

/// What a scenario cannot see of the files: owners, modes, links.
struct FindReplace : testing::Test {
    FindReplace() {
        MkDir(app.path(u"site"));
        form.Dir2.set_path(app.path(u"site"));
        form.Text1.text = app.path(u"site");
        form.Text3.text = u"cat";
    }
    void find_all() { screens().fire<Form23>("cmdFindAll", "Click"); }

    test::TempApp app;
    Form23& form = screen<Form23>();
};

TEST_F(FindReplace, leaves_a_file_what_it_was) {
    const std::string mark = "\xEF\xBB\xBF", changed = "d\xC3\xB6g\r\n";
    const std::tuple<const char16_t*, std::string, std::string> cases[] = {
        {u"site/marked.php", mark + "<?php cat\n", mark + "<?php " + changed},
        {u"site/utf8.htm", "\xC3\xA9 cat\n", "\xC3\xA9 " + changed},
        {u"site/windows.htm", "\xE9 cat \x80\n", "\xE9 d\xF6g \x80\r\n"},
        {u"site/ascii.htm", "cat\n", mark + changed}, // a page that was plain so far
        {u"site/sub/real.htm", "cat\n", mark + changed},
    };
    for (const auto& [name, before, after] : cases) {
        app.write(name, before);
        fs::permissions(to_utf8(app.path(name)), fs::perms(0640));
    }
    const std::string owned = to_utf8(app.path(u"site/utf8.htm"));
    const uid_t owner = ::chown(owned.c_str(), 1234, 1234) == 0 ? 1234 : ::geteuid(); // root alone may
    fs::create_symlink("sub/real.htm", to_utf8(app.path(u"site/link.htm")));
    fs::create_symlink("windows.htm", to_utf8(app.path(u"site/second.htm"))); // is not treated twice
    form.Text2.text = u"*.htm; *.php";
    form.Text4.text = u"d\u00f6g";
    find_all();
    for (const auto& [name, before, after] : cases) {
        EXPECT_EQ(app.read(name), after) << to_utf8(name);
        EXPECT_EQ(fs::status(to_utf8(app.path(name))).permissions(), fs::perms(0640)) << to_utf8(name);
    }
    struct stat info {};
    ::stat(owned.c_str(), &info);
    EXPECT_EQ(info.st_uid, owner);
    EXPECT_TRUE(fs::is_symlink(to_utf8(app.path(u"site/link.htm"))));
    form.Text2.text = u"windows.htm;ascii.htm";
    form.Text3.text = u"d\u00f6g";
    form.Text4.text = u"\u0142"; // has no place in Windows-1252
    find_all();
    EXPECT_EQ(app.read(u"site/windows.htm"), mark + "\xC3\xA9 \xC5\x82 \xE2\x82\xAC\r\n");
}

TEST_F(FindReplace, ends_at_a_file_that_is_protected_or_lies_elsewhere) {
    const fs::path first = to_utf8(app.path(u"site/a.htm"));
    for (const auto* name : {u"outside.htm", u"site/a.htm", u"site/b.htm"}) app.write(name, "cat\n");
    form.Text4.text = u"dog";
    app.desktop.always(u"An error has occurred (maybe a protected file).", Answer::ok);
    for (const bool link : {false, true}) {
        if (link) fs::remove(first), fs::create_symlink("../outside.htm", first);
        fs::permissions(first, fs::perms(link ? 0644 : 0444));
        find_all();
        EXPECT_EQ(app.desktop.messages.size(), link ? 2U : 1U);
        EXPECT_EQ(test::bytes_of(first) + app.read(u"site/b.htm"), "cat\ncat\n");
        EXPECT_EQ(list_files(app.path(u"site"), u"*").size(), 2U);
    }
    form.Check3.value = true; // a search reads whatever is listed
    find_all();
    EXPECT_TRUE(contains(form.Text5.text(), u"a.htm - Founded in 1 lines"));
}

} // namespace
} // namespace twk
