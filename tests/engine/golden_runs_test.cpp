#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

/// Whole runs with a fixed seed, compared page by page.
class GoldenRun : public testing::Test {
  protected:
    void expect_tree(const test::SampleProject& project, const std::string& golden_case) {
        EXPECT_TRUE(project.run().finished);
        test::expect_same_tree(app.path(project.folder()), golden_case);
    }
    test::TempApp app;
};

TEST_F(GoldenRun, plain_pages) {
    test::SampleProject project(app);
    EXPECT_TRUE(project.generate());
    expect_tree(project, "plain_pages");
    EXPECT_EQ(app.desktop.started, std::vector<Text>{app.path(project.folder(u"sitemap-do-not-upload.htm"))});
}

TEST_F(GoldenRun, every_switch_on) {
    test::SampleContent content;
    content.hosts = {u"http://second.example", u"http://third.example/x"};
    content.targets = {u"http://www.oakshed.example/shop", u"http://www.oakshed.example/plans"};
    test::SampleProject project(app, content);
    Form6& form = project.form;
    for (CheckBox* box : {&form.Check2, &form.Check3, &form.Check4, &form.Check5, &form.Check6, &form.Check7,
                          &form.Check8, &form.Check9, &form.Check13, &form.Check15})
        box->value = true;
    form.Option2.value = true;
    form.Text2.text = u"<!-- counter -->";
    form.Combo2.text = u"20";
    app.desktop.on_modal = [](Screen& names) { screens().fire(names, "Command1", "Click"); };
    app.desktop.always(u"Do you want to save this filename set?", Answer::no);
    EXPECT_TRUE(project.generate());
    expect_tree(project, "every_switch_on");
}

TEST_F(GoldenRun, long_text_goes_on_in_a_read_more_page) {
    test::SampleContent content;
    content.keywords = {{u"bench"}};
    content.boxes = {{u"Long ago."}, {u"Short."}};
    for (int i = 0; i < 70; ++i) content.boxes[0].text += u" The bench is made of oak and pine.";
    test::SampleProject project(app, content);
    project.form.settings.max_palabras = 500;
    project.form.Combo2.text = u"0";
    EXPECT_TRUE(project.generate());
    // The pages alone: their sizes, which the local site map tells, hang on the length of the link's path.
    test::expect_same_tree(app.path(project.main_folder()), "long_text");
    EXPECT_NE(
        app.read(project.folder(u"SITEMAP-DO-NOT-UPLOAD.HTM")).find("<tr><td bgcolor=#00ffff><a href=\""),
        std::string::npos);
}

} // namespace
} // namespace twk
