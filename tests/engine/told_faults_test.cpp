// SPDX-License-Identifier: MIT
#include "inputs/form7.h"
#include "shell/form2.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

namespace fs = std::filesystem;
using test::SampleContent;
using test::SampleProject;

/// What is wrong, the message that has to come, and whether the old pages have to stand behind it.
struct Case {
    std::function<void(SampleContent&)> content;
    std::function<void(Form6&)> form;
    const char16_t* message;
    bool stands = true;
};

const auto as_it_is = [](SampleContent&) {};

void no_form(Form6&) {}

/// Every fault that settings or inputs lead to says first what is wrong, by name and value, and what would
/// do.
TEST(ToldFaults, NameWhatIsWrongAndComeBeforeThePagesGoWhereTheyAreCertain) {
    const auto pages = [](TextView count, TextView share) {
        return [=](Form6& form) {
            form.Combo2.text = Text(count);
            form.Combo3.text = Text(share);
        };
    };
    const auto density = [](TextView typed) { return [=](Form6& form) { form.Combo9.text = Text(typed); }; };
    const auto host = [](TextView address) {
        return [=](Form6&) { screen<Form7>().List1.add_item(Text(address)); };
    };
    const Case cases[] = {
        {as_it_is, pages(u"4", u"20"),
         u"'11':\n\n\"Random pages using automatic Javacript redirection to the target site\" (2.b) is 20 % of 4 "
         u"pages, which is less than one page; 25 or more would do, or 0.\nDivision by zero"},
        {as_it_is, pages(u"-2", u"0"),
         u"'9':\n\n\"How many random pages?\" (2.a) is \"-2\"; a whole number from 0 to 32766 would do.\nSub"},
        {as_it_is, pages(u"1e999", u"0"), u"'6':\n\n\"How many random pages?\" (2.a) is \"1e999\"; a whole"},
        {as_it_is, pages(u"32768", u"0"), u"'6':\n\n\"How many random pages?\" (2.a) is \"32768\"; a whole"},
        {as_it_is, pages(u"4", u"1e999"),
         u"site\" (2.b) is \"1e999\"; a number from 0 to 100 would do.\nOverflow"},
        {as_it_is, density(u"abc"),
         u"'13':\n\n\"Keyword Density (aprox.) for content boxes\" (3.a) is \"abc\"; a whole number from 1 to 50 "
         u"would do.\nType mismatch"},
        {as_it_is, density(u"40000"),
         u"'6':\n\n\"Keyword Density (aprox.) for content boxes\" (3.a) is \"40000\";"},
        {as_it_is, density(u" "),
         u"(3.a) is empty; choose an entry, or type a whole number from 1 to 50. An entry "
         u"that was typed and is not in the list is not saved"},
        {[](SampleContent& c) { c.boxes.push_back({u" "}); }, density(u"x"), u"(3.a) is \"x\"", false},
        {[](SampleContent& c) { c.boxes.clear(); }, no_form,
         u"'1001':\n\nThe project has no content boxes: "},
        {[](SampleContent& c) { c.boxes.assign(102, {u"A box."}); }, no_form,
         u"'9':\n\nThe project has more than 101 content boxes; so many or fewer in Step 3 would do.\n"
         u"Subscript out of range\n\nthere was an error preparing project properties ("},
        {as_it_is, host(u"http://.."),
         u"'75':\n\nA secondary gateway directory of Step 4 is \"http://..\", after which no folder can be named"},
        {as_it_is, host(u"http://"), u"A secondary gateway directory of Step 4 is \"http://\", after"},
        {[](SampleContent& c) { c.main_host = u"http://m/" + Text(245, u'x'); }, no_form,
         u"The main gateway "},
        {[](SampleContent& c) {
             c.keywords = {{u"bench"}};
             c.boxes.resize(1);
         },
         [](Form6& form) { form.Check14.value = false; },
         u"one keyword only: the hallway page needs a second one"},
        {[](SampleContent& c) { c.keywords.resize(1), c.boxes.resize(1), c.targets = {u"http://t"}; },
         no_form, u"needs a second content box"},
        {[](SampleContent& c) {
             c.boxes = {{u"A cedar roof over the shed. " +
                         test::repeated(u"Paint keeps well for years and years. ", 12)}};
         },
         [](Form6& form) {
             form.settings.max_repeticiones = 1;
             form.Check8.value = true;
         },
         u"'5':\n\nThe setting 1.c (most occurrences of a keyword) is 1; 15 or more would do.\nInvalid",
         false},
        {as_it_is, [](Form6& form) { form.settings.max_palabras = 10; },
         u"'9':\n\nThe setting 1.b is 10, and a text with more words is cut to its first 500: it has fewer. 500",
         false},
        {as_it_is,
         [](Form6& form) {
             form.checkBulgaro.value = true;
             form.plantilla_sitemap = beside_program(u"hall.htm");
         },
         u"hall.htm has a \"<!-- //URLKeyword -->\" that has none of the opening ones in front", false},
    };
    for (const Case& each : cases) {
        test::TempApp app;
        app.write(u"hall.htm", "<!-- //URLKeyword --> and more");
        SampleContent content;
        each.content(content);
        for (test::SampleBox& box : content.boxes)
            if (content.keywords.size() == 1) box.tied.clear();
        SampleProject project(app, content);
        project.form.Check10.value = false;
        project.form.Check11.value = true;
        project.form.Combo2.text = u"0";
        each.form(project.form);
        fs::create_directories(to_utf8(app.path(project.folder())));
        app.write(project.folder(u"old.htm"), "old");
        app.desktop.always(u"Are you sure you want to proceed?", Answer::yes);
        app.desktop.expect(each.message);
        EXPECT_FALSE(screens().dispatch([&] { project.form.Command1_Click(); })) << to_utf8(each.message);
        EXPECT_EQ(app.exists(project.folder(u"old.htm")), each.stands) << to_utf8(each.message);
    }
}

} // namespace
} // namespace twk
