// SPDX-License-Identifier: MIT
#include "inputs/form3.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/temp_app.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::TempApp;

/// Step 1 filled so that Next passes.
struct StepOne {
    TempApp app;

    StepOne() { fill(u"tea"); }

    void fill(const Text& name) {
        form().txt_name[0].text = name;
        form().Text2[0].text = u"TeaHouse";
        form().txt_url[0].text = u"http://tea.com";
        for (TextBox& box : form().txt_dat) box.text = u"Tea";
    }
    Form2& form() { return screen<Form2>(); }
    void next() { screens().fire<Form2>("Command2", "Click"); }
    /// Next ends with this message, and nothing is saved.
    void refused(const Text& message) {
        app.desktop.expect(message);
        next();
        EXPECT_FALSE(screens().is_loaded<Form3>());
        EXPECT_EQ(app.count(u"select * from Projects"), 0) << to_utf8(message);
    }
    Text stored(const Text& column) { return app.value(u"select * from Projects", column); }
};

TEST(TargetSiteName, IsCheckedWhenItIsLeft) {
    StepOne step;
    const auto leave = [&](const Text& word) {
        step.form().Text2[0].text = word;
        screens().fire<Form2>("Text2", "LostFocus", 0);
        return step.form().Text2[0].text();
    };
    EXPECT_EQ(leave(u"A-b_9"), u"A-b_9");
    step.app.desktop.expect(u"'Sitemap' and 'Index' are reserved words.");
    EXPECT_EQ(leave(u" SiteMap "), u"");
    step.app.desktop.expect(u"The word must have more than 3 characters");
    EXPECT_EQ(leave(u""), u"");
}

TEST(StepOneNext, RefusesIncompleteFieldsInOrder) {
    StepOne step;
    Form2& form = step.form();
    form.txt_name[0].text = u"";
    form.txt_url[0].text = u"";
    form.txt_dat[1].text = u"";
    step.refused(u"The Project must have a Name");
    form.txt_name[0].text = u"my tea";
    step.refused(u"The name of the project can`t contain spaces");
    form.txt_name[0].text = u"tea";
    step.refused(u"The Project must have a Target URL");
    form.txt_url[0].text = u" tea.com ";
    step.refused(u"Subject, Category and Description can\u00b4t be empty");
    form.txt_dat[1].text = u"Drinks";
    step.refused(u"The Target Site URL is invalid (tea.com)\nIt should begin with \u00b4http://\u00b4");
    form.txt_url[0].text = u"xttp://tea.com";
    step.refused(u"The Target Site URL is invalid: xttp://tea.com\nIt should begin with \u00b4http://\u00b4");
    form.txt_url[0].text = u"http://tea.com";
    form.List1.add_item(u"http://fine.com");
    form.List1.add_item(u"ftp.tea.com");
    step.refused(u"This Other Target URL is invalid: ftp.tea.com\nIt should begin with \u00b4http://\u00b4");
}

TEST(StepOneNext, SavesANewProjectAndItsTargets) {
    StepOne step;
    Form2& form = step.form();
    form.txt_dat[2].text = u"Tea\r\nand \"more\"(now)";
    form.txt_url[1].text = u"http://tea.com/b.htm";
    screens().fire<Form2>("Command7", "Click");
    screens().fire<Form2>("Command7", "Click"); // twice is allowed
    EXPECT_EQ(module1().url_sitio, u"http://tea.com/b.htm") << "the scratch variable";
    step.next();
    EXPECT_EQ(screens().open().back()->name, "Form3");
    EXPECT_EQ(step.stored(u"name"), u"tea");
    EXPECT_EQ(step.stored(u"description"), u"Tea <p> and more (now)");
    EXPECT_EQ(step.stored(u"site_url"), u"http://tea.com");
    EXPECT_EQ(step.stored(u"designer_url"), u"http://");
    EXPECT_EQ(step.stored(u"pid"), from_utf8(std::to_string(module1().pid_actual)));
    EXPECT_EQ(step.app.count(u"select * from target where pid = " + step.stored(u"pid")), 2);
    EXPECT_TRUE(step.app.exists(u"Projects/tea"));
    EXPECT_EQ(form.Command2.caption(), u"&Next");
    // A further Next goes down the way of a known project, which was never opened under a name.
    step.app.desktop.expect(u"The project  has been renamed to tea");
    step.next();
    EXPECT_EQ(step.app.count(u"select * from Projects"), 1);
}

TEST(StepOneNext, SavesBeforeItRefusesASlash) {
    StepOne step;
    step.form().txt_url[0].text = u"http://tea.com/ ";
    screens().fire<Form2>("txt_url", "LostFocus", 0);
    EXPECT_EQ(step.form().txt_url[0].text(), u"http://tea.com/");
    step.app.desktop.expect(u"You can't put a backward or fordward slash at the end of the Target Site URL");
    step.next();
    EXPECT_EQ(step.stored(u"site_url"), u"http://tea.com/");
    EXPECT_NE(module1().pid_actual, 0);
    EXPECT_FALSE(screens().is_loaded<Form3>());
    EXPECT_FALSE(step.app.exists(u"Projects/tea"));

    step.form().txt_url[0].text = u"http://tea.com";
    step.form().List1.add_item(u"http://tea.com/b\\");
    step.app.desktop.expect(u"has been renamed to");
    step.app.desktop.expect(
        u"You can't put a backward or fordward slash at the end of the an (Other) Target Site URL");
    step.next();
    EXPECT_EQ(step.stored(u"site_url"), u"http://tea.com");
}

TEST(StepOneNext, ReplacesAProjectOfTheSameNameOnlyWhenTold) {
    StepOne step;
    step.next();
    const Text old = step.stored(u"pid");
    for (const Text& keyword : {Text(u"lonely"), Text(u"parent")})
        step.app.run(u"insert into keywords ( pid , keyword ) values ( " + old + u" , '" + keyword + u"' )");
    step.app.run(u"insert into elements ( catid , element ) values ( " +
                 step.app.value(u"select keyid from keywords where keyword = 'parent'", u"keyid") +
                 u" , 'child' )");
    step.app.run(u"insert into host ( pid , host ) values ( " + old + u" , 'http://h.com' )");
    step.app.run(u"insert into host1 ( pid , host ) values ( " + old + u" , 'http://m.com' )");
    const auto again = [&](Answer answer) {
        screens().unload<Form2>();
        module1().pid_actual = 0;
        step.fill(u"TEA"); // compared without regard to case
        step.form().List1.add_item(u"http://tea.com/c.htm");
        step.app.desktop.expect(u"There's another project named TEA! \nDo you want to replace it?\nAll data",
                                answer);
        step.next();
    };
    again(Answer::cancel);
    EXPECT_EQ(step.stored(u"pid"), old);
    EXPECT_FALSE(screens().is_loaded<Form3>());
    EXPECT_EQ(step.app.count(u"select * from target where pid = 0"), 1);

    again(Answer::ok);
    EXPECT_EQ(step.app.count(u"select * from Projects"), 1);
    EXPECT_EQ(step.stored(u"name"), u"TEA");
    EXPECT_NE(step.stored(u"pid"), old);
    EXPECT_EQ(step.app.count(u"select * from elements"), 0);
    EXPECT_EQ(step.app.count(u"select * from host"), 0);
    EXPECT_EQ(step.app.count(u"select * from host1 where pid = " + old), 1);
    EXPECT_EQ(step.app.value(u"select * from keywords where pid = " + old, u"keyword"), u"lonely");
}

TEST(StepOneNext, AStatementThatBreaksLeavesWhatWasStored) {
    StepOne step;
    step.form().List1.add_item(u"http://tea.com/c.htm");
    step.next();
    step.app.run(u"insert into keywords ( pid , keyword ) values ( 1 , 'parent' )");
    step.app.run(u"insert into elements ( catid , element ) values ( 1 , 'child' )");
    const std::string rows = step.app.all_rows();
    screens().unload<Form2>();
    module1().pid_actual = 0;
    step.fill(u"tea");
    step.form().Text7.text = u"O'Hara";
    step.app.desktop.expect(u"Do you want to replace it?"); // the old project is not lost to the new one
    step.app.desktop.expect(u"Run-time error '3075'");
    step.next();
    EXPECT_EQ(module1().pid_actual, 0);
    EXPECT_EQ(step.app.all_rows(), rows);

    module1().pid_actual = 1;
    module1().proyecto_actual = u"tea";
    step.form().Text7.text = u"";
    step.form().txt_url[2].text = u"http://"; // the row is written as it was
    step.form().List1.add_item(u"http://tea.com/o'hara");
    step.app.desktop.expect(u"Run-time error '3075'");
    step.next();
    EXPECT_EQ(step.app.all_rows(), rows);
}

TEST(StepOneNext, ARenameKeepsTheOldFolder) {
    StepOne step;
    step.next();
    module1().proyecto_actual = u"tea";
    step.form().txt_name[0].text = u"chai";
    step.app.desktop.expect(u"The project tea has been renamed to chai");
    step.next();
    EXPECT_EQ(step.stored(u"name"), u"chai");
    EXPECT_EQ(module1().proyecto_actual, u"tea");
    EXPECT_TRUE(step.app.exists(u"Projects/tea"));
    EXPECT_TRUE(step.app.exists(u"Projects/chai"));
}

TEST(StepOne, LoadsWithWhatTheLastProjectLeftAndExitsUnsaved) {
    TempApp app;
    module1().url_sitio = u"http://last.com";
    EXPECT_EQ(screen<Form2>().txt_url[0].text(), u"http://last.com");
    EXPECT_EQ(screen<Form2>().txt_url[2].text(), u"http://");
    EXPECT_TRUE(app.exists(u"Projects"));
    screen<Form2>().List1.add_item(u"http://a.com");
    for (const int left : {1, 0}) { // nothing is selected at first
        screens().fire<Form2>("Command8", "Click");
        EXPECT_EQ(screen<Form2>().List1.list_count(), left);
        screen<Form2>().List1.list_index = 0;
    }
    screens().fire<Form2>("Command1", "Click");
    EXPECT_FALSE(screens().is_loaded<Form2>());
    EXPECT_TRUE(screens().is_loaded<Form1>());
    EXPECT_EQ(app.count(u"select * from Projects"), 0);
}

} // namespace
} // namespace twk
