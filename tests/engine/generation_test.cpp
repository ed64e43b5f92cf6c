// SPDX-License-Identifier: MIT
#include "engine/form17.h"
#include "engine/generation.h"
#include "engine/text_toolkit.h"
#include "reports/form12.h"
#include "shell/module1.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

namespace fs = std::filesystem;

class GenerationRun : public testing::Test {
  protected:
    /// A file of the user's in the project's folder, which the next run is to erase.
    void leave_old_file(const Text& folder) {
        fs::create_directories(to_utf8(app.path(folder)));
        app.write(folder + u"/old.htm", "old");
    }
    /// The click, with whatever messages the test has scripted.
    static bool click(Form6& form) {
        return screens().dispatch([&form] { form.Command1_Click(); });
    }
    std::vector<std::string> files_in(const Text& folder) const {
        std::vector<std::string> names;
        for (const Text& name : list_files(app.path(folder), u"*")) names.push_back(to_utf8(name));
        return names;
    }

    test::TempApp app;
};

TEST_F(GenerationRun, missing_extension_is_refused_before_anything_but_the_settings_is_written) {
    test::SampleProject project(app);
    leave_old_file(project.folder());
    project.form.Combo10.text = u" . ";
    project.form.Combo2.text = u"21";
    fs::remove(to_utf8(app.path(u"shed.dat")));
    app.desktop.expect(u"You need to enter a file extension.");
    EXPECT_TRUE(click(project.form));
    EXPECT_TRUE(app.exists(u"shed.dat"));
    EXPECT_EQ(project.form.Combo2.text(), u"20"); // made even first
    EXPECT_TRUE(app.exists(project.folder(u"old.htm")));
    EXPECT_FALSE(project.form.informe_activo);
}

TEST_F(GenerationRun, no_at_the_question_ends_it) {
    test::SampleProject project(app);
    leave_old_file(project.folder());
    app.desktop.expect(u"project's directories.\nAre you sure you want to proceed?", Answer::no);
    EXPECT_TRUE(click(project.form));
    EXPECT_EQ(app.desktop.messages.back().title, u"Create Pages?");
    EXPECT_TRUE(app.desktop.warned_of(project.folder()));
    EXPECT_TRUE(app.exists(project.folder(u"old.htm")));
    EXPECT_FALSE(screens().is_loaded<Form12>());
}

TEST_F(GenerationRun, step_6_names_the_pages_and_its_cancel_leaves_the_old_ones) {
    test::SampleContent content;
    content.hosts = {u"http://second.example"};
    test::SampleProject project(app, content);
    leave_old_file(project.folder());
    project.form.Check9.value = true;
    project.form.Combo3.text = u"0";
    project.form.Combo2.text = u"4";
    app.desktop.on_modal = [](Screen& shown) {
        const Form17& names = screen<Form17>();
        EXPECT_EQ(names.Label46.caption(),
                  u"You will be creating 4 Random-Generated Pages. You can change their names here.");
        EXPECT_EQ(names.List1.list_count(), 4);
        EXPECT_EQ(names.List1.list(0), u"cedar_roof_cedar_roof_a.htm");
        EXPECT_EQ(names.List2.list(1), u"http://pages.oakshed.example/sheds");
        EXPECT_EQ(names.List2.list(2), u"http://second.example");
        screens().fire(shown, "Command9", "Click");
    };
    EXPECT_TRUE(project.generate());
    EXPECT_EQ(module1().paso6_cancelado, u"0");
    EXPECT_TRUE(app.desktop.said.back().starts_with(u"No pages written: Step 6 ended the run."));
    EXPECT_FALSE(screens().is_loaded<Form17>());
    EXPECT_TRUE(app.exists(project.folder(u"old.htm")));
    const twk::Run& run = project.run();
    EXPECT_FALSE(run.finished);
    EXPECT_EQ(run.project.terminos,
              (std::vector<Text>{u"cedar roof", u"Small Garden Shed", u"Garden Shed ", u"Tool Rack ",
                                 u"folding workbench", u"workbench ", u""}));
    EXPECT_EQ(run.project.tabla_kw.at(0, 0), u"Garden Shed"); // not measured yet
    EXPECT_EQ(run.project.tabla_kw.at(1, 1), u"OakShed");     // stands in for subkeywords, and is no term
    EXPECT_EQ(run.project.tabla_kw.at(3, 1), u"OakShed");     // in the empty row behind the last, too
}

TEST_F(GenerationRun, too_few_pictures_leave_an_empty_tree) {
    test::SampleProject project(app);
    leave_old_file(project.folder());
    for (const auto& file : fs::directory_iterator(to_utf8(app.path(u"Images"))))
        if (file.is_regular_file() && file.path().extension() == ".gif") fs::remove(file.path());
    fs::remove(to_utf8(app.path(u"Images/aurora.jpg")));
    app.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    app.desktop.expect(app.path(u"Images Must have more than 3 images (*.gif or *.jpg)"));
    EXPECT_TRUE(click(project.form));
    EXPECT_FALSE(app.exists(project.folder(u"old.htm")));
    EXPECT_TRUE(fs::is_empty(to_utf8(app.path(project.main_folder()))));
}

TEST_F(GenerationRun, fault_tells_stage_and_page_and_leaves_what_was_written) {
    test::SampleContent content;
    test::SampleProject project(app, content);
    app.run_unfenced("update keywords set keyword = 'carpenter''s bench' where keyword = 'workbench'");
    app.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    app.desktop.expect(u"Run-time error '3075':");
    EXPECT_FALSE(click(project.form));
    EXPECT_TRUE(contains(app.desktop.last_message(), u"Page: " + app.path(project.main_folder())));
    const std::vector<std::string> files = files_in(project.main_folder());
    EXPECT_EQ(std::count(files.begin(), files.end(), "garden_shed.htm"), 1);
    EXPECT_EQ(std::count(files.begin(), files.end(), "tool_rack.htm"), 1);
    // The page under way stands empty beside the sibling that was to become it.
    for (const char16_t* const name : {u"carpenters_bench.htm", u"carpenters_bench.htmaux"}) {
        EXPECT_TRUE(app.exists(project.main_folder(name))) << to_utf8(name);
        EXPECT_EQ(app.read(project.main_folder(name)), "");
    }
    EXPECT_FALSE(project.run().finished);
}

TEST_F(GenerationRun, fault_in_a_later_phase_bears_its_stage) {
    test::SampleProject project(app);
    app.desktop.on_events = [&project] {
        if (project.form.run != nullptr && project.run().fase == 2) project.form.settings.frases_link = {};
    };
    app.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    app.desktop.expect(u"Run-time error '1001':");
    EXPECT_FALSE(click(project.form));
    EXPECT_TRUE(contains(app.desktop.last_message(), u"\n\nError creating Second Level page.\n\nPage: "));
    EXPECT_EQ(project.run().cuenta1, 3);
}

TEST_F(GenerationRun, the_count_of_a_title_respaces_its_words_for_the_rest_of_the_page) {
    test::SampleContent content;
    content.site_name = u"SPA";
    content.keywords[0] = {u"sheds<oak", {u"Cart  Rent Of"}};
    test::SampleProject project(app, content);
    project.form.Check12.value = true;
    project.form.settings.palabras_extracto = 3;
    project.form.settings.palabras_minimas = 4;
    project.form.settings.meta_title = 1;
    int reported = 0;
    app.desktop.on_events = [&] { // a page that is whole is no longer under way
        if (!screens().is_loaded<Form12>() || !screen<Form12>().Label2.caption().starts_with(u"Creating"))
            return;
        EXPECT_EQ(project.run().page.pagina_actual, u"");
        ++reported;
    };
    ASSERT_TRUE(project.generate());
    EXPECT_GT(reported, 0);
    const auto page_with = [&](TextView part) {
        for (const Text& name : list_files(app.path(project.main_folder()), u"*"))
            if (const Text page = read_text_file(app.path(project.main_folder(name))); contains(page, part))
                return page;
        return Text();
    };
    const Text second = page_with(u"<title>Cart Rent Of SPA</title>");
    EXPECT_TRUE(contains(second, u"name=\"Title\" content=\"Cart Rent Of\""));
    EXPECT_TRUE(contains(second, u"<b>Cart  Rent Of</b>")); // the stack of links shows what is stored
    const Text first = page_with(u"<title>sheds <oak");
    EXPECT_TRUE(contains(first, u"<h1>sheds <oak > SPA</h1>"));
    EXPECT_TRUE(contains(first, u"<b>sheds<oak</b>"));
}

TEST_F(GenerationRun, second_click_while_pages_are_written_does_nothing) {
    test::SampleProject project(app);
    int clicks = 0;
    app.desktop.on_events = [&] {
        if (project.form.run == nullptr || project.run().fase < 1) return;
        EXPECT_TRUE(click(project.form)); // an unexpected question would fail the test
        ++clicks;
    };
    EXPECT_TRUE(project.generate());
    EXPECT_GT(clicks, 0);
    EXPECT_TRUE(project.run().finished);
    app.desktop.on_events = nullptr;
    EXPECT_TRUE(project.generate()); // the next one runs again
    EXPECT_TRUE(project.run().finished);
}

TEST_F(GenerationRun, report_is_closed_to_the_user_while_it_is_written_and_open_behind_a_fault) {
    test::SampleProject project(app);
    EXPECT_TRUE(project.generate());
    Form12& report = screen<Form12>();
    EXPECT_TRUE(report.List1.enabled() && report.Command2.enabled() && report.Command3.enabled());
    const std::string pages = std::to_string(project.run().page.pages_written);
    EXPECT_EQ(to_utf8(report.lbl_progress.caption()), "Page " + pages + " of " + pages);
    screens().fire<Form12>("List1", "Click");
    report.Show_reporte(0, 1);

    bool seen = false;
    app.desktop.on_events = [&] {
        if (project.run().fase != 2) return;
        seen = true;
        for (const ListBox* list : {&report.List1, &report.List2, &report.List3})
            EXPECT_FALSE(list->enabled() || list->list_count() > 0);
        EXPECT_FALSE(report.RichTextBox1.enabled() || report.Command2.enabled() || report.Command3.enabled());
        EXPECT_EQ(report.RichTextBox1.text(), u"");
        screens().close(screens().record<Form12>());
        screens().close(screens().record<Form6>());
        EXPECT_TRUE(screens().is_loaded(report) && screens().is_loaded(project.form));
        project.form.settings.frases_link = {}; // faulty
    };
    app.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    app.desktop.expect(u"Run-time error '1001':");
    EXPECT_FALSE(click(project.form));
    EXPECT_TRUE(seen);
    EXPECT_TRUE(report.Command2.enabled());
    EXPECT_EQ(report.Label2.caption() + report.lbl_progress.caption(), u"");
    screens().close(screens().record<Form12>());
    EXPECT_FALSE(screens().is_loaded<Form12>());
}

/// All keywords of a box are counted together; `densidad` counts one by one.
TEST_F(GenerationRun, boxes_have_the_densities_of_one_count_after_the_other) {
    test::SampleContent content;
    const Text opening(highlight_opening);
    content.keywords.push_back({u"a $ b"});
    content.keywords.push_back({u"rose garden"});
    for (const Text& text :
         {Text(u"rose garden rose garden<b>rose garden</b> and a $ b a $$$ b shed"),
          Text(u"rose$$$garden $ b"),
          u"rose <sp" + opening + u"an style=\"background-color: #FFFF97\">rose garden</b> rose garden"})
        content.boxes.push_back({text});
    test::SampleProject project(app, content);
    ASSERT_TRUE(project.generate());
    const twk::Run& run = project.run();
    int found = 0;
    for (std::size_t b = 0; b < content.boxes.size(); ++b)
        for (int k = 0; k < run.project.n_keywords; ++k) {
            Text keyword = run.project.tabla_kw.at(k);
            const double wanted = densidad(run.boxes.contenidos[b], keyword);
            EXPECT_EQ(run.boxes.densidades[b].at(static_cast<std::size_t>(k)), wanted) << b << ' ' << k;
            found += wanted > 0 ? 1 : 0;
        }
    EXPECT_GT(found, 5);
}

TEST_F(GenerationRun, preparation_faults_come_before_anything_is_erased) {
    test::SampleContent content;
    for (int i = 0; i < 98; ++i) content.boxes.push_back({u"A box.", {}}); // 102 of them
    test::SampleProject project(app, content);
    leave_old_file(project.folder());
    app.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    app.desktop.expect(u"Run-time error '9':");
    EXPECT_FALSE(click(project.form));
    EXPECT_TRUE(contains(app.desktop.last_message(),
                         u"there was an error preparing project properties (keywords, content boxes, hosts"));
    project.form.Combo2.text = u"2"; // less than one redirecting page
    app.desktop.expect(u"Are you sure you want to proceed?", Answer::yes);
    app.desktop.expect(u"Run-time error '11':");
    EXPECT_FALSE(click(project.form));
    EXPECT_TRUE(app.exists(project.folder(u"old.htm")));
}

} // namespace
} // namespace twk
