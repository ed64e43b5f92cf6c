// Names that become paths: of projects, hosts, keywords, pages and files.

#include "engine/form17.h"
#include "engine/run.h"
#include "faults/hostile_app.h"
#include "inputs/form3.h"
#include "inputs/form7.h"
#include "platform/numbers.h"
#include "settings/form6.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/module1.h"

namespace twk::test {

namespace {

namespace fs = std::filesystem;

class HostileNames : public HostileApp {
  protected:
    void take_pages_away() { fs::remove_all(app.folder() / "Projects" / "shed"); }
    bool pages_stand() const {
        return app.exists(u"Projects/shed/pages.oakshed.example-sheds/garden_shed.htm");
    }
};

/// A text and what the run with it ends in.
struct Outcome {
    Text text;
    int fault;
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
    int number = 0;
    for (const Text& name : {Text(u".."), Text(u"."), Text(u""), Text(u"../outside"), Text(u"..\\.."),
                             Text(u"link"), Text(u"precious/main")}) {
        app.run_unfenced("update Projects set name = '" + to_utf8(name) + "' where pid = 1");
        screens().dispatch([] { screens().unload<Form1>(); });
        screens().dispatch([] { screens().show<Form1>(); });
        Form1& manager = screen<Form1>();
        const auto& names = manager.combo1.entries();
        manager.combo1.select(static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin()));
        EXPECT_EQ(fault_of_event<Form1>("Command4"), fault_path_access) << to_utf8(name);
        EXPECT_EQ(app.count(u"select * from keywords where pid = 1"), 3) << ++number;
    }
}

TEST_F(HostileNames, DeletingAProjectDoesNotFollowLinksInItsFolder) {
    ASSERT_EQ(run_project(), 0);
    const fs::path folder = app.folder() / "Projects" / "shed";
    fs::create_symlink(app.folder() / "outside" / "file.txt", folder / "link.htm");
    const auto remove = [&] {
        screens().dispatch([] { screens().unload<Form1>(); });
        screens().dispatch([] { screens().show<Form1>(); });
        screen<Form1>().combo1.select(0);
        return fault_of_event<Form1>("Command4");
    };
    fs::create_directory_symlink(app.folder() / "outside", folder / "out");
    EXPECT_EQ(remove(), fault_path_access);
    EXPECT_TRUE(pages_stand());
    fs::remove(folder / "out");
    EXPECT_EQ(remove(), 0);
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(HostileNames, MainHostStaysBelowTheProject) {
    for (const auto& [host, fault] :
         {Outcome{u"http://..", fault_path_access}, Outcome{u"http://.", fault_path_access},
          Outcome{u"..", fault_path_access}, Outcome{u"http://", fault_path_access},
          Outcome{u"", fault_path_access}, Outcome{u"http://" + long_name, fault_path_access},
          Outcome{u"http://../..", 0}, Outcome{u"http://x\\..\\..\\escape", 0}, Outcome{u"/etc/escape", 0},
          Outcome{u"http://a\"b'c", 0}, Outcome{u"http://a b?c=d&e*f", 0}, Outcome{u"ftp://x/y", 0}}) {
        screen<Form7>().Text2.text = host;
        EXPECT_EQ(run_project(), fault) << to_utf8(host);
    }
}

TEST_F(HostileNames, SecondaryHostsStayBelowTheProject) {
    ListBox& hosts = screen<Form7>().List1;
    hosts.add_item(u"");
    for (const auto& [host, fault] :
         {Outcome{u"http://..", fault_path_access}, Outcome{u"http://.", fault_path_access},
          Outcome{u"http://", fault_path_access}, Outcome{u"http://" + long_name, fault_path_access},
          Outcome{u"http://../../precious", 0}, Outcome{u"\\..\\precious", 0},
          Outcome{u"http://'\"<>|", 0}}) {
        hosts.set_list(0, host);
        EXPECT_EQ(run_project(), fault) << to_utf8(host);
    }
}

TEST_F(HostileNames, KeywordsFromTheStoreCannotLeaveTheFolder) {
    // A separator in a name leads to a folder that is not there, dots lead to the fence.
    for (const auto& [keyword, fault] :
         {Outcome{u"../../escape", fault_path_access},
          Outcome{u"../../precious/main/page", fault_path_access},
          Outcome{u"/etc/escape", fault_path_not_found}, Outcome{u"a/b", fault_path_not_found},
          Outcome{u"..", 0}, Outcome{u"...", 0}, Outcome{u"a\\..\\b", 0},
          Outcome{u"<b>bold</b>", fault_path_not_found}, Outcome{u"quote \" and $$$", 0},
          Outcome{u"*BREAKLINE*", 0}, Outcome{u"it''s", fault_statement},
          Outcome{long_name, fault_path_access}}) {
        app.run_unfenced("update keywords set keyword = '" + to_utf8(keyword) + "' where keyid = 1");
        EXPECT_EQ(run_project(), fault) << to_utf8(keyword);
    }
}

TEST_F(HostileNames, SubkeywordsFromTheStoreCannotLeaveTheFolder) {
    for (const auto& [element, fault] :
         {Outcome{u"/../../../escape", fault_path_access},
          Outcome{u"/../../precious/main/page", fault_path_not_found}, Outcome{u"a/b", fault_path_not_found},
          Outcome{u"..", 0}, Outcome{u"it''s", 0}, Outcome{long_name, fault_path_access}}) {
        app.run_unfenced("update elements set element = '" + to_utf8(element) + "' where eid = 1");
        EXPECT_EQ(run_project(), fault) << to_utf8(element);
    }
}

TEST_F(HostileNames, EditSubKeywordLetsAnythingInAndNothingOut) {
    Form3& step2 = screen<Form3>();
    step2.List1.list_index = 0;
    screens().fire<Form3>("List1", "Click");
    ASSERT_EQ(step2.List2.list_count(), 2);
    for (const Text& word : {Text(u"../../escape"), Text(u"/../../../escape"), Text(u"..."), long_name}) {
        step2.List2.set_selected(0, true);
        step2.Text2.text = word;
        EXPECT_EQ(fault_of_event<Form3>("Command22"), 0) << to_utf8(word);
        EXPECT_EQ(step2.List2.list(0), word);
        run_project(); // wherever it ends, what is precious stays
        step2.List2.set_selected(0, true);
    }
}

TEST_F(HostileNames, PageNamesOfStepSixStayInTheirFolder) {
    project->form.Check9.value = true;
    Text entry;
    app.desktop.on_modal = [&](Screen& shown) {
        screen<Form17>().List1.set_list(0, entry);
        screens().fire(shown, "Command1", "Click");
    };
    for (const auto& [name, fault] :
         {Outcome{u"../../x.htm", fault_path_access},
          Outcome{u"../../precious/main/page.htm", fault_path_access},
          Outcome{u"../pages.oakshed.example-sheds/sitemap.htm", 0},
          Outcome{u"/etc/x.htm", fault_path_not_found}, Outcome{u"..", fault_path_access},
          Outcome{u"..\\..\\x.htm", 0}, Outcome{u".htm", 0}, Outcome{long_name, fault_path_access}}) {
        entry = name;
        module1().paso6_cancelado = u"0";
        EXPECT_EQ(run_project(), fault) << to_utf8(name);
    }
}

TEST_F(HostileNames, AListOfPageNamesIsReadAsItStands) {
    fs::create_directories(app.folder() / "given");
    app.write(u"given/bad.fnm", "# Host: x\r\n../../x.htm\r\n/etc/x.htm\r\n   \r\n#../y\r\n..\r\n");
    Form17& step6 = screen<Form17>();
    for (const char16_t* name : {u"a.htm", u"b.htm", u"c.htm"}) step6.List1.add_item(name);
    app.desktop.open_files.push_back(app.path(u"given/bad.fnm"));
    EXPECT_EQ(fault_of_event<Form17>("Command3"), 0);
    EXPECT_EQ(step6.List1.entries(), (std::vector<Text>{u"../../x.htm", u"/etc/x.htm", u".."}));
    app.write(u"given/bad.fnm", std::string("\0\xFF\xFE\r\n\x01", 6));
    app.desktop.open_files.push_back(app.path(u"given/bad.fnm"));
    EXPECT_EQ(fault_of_event<Form17>("Command3"), 0); // no text, and no harm
}

TEST_F(HostileNames, ExtensionsCannotLeadOut) {
    for (const auto& [extension, fault] :
         {Outcome{u"../x", fault_path_not_found}, Outcome{u".htm/../../..", fault_path_access},
          Outcome{u"/../../../escape.htm", fault_path_access}, Outcome{u"/x", fault_path_not_found},
          Outcome{u"..", 0}, Outcome{u".htm\\..\\..", 0}, Outcome{u"." + long_name, fault_path_access}}) {
        project->form.Combo10.text = extension;
        EXPECT_EQ(run_project(), fault) << to_utf8(extension);
    }
    project->form.Combo10.text = u"/";
    EXPECT_EQ(run_project(), -1);
}

TEST_F(HostileNames, WordSeparatorsCannotLeadOut) {
    for (const auto& [separator, fault] :
         {Outcome{u"/", fault_path_not_found}, Outcome{u"/../", fault_path_not_found},
          Outcome{u"/../../../", fault_path_access}, Outcome{u"..", 0}, Outcome{u"\\", 0}, Outcome{u"", 0},
          Outcome{Text(200, u'-'), fault_path_access}}) {
        project->form.Combo6.text = separator;
        EXPECT_EQ(run_project(), fault) << to_utf8(separator);
    }
}

} // namespace twk::test
