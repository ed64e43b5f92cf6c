// SPDX-License-Identifier: MIT
#include "inputs/form10.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/temp_app.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace twk {
namespace {

namespace fs = std::filesystem;
using test::TempApp;

/// The manager on projects that stand in the store.
struct Manager {
    TempApp app;

    void add(const Text& name) {
        app.run(
            u"insert into Projects ( name , site_name , site_url , title , category , description , "
            u"designer_name , designer_url ) values ( '" +
            name +
            u"' , 'Site' , 'http://site.com' , 'Subject' , 'Category' , 'About it' , 'Ann' , 'http://' )");
    }
    Text pid(const Text& name) {
        return app.value(u"select pid from Projects where name = '" + name + u"'", u"pid");
    }
    int rows(const Text& table, const Text& pid) {
        return app.count(u"select * from " + table + u" where pid = " + pid);
    }
    void select(const Text& name) {
        ComboBox& combo = screen<Form1>().combo1;
        for (int i = 0; i < combo.list_count(); ++i)
            if (combo.list(i) == name) combo.select(i);
        click("combo1");
    }
    /// The event runs; a fault shows as a message, which a test has to expect.
    void click(const char* control) { screens().fire<Form1>(control, "Click"); }
    void file(const char* relative) {
        const fs::path path = app.folder() / relative;
        fs::create_directories(path.parent_path());
        app.write(from_utf8(relative), "x");
    }
    /// A project with a row in every table that belongs to it.
    Text full_project(const Text& name) {
        add(name);
        const Text key = pid(name);
        const std::string rows = R"(
            insert into keywords ( pid , keyword ) values ( KEY , 'green tea' ) , ( KEY , 'black tea' );
            insert into elements ( catid , element ) select min(keyid) , 'leaves' from keywords where pid = KEY;
            insert into content ( pid , content ) values ( KEY , 'Tea isn''t coffee.' );
            insert into ties ( pid , keyid , cid ) select KEY , min(keyid) , 1 from keywords where pid = KEY;
            insert into host ( pid , host ) values ( KEY , 'http://second.com' );
            insert into host1 ( pid , host ) values ( KEY , 'http://main.com' );
            insert into target ( pid , target ) values ( KEY , 'http://site.com/b.htm' );)";
        app.run_unfenced(to_utf8(Replace(from_utf8(rows), u"KEY", key)));
        return key;
    }
};

TEST(OpenProject, FillsStepOneFromTheRow) {
    Manager manager;
    const Text key = manager.full_project(u"tea");
    module1().url_sitio = u"http://stale.com";
    manager.select(u"tea");
    manager.click("Command3");
    Form2& step = screen<Form2>();
    EXPECT_EQ(step.txt_name[0].text(), u"tea");
    EXPECT_EQ(step.Text2[0].text(), u"Site");
    EXPECT_EQ(step.txt_url[0].text(), u"http://site.com");
    EXPECT_EQ(step.txt_url[2].text(), u"http://");
    EXPECT_EQ(step.txt_dat[0].text() + step.txt_dat[1].text() + step.txt_dat[2].text(),
              u"SubjectCategoryAbout it");
    EXPECT_EQ(step.Text7.text(), u"Ann");
    EXPECT_EQ(step.Command2.caption(), u"Modify/Next");
    EXPECT_EQ(step.List1.entries(), std::vector<Text>{u"http://site.com/b.htm"});
    EXPECT_EQ(module1().proyecto_actual, u"tea");
    EXPECT_EQ(to_utf8(key), std::to_string(module1().pid_actual));
    manager.click("Command1"); // New Project: Step 1 afresh
    EXPECT_FALSE(screens().is_loaded<Form1>());
    EXPECT_EQ(screen<Form2>().txt_name[0].text() + module1().proyecto_actual, u"");
    EXPECT_EQ(module1().pid_actual, 0);
}

TEST(OpenProject, CleansUpBeforeItMissesASelectionAndEndsSilentlyOnAFault) {
    Manager manager;
    screen<Form10>();
    manager.app.desktop.expect(u"Must select a Project from the dropdown list");
    manager.click("Command3");
    EXPECT_FALSE(screens().is_loaded<Form10>());
    screen<Form1>().combo1.add_item(u"it's");
    manager.select(u"it's");
    manager.click("Command3"); // the statement breaks; no message is expected
    EXPECT_FALSE(screens().is_loaded<Form2>());
}

TEST(DeleteProject, RemovesFolderAndRowsOfThisProjectAlone) {
    Manager manager;
    const Text gone = manager.full_project(u"tea");
    const Text kept = manager.full_project(u"coffee");
    manager.file("Projects/tea/index.htm");
    manager.file("Projects/tea/CNAME");
    manager.file("Projects/tea/site.com/page.htm");
    manager.file("Projects/coffee/index.htm");
    manager.select(u"tea");
    manager.app.desktop.expect(u"Are you sure you want to delete this project?\rAll data will be Lost.");
    manager.click("Command4");
    EXPECT_EQ(manager.app.desktop.messages.back().title, u"Replace project?");
    EXPECT_TRUE(manager.app.desktop.warned_of(manager.app.path(u"Projects/tea")));
    EXPECT_FALSE(manager.app.exists(u"Projects/tea"));
    EXPECT_TRUE(manager.app.exists(u"Projects/coffee/index.htm"));
    for (const char16_t* table :
         {u"Projects", u"keywords", u"content", u"ties", u"host", u"host1", u"target"}) {
        EXPECT_EQ(manager.rows(table, gone), 0) << to_utf8(table);
        EXPECT_GT(manager.rows(table, kept), 0) << to_utf8(table);
    }
    EXPECT_EQ(manager.app.count(u"select * from elements"), 1);
    EXPECT_EQ(screen<Form1>().combo1.entries(), std::vector<Text>{u"coffee"});
    EXPECT_EQ(screen<Form1>().combo1.text(), u"Select an existing project");
}

TEST(DeleteProject, AsksFirstAndStopsAtANestedFolderButNotAtAMissingOne) {
    Manager manager;
    const Text key = manager.full_project(u"tea");
    manager.click("Command4"); // nothing selected: nothing happens
    manager.select(u"tea");
    manager.app.desktop.expect(u"Are you sure", Answer::cancel);
    manager.click("Command4");
    EXPECT_EQ(manager.rows(u"Projects", key), 1);
    manager.file("Projects/tea/sub/deeper/mine.txt"); // a folder in a folder is none of the program's
    manager.app.desktop.expect(u"Are you sure");
    manager.app.desktop.expect(u"Run-time error '75'");
    manager.click("Command4");
    EXPECT_TRUE(manager.app.exists(u"Projects/tea/sub/deeper/mine.txt"));
    EXPECT_EQ(manager.rows(u"Projects", key), 1) << "the rows come after the folder";
    fs::remove_all(manager.app.folder() / "Projects/tea");
    manager.app.desktop.expect(u"Are you sure");
    manager.app.desktop.expect(
        u"The folder corresponding to this project no longer exist or it has been renamed.");
    manager.click("Command4");
    EXPECT_EQ(manager.rows(u"Projects", key), 0);
}

TEST(CopyProject, CopiesRowsWithoutTiesAndMainHost) {
    Manager manager;
    const Text source = manager.full_project(u"tea");
    manager.select(u"tea");
    EXPECT_EQ(screen<Form1>().Text1.text(), u"tea_Copy");
    manager.app.desktop.expect(u"This might take a while depending on your PC's speed. \n", Answer::yes);
    manager.click("Command6");
    const Text copy = manager.pid(u"tea_Copy");
    for (const char16_t* table : {u"keywords", u"content", u"host", u"target"})
        EXPECT_EQ(manager.rows(table, copy), manager.rows(table, source)) << to_utf8(table);
    EXPECT_EQ(manager.rows(u"ties", copy), 0);
    EXPECT_EQ(manager.rows(u"host1", copy), 0);
    EXPECT_EQ(manager.app.value(u"select content from content where pid = " + copy, u"content"),
              u"Tea isn't coffee.");
    EXPECT_EQ(
        manager.app.count(u"select * from elements , keywords where elements.catid = keywords.keyid and "
                          u"keywords.pid = " +
                          copy),
        1);
    EXPECT_EQ(manager.app.value(u"select * from Projects where pid = " + copy, u"description"), u"About it");
    EXPECT_FALSE(manager.app.exists(u"Projects/tea_Copy"));
    EXPECT_EQ(screen<Form1>().combo1.text(), u"Select an existing Project");
    EXPECT_EQ(screen<Form1>().combo1.list_count(), 2);
}

TEST(CopyProject, RefusesNames) {
    Manager manager;
    manager.add(u"tea");
    manager.select(u"tea");
    for (const auto& [name, message] : std::initializer_list<std::pair<const char16_t*, const char16_t*>>{
             {u"  ", u""},
             {u"my tea", u"Project Name can't have spaces"},
             {u" tea ", u"2 Projects can't have the same name!\nYou should delete one first."},
             {u"TEA", u"Are you sure you want to proceed?"}}) { // differs in case: asked, and here declined
        screen<Form1>().Text1.text = name;
        if (*message != u'\0') manager.app.desktop.expect(message, Answer::no);
        manager.click("Command6");
    }
    EXPECT_EQ(manager.app.count(u"select * from Projects"), 1);
}

} // namespace
} // namespace twk
