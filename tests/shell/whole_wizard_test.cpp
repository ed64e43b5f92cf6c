#include "engine/form17.h"
#include "engine/run.h"
#include "inputs/form3.h"
#include "inputs/form5.h"
#include "inputs/form7.h"
#include "platform/files.h"
#include "platform/html.h"
#include "reports/form12.h"
#include "settings/form6.h"
#include "shell/form1.h"
#include "shell/form2.h"
#include "shell/mdi1.h"
#include "support/temp_app.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::TempApp;

/// Somebody at the windows: types into boxes, chooses from lists and clicks, and never calls a routine.
template <class S> struct At {
    static void click(const char* control, int index = -1) {
        ASSERT_TRUE(screens().fire<S>(control, "Click", index)) << S::name << "." << control;
    }
    static void type(const char* control, const Text& text, int index = -1) {
        const ScreenMap::Control* const box = screens().record<S>().map.find_control(control, index);
        ASSERT_NE(box, nullptr) << S::name << "." << control;
        if (auto* const plain = std::get_if<TextBox*>(&box->ref)) (*plain)->text.from_user(text);
        if (auto* const rich = std::get_if<RichTextBox*>(&box->ref)) (*rich)->text.from_user(text);
        if (auto* const combo = std::get_if<ComboBox*>(&box->ref)) (*combo)->text.from_user(text);
        if (screens().record<S>().map.find_event(control, "LostFocus", index) != nullptr)
            screens().fire<S>(control, "LostFocus", index);
    }
    static void choose(const char* list, int entry) {
        const ScreenMap::Control* const found = screens().record<S>().map.find_control(list);
        ASSERT_NE(found, nullptr) << S::name << "." << list;
        if (auto* const box = std::get_if<ListBox*>(&found->ref)) (*box)->select_from_user(entry, {entry});
        if (auto* const combo = std::get_if<ComboBox*>(&found->ref)) (*combo)->select(entry);
        if (screens().record<S>().map.find_event(list, "Click") != nullptr) click(list);
    }
    static bool on_top() { return screens().open().back()->name == S::name; }
};

void walk_step_one() {
    At<mdi1>::click("a2");
    At<Form1>::click("Command1");
    At<Form2>::type("txt_name", u"teahouse", 0);
    At<Form2>::type("Text2", u"Tea-House", 0);
    At<Form2>::type("txt_url", u" http://www.teahouse.example ", 0);
    At<Form2>::type("txt_url", u"http://www.teahouse.example/shop.htm", 1);
    At<Form2>::click("Command7");
    At<Form2>::type("txt_dat", u"Fine teas", 0);
    At<Form2>::type("txt_dat", u"Shopping", 1);
    At<Form2>::type("txt_dat", u"Teas from small gardens, and all that goes with them.", 2);
    At<Form2>::click("Command2");
}

void walk_step_two(TempApp& app) {
    for (const char16_t* keyword : {u"green tea", u"black tea"}) {
        At<Form3>::type("Text1", keyword);
        At<Form3>::click("Command2");
    }
    app.desktop.expect(u"You must provide more than 3 keywords");
    At<Form3>::click("Command5");
    At<Form3>::type("Text1", u"teapot");
    At<Form3>::click("Command2"); // three will do
    At<Form3>::choose("List1", 0);
    for (const char16_t* sub : {u"sencha", u"matcha powder"}) {
        At<Form3>::type("Text2", sub);
        At<Form3>::click("Command3");
    }
    At<Form3>::choose("List1", 2);
    At<Form3>::type("Text2", u"cast iron");
    At<Form3>::click("Command3");
    At<Form3>::click("Command5");
}

void walk_step_three(TempApp& app) {
    app.desktop.always(u"words", Answer::ok); // a short box is told, and added all the same
    for (const char16_t* text :
         {u"Green tea is steamed or fired (never rolled hard), and a good garden picks it in spring.",
          u"A teapot of cast iron keeps the brew warm. Rinse it with water alone, and let it dry open.",
          u"Black tea travels well; it was made for long voyages, and it keeps its strength for years."}) {
        At<Form5>::type("rt1", text);
        At<Form5>::click("Command2");
    }
    At<Form5>::choose("List1", 1);
    At<Form5>::choose("lstkeyword", 2);
    app.desktop.expect(u"Keyword and Content selected has been tied");
    At<Form5>::click("cmdtie");
    At<Form5>::click("Command8");
    At<Form5>::click("Command1");
}

void walk_step_four(TempApp& app) {
    app.desktop.expect(u"You must enter an URL to host the gateway pages");
    At<Form7>::click("Command1");
    At<Form7>::type("Text2", u"http://www.teahouse.example/pages");
    At<Form7>::type("Text1", u"http://teas.example/");
    At<Form7>::click("Command2");
    At<Form7>::click("Command1");
}

/// Step 5, and Step 6 within its run: the first random page is given another name.
void walk_steps_five_and_six(TempApp& app) {
    At<Form6>::type("Combo2", u"7"); // the run makes it even
    screen<Form6>().Check9.value.from_user(true);
    app.desktop.on_modal = [&](Screen& shown) {
        ASSERT_EQ(shown.name, "Form17");
        At<Form17>::choose("List1", 0);
        At<Form17>::type("Text1", u"renamed-by-hand.htm");
        app.desktop.expect(u"File Name Changed.");
        At<Form17>::click("Command2");
        app.desktop.expect(u"Do you want to save this filename set?", Answer::no);
        At<Form17>::click("Command1");
    };
    app.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    At<Form6>::click("Command1");
}

/// Pages below a folder of the project, by name.
std::vector<Text> pages(const TempApp& app, const Text& folder) {
    return list_files(app.path(u"Projects/teahouse" + folder), u"*.htm");
}

bool has(const std::vector<Text>& names, const Text& name) {
    return std::any_of(names.begin(), names.end(), [&](const Text& each) { return same_text(each, name); });
}

TEST(WholeWizard, TakesANewProjectFromAnEmptyStoreToAFinishedTree) {
    TempApp app;
    screens().record<mdi1>();
    walk_step_one();
    ASSERT_TRUE(At<Form3>::on_top());
    walk_step_two(app);
    ASSERT_TRUE(At<Form5>::on_top());
    walk_step_three(app);
    ASSERT_TRUE(At<Form7>::on_top());
    walk_step_four(app);
    ASSERT_TRUE(At<Form6>::on_top());
    walk_steps_five_and_six(app);

    for (const auto& [table, rows] : std::initializer_list<std::pair<const char16_t*, int>>{{u"Projects", 1},
                                                                                            {u"keywords", 3},
                                                                                            {u"elements", 3},
                                                                                            {u"content", 3},
                                                                                            {u"ties", 1},
                                                                                            {u"host", 1},
                                                                                            {u"host1", 1},
                                                                                            {u"target", 1}})
        EXPECT_EQ(app.count(u"select * from " + Text(table)), rows) << to_utf8(table);
    ASSERT_NE(screen<Form6>().run, nullptr);
    EXPECT_TRUE(screen<Form6>().run->finished);
    EXPECT_TRUE(app.exists(u"teahouse.dat"));
    ASSERT_EQ(app.desktop.started.size(), 1u);
    EXPECT_TRUE(app.desktop.started[0].ends_with(u"sitemap-do-not-upload.htm"));

    EXPECT_TRUE(has(pages(app, u""), u"sitemap-do-not-upload.htm"));
    const std::vector<Text> folders = list_folders(app.path(u"Projects/teahouse"));
    EXPECT_EQ(folders, (std::vector<Text>{u"teas.example", u"www.teahouse.example-pages",
                                          u"www.teahouse.example-pages_More_Files"}));
    std::size_t renamed = 0, total = 0;
    for (const Text& folder : folders) {
        const std::vector<Text> here = pages(app, u"/" + folder);
        total += here.size();
        for (const Text& page : here) {
            renamed += contains(page, u"renamed-by-hand") ? 1 : 0;
            const Text text = read_text_file(app.path(u"Projects/teahouse/" + folder + u"/" + page));
            EXPECT_TRUE(contains(LCase(text), u"</html>")) << to_utf8(page);
        }
    }
    EXPECT_EQ(renamed, 1u);
    const Form12& report = screen<Form12>();
    EXPECT_EQ(report.List1.list_count(), 3);
    EXPECT_GE(total, 3u + 3u + 6u + 1u) << "first and second level, random, hallway, index";
    EXPECT_TRUE(report.Command2.enabled());
}

} // namespace
} // namespace twk
