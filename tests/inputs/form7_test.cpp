// SPDX-License-Identifier: MIT
#include "inputs/form7.h"
#include "settings/form6.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/temp_app.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::TempApp;

struct StepFour {
    TempApp app;
    Text pid;

    StepFour() {
        app.run_unfenced("insert into Projects ( name , site_url ) values ( 'tea' , 'http://tea.com' )");
        pid = app.value(u"select pid from Projects", u"pid");
        screen<Form2>().txt_name[0].text = u"tea";
        module1().url_sitio = u"http://tea.com";
    }
    Form7& form() { return screen<Form7>(); }
    void next() { ASSERT_TRUE(screens().fire<Form7>("Command1", "Click")); }
    void add(const Text& url) {
        form().Text1.text = url;
        screens().fire<Form7>("Command2", "Click");
    }
    int hosts() { return app.count(u"select * from host where pid = " + pid); }
};

TEST(MainDirectory, MustBeTypedAndIsSavedAtNext) {
    StepFour step;
    EXPECT_EQ(step.form().Text2.text(), u"http://tea.com/HOST");
    const auto refused = [&](const Text& url, const Text& message) {
        step.form().Text2.text = url;
        step.app.desktop.expect(message);
        step.next();
        EXPECT_EQ(step.app.count(u"select * from host1"), 0);
    };
    refused(u"ftp.tea.com", u"URL must have 'http://'");
    refused(u" http://tea.com/HOST ", u"You must enter an URL to host the gateway pages");
    refused(u"http://tea.com/", u"Main Gateway Domain can't end in / or \\");
    step.form().List1.add_item(u" HTTP://other.com");
    refused(u"http://Other.com ", u"Main host can't be the same as Other Host!");

    step.app.run(u"insert into host1 ( pid , host ) values ( " + step.pid + u" , 'http://old.com' )");
    step.form().Text2.text = u"http://o'hara.com";
    step.app.desktop.expect(u"Run-time error '3075'");
    EXPECT_FALSE(screens().fire<Form7>("Command1", "Click"));
    EXPECT_EQ(step.app.value(u"select * from host1", u"host"), u"http://old.com");
    step.form().Text2.text = u" http://tea.com/pages ";
    step.next();
    EXPECT_EQ(step.app.value(u"select * from host1 where pid = " + step.pid, u"host"),
              u"http://tea.com/pages");
    EXPECT_EQ(step.app.count(u"select * from host1"), 1);
    EXPECT_TRUE(screens().is_loaded<Form6>());
    screens().unload<Form7>();
    EXPECT_EQ(step.form().Text2.text(), u"http://tea.com/pages");
}

TEST(SecondaryDirectories, AreStoredAtOnce) {
    StepFour step;
    step.form().Text2.text = u"http://main.com";
    step.add(u"http://a.com/");
    step.add(u"http://b.com//"); // loses one slash
    EXPECT_EQ(step.form().List1.entries(), (std::vector<Text>{u"http://a.com", u"http://b.com/"}));
    EXPECT_EQ(step.form().Text1.text(), u"http://b.com/");
    step.add(u"HTTP://MAIN.COM/http://"); // holds the scheme, begins with it in capitals
    step.add(u"http://MAIN.com");         // in another case than the main directory
    EXPECT_EQ(step.hosts(), 4);
    screens().unload<Form7>();
    EXPECT_EQ(step.form().List1.list_count(), 4);
    ASSERT_TRUE(screens().fire<Form7>("Command3", "Click")); // nothing selected, nothing goes
    EXPECT_EQ(step.hosts(), 4);
    step.form().List1.list_index = 1;
    ASSERT_TRUE(screens().fire<Form7>("Command3", "Click"));
    EXPECT_EQ(step.hosts(), 3);
    EXPECT_EQ(step.form().List1.list(1), u"HTTP://MAIN.COM/http:/");
}

TEST(SecondaryDirectories, AreRefused) {
    StepFour step;
    step.form().Text2.text = u"http://main.com";
    step.add(u"http://a.com");
    for (const auto& [url, message] : std::initializer_list<std::pair<const char16_t*, const char16_t*>>{
             {u"a.com", u"URL must have 'http://'"},
             {u"see http://a.com", u"URL must start with 'http://'"},
             {u"http://", u"URL must contain a site"},
             {u"http://A.com", u"You can't define 2 equal host"},
             {u"http://main.com ",
              u"You can't define the same URL in Main Host and other Domain/Directory"}}) {
        step.app.desktop.expect(message);
        step.add(url);
        EXPECT_EQ(step.hosts(), 1);
    }
    // At nineteen exactly: a store may hold more.
    for (int i = 2; i <= 19; ++i) step.form().List1.add_item(u"http://x.com");
    step.app.desktop.expect(u"You can define just 20 domain names");
    step.add(u"http://more.com");
    EXPECT_EQ(step.form().List1.list_count(), 19);
    step.form().List1.add_item(u"http://twentieth.com");
    step.add(u"http://more.com");
    EXPECT_EQ(step.form().List1.list_count(), 21);
}

} // namespace
} // namespace twk
