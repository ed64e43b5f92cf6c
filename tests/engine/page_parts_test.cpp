// SPDX-License-Identifier: MIT
#include "engine/counting/keyword_counts.h"
#include "engine/decorations.h"
#include "engine/first_level.h"
#include "engine/page_head.h"
#include "engine/read_more.h"
#include "engine/second_level.h"
#include "inputs/form7.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/faults.h"
#include "support/lone_run.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

namespace fs = std::filesystem;
using test::fault_of;

/// A run with one keyword in the middle of a page.
class PageParts : public testing::Test, public test::LoneRun {
  protected:
    PageParts() {
        screen<Form2>().txt_name[0].text = u"shed";
        screen<Form7>().Text2.text = u"http://main.example/a\\b";
        module1().url_principal = u"http://target.example";
        fs::create_directories(to_utf8(app.path(u"Projects/shed/main.example-a-b")));
        find_folders(run.plan, run.page, form.choices);
        run.plan.extension = u".htm";
        form.Combo6.text = u"_";
        form.settings.meta_atributo = u"content";
        set_keywords({u"tool rack"});
        run.fase = 1;
    }

    /// What an action writes to the page, lines joined by "|".
    std::string written(const std::function<void()>& action) {
        const Text page = run.plan.main_folder + u"/page.htm";
        run.page.open(page);
        action();
        run.page.close();
        return to_utf8(Replace(read_text_file(page), u"\r\n", u"|"));
    }
    std::vector<Text> pages() const { return list_files(run.plan.main_folder, u"*"); }
};

TEST_F(PageParts, page_takes_its_place_when_it_is_finished) {
    const Text page = run.plan.main_folder + u"/Tool_Rack.htm";
    app.write(u"Projects/shed/main.example-a-b/tool_rack.htm", "old");
    run.page.open(page);
    EXPECT_EQ(run.page.pagina_actual, page);
    run.page.writeline(u"new");
    EXPECT_EQ(app.read(u"Projects/shed/main.example-a-b/tool_rack.htm"), "old");
    run.page.close();
    EXPECT_EQ(pages(), std::vector<Text>{u"Tool_Rack.htm"}); // no sibling is left
    EXPECT_EQ(read_text_file(page), u"new\r\n");
    EXPECT_EQ(run.page.pages_written, 1);
    EXPECT_EQ(run.page.bytes_written, 5);
    EXPECT_EQ(fault_of([&] { run.page.open(run.plan.main_folder + u"/../../other.htm"); }),
              fault_path_access);
}

TEST_F(PageParts, meta_tags_follow_their_switches) {
    EXPECT_EQ(written([&] { meta(run.page, form.choices, run.project, u"t", u"a,b"); }), "</head>|");
    form.settings.meta_title = form.settings.meta_description = form.settings.meta_keywords = 1;
    form.settings.meta_rating = 2; // on at exactly 1
    form.settings.frases[0] = u"About ";
    form.settings.revisit_dias = 30;
    form.Check1.value = true;
    run.project.proyecto.Description = u"Sheds.";
    EXPECT_EQ(
        written([&] { meta(run.page, form.choices, run.project, u"t", u" a , b "); }),
        "<meta name=\"Title\" content=\"t\">|"
        "<meta name=\"Description\" content=\"About t and a and b : Sheds.\">|"
        "<meta name=\"Keywords\" content=\"a , b\">|<meta name=\"Revisit-After\" content=\"30\">|</head>|");
    form.settings.meta_title = form.settings.meta_keywords = 0;
    form.Check1.value = false;
    EXPECT_EQ(written([&] { meta(run.page, form.choices, run.project, u"t", u"a"); }),
              "<meta name=\"Description\" content=\"Sheds.\">|</head>|");
}

TEST_F(PageParts, read_more_page_takes_a_second_name_and_then_writes_over_it) {
    run.project.proyecto.site_name = u"OakShed";
    Text t = u"Fit \"a\" shelf: 2+2 boards, <b>oak</b> or pine, and screws of brass";
    const Text before = t;
    const std::string folder = to_utf8(run.plan.main_folder) + "/";
    const std::string tail = "\">click Here</a>.</h4><br>";
    const std::string first = to_utf8(fs_rm(run, t));
    EXPECT_EQ(first, to_utf8(before) + "... <br><br><h4>To Read the Complete Article <a href=\"" + folder +
                         "fit_a_shelf_22_boards,_b_oak_b_or_rm.htm" + tail);
    EXPECT_EQ(to_utf8(t), first);
    EXPECT_EQ(run.mensaje_error, u"");
    const Text page = read_text_file(run.plan.main_folder + u"/fit_a_shelf_22_boards,_b_oak_b_or_rm.htm");
    EXPECT_TRUE(
        page.starts_with(u"<html><head><title>tool rack Complete Article</title>\r\n<body>\r\n<h1>Fit"));
    for (int again = 0; again < 2; ++again) {
        t = before + u" " + from_utf8(std::to_string(again));
        EXPECT_TRUE(to_utf8(fs_rm(run, t)).ends_with("fit_a_shelf_22_boards,_1_rm.htm" + tail));
    }
    EXPECT_EQ(pages().size(), 2U);
    EXPECT_TRUE(
        contains(read_text_file(run.plan.main_folder + u"/fit_a_shelf_22_boards,_1_rm.htm"), u"brass 1"));
    // Where there is no page to be had the link still stands.
    fs::remove_all(to_utf8(run.plan.main_folder));
    t = u"Lost";
    EXPECT_TRUE(to_utf8(fs_rm(run, t)).ends_with("lost_rm.htm" + tail));
}

} // namespace
} // namespace twk
