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

TEST_F(PageParts, picture_is_copied_once_under_the_page_s_name) {
    for (const char16_t* file : {u"aurora.jpg", u"dunes.gif", u"leaves.gif"})
        form.List1.add_item(app.path(u"Images/") + file);
    EXPECT_EQ(imagen(run, 2, u"alt", run.plan.main_folder, u"x"), u"");
    EXPECT_TRUE(pages().empty());
    std::set<Text> copies;
    for (int i = 0; i < 30; ++i) {
        const Text tag = imagen(run, 1, u"Alt, text", run.plan.main_folder, u"Tool Rack");
        const Text copy = contains(tag, u".gif") ? u"tool_rack.gif" : u"tool_rack.jpg";
        EXPECT_EQ(tag, u"<br><center><a href=\"http://target.example\"><img src=\"" + copy +
                           u"\" alt=\"Alt, text\" ></a><br>");
        copies.insert(copy);
    }
    EXPECT_EQ(pages(), std::vector<Text>(copies.begin(), copies.end()));
    EXPECT_TRUE(run.mensaje_error.starts_with(u"Copying image + Creating Tag " + app.path(u"Images/")));
    // A name that is there, in whatever case, is not copied again.
    app.write(u"Projects/shed/main.example-a-b/RACK.gif", "kept");
    app.write(u"Projects/shed/main.example-a-b/RACK.jpg", "kept");
    imagen(run, 3, u"", run.plan.main_folder, u"rack");
    EXPECT_EQ(app.read(u"Projects/shed/main.example-a-b/RACK.gif"), "kept");
    EXPECT_EQ(app.read(u"Projects/shed/main.example-a-b/RACK.jpg"), "kept");
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

TEST_F(PageParts, box_of_a_keyword_is_chosen_by_comparing_densities_with_numbers_of_boxes) {
    run.project.base_datos = app.hive();
    run.project.tabla_kw.cell(1) = u"shed";
    run.boxes.ultima_caja = 2;
    form.Combo9.text = u"5";
    form.settings.palabras_ancla[0] = u"and";
    form.settings.frases_link[0] = u"*KEYWORD*";
    const Text words = u"one two three four five six seven eight nine ten one two three four five six seven";
    for (int i = 0; i < 3; ++i)
        run.boxes.contenidos[static_cast<std::size_t>(i)] = u"box" + from_utf8(std::to_string(i)) + u" " +
                                                            words + u" " + words + u" " + words + u" " +
                                                            words + u" " + words;
    const auto shown = [&](std::int16_t d0, std::int16_t d1, std::int16_t d2) {
        run.boxes.densidades[0] = {d0};
        run.boxes.densidades[1] = {d1};
        run.boxes.densidades[2] = {d2};
        const Text page = TP1_content(run, 0);
        return to_utf8(Mid(page, InStr(page, u"box"), 4));
    };
    EXPECT_EQ(shown(0, 1, 1), "box1"); // 1 is not above 1, the number of the box held
    EXPECT_EQ(shown(0, 9, 2), "box2"); // the 9 is forgotten
    std::set<std::string> drawn;
    for (int i = 0; i < 40; ++i) drawn.insert(shown(9, 0, 0)); // the first box is as good as none
    EXPECT_EQ(drawn, (std::set<std::string>{"box0", "box1"})); // and the last is never drawn
}

TEST_F(PageParts, hidden_block_draws_a_filled_box_and_names_its_keyword) {
    run.project.tabla_kw.cell(1) = u"workbench";
    run.lista_kw = u" , k";
    run.boxes.contenidos[1] = u"text";
    form.Check3.value = true;
    const auto has_box = [this](std::int16_t boxes, const std::string& input) {
        return written([&] { write_second_level_end(run, boxes); }).find("|<input " + input + ">|<h3>") !=
               std::string::npos;
    };
    EXPECT_TRUE(has_box(2, R"(type=hidden name="workbench" content="text")"));
    run.boxes.contenidos[1].clear();
    EXPECT_EQ(fault_of([&] { has_box(2, ""); }), fault_project_lacks);
    run.boxes.contenidos[5] = u"more boxes than keywords";
    EXPECT_TRUE(has_box(6, R"(type=hidden name="" content="more boxes than keywords")"));
}

TEST(Surplus, last_occurrences_go) {
    const auto replaced = [](Text text, TextView find, int count) {
        replace_last(text, find, u"-", count);
        return to_utf8(text);
    };
    EXPECT_EQ(replaced(u"ab ab ab", u"ab", 1), "ab ab -");
    EXPECT_EQ(replaced(u"ab ab ab", u"ab", 5), "- - -");
    EXPECT_EQ(replaced(u"ab ab ab", u"ab", -1), "- - -");
    EXPECT_EQ(replaced(u"ab ab ab", u"ab", 0), "ab ab ab");
    EXPECT_EQ(replaced(u"aaa AA", u"aa", -1), "a- AA"); // pairs are formed from the end
    EXPECT_THROW(replaced(u"ab", u"ab", -2), RuntimeFault);
}

} // namespace
} // namespace twk
