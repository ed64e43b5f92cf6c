// SPDX-License-Identifier: MIT
// Names that become paths: of projects, hosts, keywords, pages and files.

#include "engine/form17.h"
#include "faults/hostile_app.h"
#include "inputs/form3.h"
#include "inputs/form7.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/module1.h"

namespace twk::test {

namespace {

namespace fs = std::filesystem;

class HostileNames : public HostileApp {
  protected:
    void take_pages_away() { fs::remove_all(app.folder() / "Projects" / "shed"); }
    /// A run with each of the texts, once `use` has put it in its place, ends in the fault.
    void expect_runs(const std::function<void(const Text&)>& use, int fault, const std::vector<Text>& texts) {
        for (const Text& text : texts) {
            use(text);
            EXPECT_EQ(run_project(), fault) << to_utf8(text);
        }
    }
    /// The event of deleting the project that the manager lists under the name.
    int fault_of_deleting(const Text& name) {
        screens().dispatch([] { screens().unload<Form1>(); });
        screens().dispatch([] { screens().show<Form1>(); });
        ComboBox& list = screen<Form1>().combo1;
        const auto& names = list.entries();
        list.select(static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin()));
        return fault_of_event<Form1>("Command4");
    }
    bool pages_stand() const {
        return app.exists(u"Projects/shed/pages.oakshed.example-sheds/garden_shed.htm");
    }
};

const Text long_name(300, u'n');

} // namespace

TEST_F(HostileNames, ProjectThatLeadsElsewhereIsRefusedBeforeAFileIsWritten) {
    ASSERT_EQ(run_project(), 0);
    for (const Text& name :
         {Text(u".."), Text(u"."), Text(u""), Text(u"../escape"), Text(u"../../escape"), Text(u"/etc/escape"),
          Text(u"a/b"), Text(u"..\\escape"), Text(u"a\nb"), Text(u"a\u0001b"), Text(u"a\0b", 3),
          Text(u"link"), Text(u"LINK"), Text(u" "), Text(u" .. "), long_name}) {
        screen<Form2>().txt_name[0].text = name;
        EXPECT_EQ(run_project(), fault_path_access) << to_utf8(name);
        EXPECT_TRUE(pages_stand()) << to_utf8(name);
    }
}

TEST_F(HostileNames, OddProjectNamesKeepToTheirOwnFolder) {
    for (const Text& name :
         {Text(u"aux"), Text(u"a..b"), Text(u"..."), Text(u"~"), Text(u"$HOME"), Text(u"a;b"), Text(u"-rf"),
          Text(u"*"), Text(u"caf\u00e9"), Text(u"trailing ")}) {
        screen<Form2>().txt_name[0].text = name;
        EXPECT_EQ(run_project(), 0) << to_utf8(name);
        EXPECT_TRUE(app.exists(u"Projects/" + name + u"/SITEMAP-DO-NOT-UPLOAD.HTM")) << to_utf8(name);
        fs::remove_all(app.folder() / "Projects" / to_utf8(name));
        fs::remove(app.folder() / (to_utf8(name) + ".dat"));
    }
}

TEST_F(HostileNames, StepOneMakesNoFolderElsewhere) {
    Form2& step1 = screen<Form2>();
    step1.txt_url[0].text = u"http://www.oakshed.example";
    for (TextBox& box : step1.txt_dat) box.text = u"text";
    for (const Text& name :
         {Text(u".."), Text(u"../escape_folder"), Text(u"a/b"), Text(u"a\\b"), Text(u"link"), long_name}) {
        step1.txt_name[0].text = name;
        EXPECT_EQ(fault_of_event<Form2>("Command2"), fault_path_access) << to_utf8(name);
        EXPECT_FALSE(screens().is_loaded<Form3>());
    }
    EXPECT_FALSE(fs::exists(app.folder() / "escape_folder"));
}

TEST_F(HostileNames, DeletingAProjectErasesNothingElsewhere) {
    take_pages_away();
    app.run("update Projects set name = 'link' where pid = 1");
    EXPECT_EQ(fault_of_deleting(u"link"), fault_path_access);
    EXPECT_EQ(app.count(u"select * from keywords where pid = 1"), 3);
    // No folder can bear these: they are taken for one that is gone, and the rows go.
    for (const Text& name : {Text(u".."), Text(u"."), Text(u""), Text(u"../outside"), Text(u"..\\.."),
                             Text(u"precious/main"), long_name}) {
        app.run("insert or replace into Projects (pid, name) values (1, '" + to_utf8(name) +
                "'); insert into keywords (pid, keyword) values (1, 'roof');");
        EXPECT_EQ(fault_of_deleting(name), 0) << to_utf8(name);
        EXPECT_EQ(app.desktop.last_message(),
                  u"The folder corresponding to this project no longer exist or it has been renamed.");
        EXPECT_EQ(app.count(u"select * from keywords where pid = 1"), 0) << to_utf8(name);
    }
}

TEST_F(HostileNames, DeletingAProjectDoesNotFollowLinksInItsFolder) {
    ASSERT_EQ(run_project(), 0);
    const fs::path folder = app.folder() / "Projects" / "shed";
    fs::create_symlink(app.folder() / "outside" / "file.txt", folder / "link.htm");
    fs::create_directory_symlink(app.folder() / "outside", folder / "out");
    EXPECT_EQ(fault_of_deleting(u"shed"), fault_path_access);
    EXPECT_TRUE(pages_stand());
    fs::remove(folder / "out");
    EXPECT_EQ(fault_of_deleting(u"shed"), 0);
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(HostileNames, MainHostStaysBelowTheProject) {
    const auto use = [](const Text& host) { screen<Form7>().Text2.text = host; };
    expect_runs(use, fault_path_access,
                {u"http://..", u"http://.", u"..", u"http://", u"", u"http://" + long_name});
    expect_runs(use, 0,
                {u"http://../..", u"http://x\\..\\..\\escape", u"/etc/escape", u"http://a\"b'c",
                 u"http://a b?c=d&e*f", u"ftp://x/y"});
}

TEST_F(HostileNames, SecondaryHostsStayBelowTheProject) {
    ListBox& hosts = screen<Form7>().List1;
    hosts.add_item(u"");
    const auto use = [&hosts](const Text& host) { hosts.set_list(0, host); };
    expect_runs(use, fault_path_access, {u"http://..", u"http://.", u"http://", u"http://" + long_name});
    expect_runs(use, 0, {u"http://../../precious", u"\\..\\precious", u"http://'\"<>|"});
}

TEST_F(HostileNames, KeywordsFromTheStoreCannotLeaveTheFolder) {
    const auto use = [this](const Text& keyword) {
        app.run("update keywords set keyword = '" + to_utf8(keyword) + "' where keyid = 1");
    };
    // A separator in a name leads to a folder that is not there, dots lead to the fence.
    expect_runs(use, fault_path_access, {u"../../escape", u"../../precious/main/page", long_name});
    expect_runs(use, fault_path_not_found, {u"/etc/escape", u"a/b", u"<b>bold</b>"});
    expect_runs(use, fault_statement, {u"it''s"});
    expect_runs(use, 0, {u"..", u"...", u"a\\..\\b", u"quote \" and $$$", u"*BREAKLINE*"});
}

TEST_F(HostileNames, SubkeywordsFromTheStoreCannotLeaveTheFolder) {
    const auto use = [this](const Text& element) {
        app.run("update elements set element = '" + to_utf8(element) + "' where eid = 1");
    };
    expect_runs(use, fault_path_access, {u"/../../../escape", long_name});
    expect_runs(use, fault_path_not_found, {u"/../../precious/main/page", u"a/b"});
    expect_runs(use, 0, {u"..", u"it''s"});
}

TEST_F(HostileNames, PageNamesOfStepSixStayInTheirFolder) {
    project->form.Check9.value = true;
    Text entry;
    app.desktop.on_modal = [&](Screen& shown) {
        screen<Form17>().List1.set_list(0, entry);
        screens().fire(shown, "Command1", "Click");
    };
    const auto use = [&](const Text& name) {
        entry = name;
        module1().paso6_cancelado = u"0";
    };
    expect_runs(use, fault_path_access, {u"../../x.htm", u"../../precious/main/page.htm", u"..", long_name});
    expect_runs(use, fault_path_not_found, {u"/etc/x.htm"});
    expect_runs(use, 0, {u"../pages.oakshed.example-sheds/sitemap.htm", u"..\\..\\x.htm", u".htm"});
}

TEST_F(HostileNames, ExtensionsCannotLeadOut) {
    const auto use = [this](const Text& extension) { project->form.Combo10.text = extension; };
    expect_runs(use, fault_path_access, {u".htm/../../..", u"/../../../escape.htm", u"." + long_name});
    expect_runs(use, fault_path_not_found, {u"../x", u"/x"});
    expect_runs(use, 0, {u"..", u".htm\\..\\.."});
    expect_runs(use, -1, {u"/"});
}

TEST_F(HostileNames, WordSeparatorsCannotLeadOut) {
    const auto use = [this](const Text& separator) { project->form.Combo6.text = separator; };
    expect_runs(use, fault_path_access, {u"/../../../", Text(200, u'-')});
    expect_runs(use, fault_path_not_found, {u"/", u"/../"});
    expect_runs(use, 0, {u"..", u"\\", u""});
}

} // namespace twk::test
