// SPDX-License-Identifier: MIT
#include "inputs/form7.h"
#include "platform/file_system.h"
#include "platform/html.h"
#include "reports/form12.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

namespace fs = std::filesystem;
using test::SampleContent;
using test::SampleProject;

/// Files of a generated site, and where its links lead.
class SiteLinks {
  public:
    SiteLinks(const SampleProject& project, const test::TempApp& app)
        : folder_(to_utf8(app.path(project.folder()))), main_(to_utf8(app.path(project.main_folder()))) {}

    /// Fails for every link or picture of a page that leads to no file of the site. Links to other sites and
    /// the user's own page of local paths are left alone.
    void check() const {
        for (const auto& entry : fs::recursive_directory_iterator(folder_))
            if (entry.is_regular_file() && entry.path().parent_path() != folder_ &&
                entry.path().extension() == ".htm")
                check_page(entry.path());
    }

  private:
    void check_page(const fs::path& page) const {
        const Text html = read_text_file(from_utf8(page.string()));
        std::vector<Text> links = page_links(html);
        for (const TextView piece : split_views(html, u"<img src=\""))
            if (piece.data() != html.data()) links.emplace_back(piece.substr(0, piece.find(u'"')));
        for (const Text& link : links) {
            if (leads_away(link)) continue;
            EXPECT_TRUE(found(page, link)) << page.filename() << " links to " << to_utf8(link);
        }
    }

    static Text main_host() { return screen<Form7>().Text2.text(); }

    static bool leads_away(const Text& link) {
        if (!link.starts_with(u"http://")) return false;
        bool own = link.starts_with(main_host());
        for (const Text& host : screen<Form7>().List1.entries()) own = own || link.starts_with(host);
        return !own;
    }

    /// The pages of the main host's two folders are uploaded to one place.
    bool found(const fs::path& page, const Text& link) const {
        const fs::path more(main_.string() + "_More_Files");
        if (link.starts_with(u"/")) return fs::exists(to_utf8(link)); // a read-more page by its local path
        if (link.starts_with(u"http://")) {
            const std::size_t cut =
                link.find_last_of(u"/\\"); // before a destination's latest page stands "\"
            const std::string name = to_utf8(link.substr(cut + 1));
            const Text host = link.substr(0, cut);
            if (host == main_host()) return fs::exists(main_ / name) || fs::exists(more / name);
            return fs::exists(folder_ / to_utf8(Replace(Replace(host, u"http://", u""), u"/", u"-")) / name);
        }
        const fs::path here = page.parent_path();
        if (fs::exists(here / to_utf8(link))) return true;
        return here == more && fs::exists(main_ / to_utf8(link));
    }

    fs::path folder_, main_;
};

/// Whole runs with a fixed seed, compared page by page; no link of theirs leads nowhere.
class WholeSite : public testing::Test {
  protected:
    static SampleContent with_hosts(std::vector<Text> targets = {}) {
        SampleContent content;
        content.hosts = {u"http://one.example", u"http://two.example/dir"};
        content.targets = std::move(targets);
        return content;
    }
    /// Sets every switch of the decorations.
    static void decorate(Form6& form, bool on) {
        for (CheckBox* box : {&form.Check1, &form.Check2, &form.Check3, &form.Check4, &form.Check6,
                              &form.Check7, &form.Check8, &form.Check12, &form.Check14})
            box->value = on;
    }
    static void use(Form6& form, std::size_t table, TextView pages, TextView redirecting) {
        choose_option(form.Template, table);
        form.Combo2.text = Text(pages);
        form.Combo3.text = Text(redirecting);
        screen<Form2>().txt_dat[0].text = u"Building sheds";
        screen<Form2>().txt_dat[1].text = u"Home and Garden";
    }
    void generate_and_compare(SampleProject& project, const std::string& golden) {
        ASSERT_TRUE(project.generate());
        ASSERT_TRUE(project.run().finished);
        SiteLinks(project, app).check();
        test::expect_same_tree(app.path(project.folder()), golden);
    }
    void add_synonym(const Text& word, const Text& other) {
        app.synonyms().Execute(u"insert into synonyms ( keyword , synonyms ) values ( '" + word + u"' , '" +
                               other + u"' )");
    }

    test::TempApp app;
};

TEST_F(WholeSite, plain_pages) {
    SampleProject project(app);
    generate_and_compare(project, "plain_pages");
    EXPECT_EQ(app.desktop.started, std::vector<Text>{app.path(project.folder(u"sitemap-do-not-upload.htm"))});
}

TEST_F(WholeSite, every_switch_on) {
    SampleContent content;
    content.hosts = {u"http://second.example", u"http://third.example/x"};
    content.targets = {u"http://www.oakshed.example/shop", u"http://www.oakshed.example/plans"};
    SampleProject project(app, content);
    Form6& form = project.form;
    for (CheckBox* box : {&form.Check2, &form.Check3, &form.Check4, &form.Check5, &form.Check6, &form.Check7,
                          &form.Check8, &form.Check9, &form.Check13, &form.Check15})
        box->value = true;
    form.Option2.value = true;
    form.Text2.text = u"<!-- counter -->";
    form.Combo2.text = u"20";
    app.desktop.on_modal = [](Screen& names) { screens().fire(names, "Command1", "Click"); };
    app.desktop.always(u"Do you want to save this filename set?", Answer::no);
    generate_and_compare(project, "every_switch_on");
}

TEST_F(WholeSite, long_text_goes_on_in_a_read_more_page) {
    SampleContent content;
    content.keywords = {{u"bench"}};
    content.boxes = {{u"Long ago."}, {u"Short."}};
    for (int i = 0; i < 70; ++i) content.boxes[0].text += u" The bench is made of oak and pine.";
    SampleProject project(app, content);
    project.form.settings.max_palabras = 500;
    project.form.Combo2.text = u"0";
    EXPECT_TRUE(project.generate());
    // The pages alone: their sizes, which the local site map tells, hang on the length of the link's path.
    test::expect_same_tree(app.path(project.main_folder()), "long_text");
    EXPECT_NE(
        app.read(project.folder(u"SITEMAP-DO-NOT-UPLOAD.HTM")).find("<tr><td bgcolor=#00ffff><a href=\""),
        std::string::npos);
}

TEST_F(WholeSite, plain_without_hosts) {
    SampleProject project(app);
    use(project.form, 0, u"4", u"0");
    decorate(project.form, false);
    project.form.Check14.value = true;
    generate_and_compare(project, "site_no_table");
    const Form12& report = screen<Form12>();
    EXPECT_EQ(report.List1.list_count(), 3);
    EXPECT_EQ(report.List2.list_count(), 4);
    EXPECT_EQ(report.List3.list_count(), 1); // names without an extension: only the index page is seen
    EXPECT_EQ(report.ProgressBar1.value(), 100);
}

TEST_F(WholeSite, table_1_all_decorated_every_page_redirecting) {
    SampleProject project(app, with_hosts({u"http://other.example/a", u"http://other.example/b"}));
    use(project.form, 1, u"6", u"100");
    decorate(project.form, true);
    project.form.Check13.value = true;
    project.form.Check15.value = true;
    project.form.Check9.value = true;
    app.desktop.always(u"Do you want to save this filename set?", Answer::no);
    app.desktop.on_modal = [](Screen& shown) { screens().fire(shown, "Command1", "Click"); };
    generate_and_compare(project, "site_table_1");
    const Form12& report = screen<Form12>();
    EXPECT_EQ(report.List3.list_count(), 9); // six pages and an index page per destination
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(report.informe[static_cast<std::size_t>(report.inicio3 + i)].redirect,
                  report.List3.list(i) == u"index.htm" ? u"NO" : u"YES");
    EXPECT_EQ(module1().paso6_cancelado, u"1"); // the next run takes it for a Cancel
    EXPECT_FALSE([&] {
        project.generate();
        return project.run().finished;
    }());
}

TEST_F(WholeSite, table_2_with_synonyms) {
    SampleProject project(app, with_hosts());
    use(project.form, 2, u"6", u"30");
    decorate(project.form, false);
    project.form.Check5.value = true;
    project.form.settings.indice_extra = 0;
    add_synonym(u"rake", u"fork");
    add_synonym(u"shed", u"hut");
    app.desktop.expect(u"Are you sure", Answer::yes);
    app.desktop.expect(u"Some files needed for this template will be copied along with the generated pages.\n"
                       u"The source for these files is ");
    ASSERT_TRUE(screens().dispatch([&] { project.form.Command1_Click(); }));
    SiteLinks(project, app).check();
    test::expect_same_tree(app.path(project.folder()), "site_table_2");
}

TEST_F(WholeSite, table_3_with_a_hallway_template) {
    SampleProject project(app, with_hosts());
    use(project.form, 3, u"6", u"30");
    decorate(project.form, true);
    project.form.Option1_Click();
    app.write(u"hall.htm", "<html>\r\n<!-- URLKeyword -->x<!-- //URLKeyword --> and\r\n"
                           "<!-- URLKeyword -->y<!-- //URLKeyword -->\r\n</html>");
    project.form.checkBulgaro.value = true;
    project.form.plantilla_sitemap = app.path(u"hall.htm");
    generate_and_compare(project, "site_table_3");
    EXPECT_EQ(app.read(project.main_folder(u"sitemap.htm")),
              " \r\n <html> \r\n <a href=\"garden_shed.htm\">garden shed</a>and \r\n "
              "<a href=\"tool_rack.htm\">tool rack</a>\r\n </html>\r\n");
}

/// Settings that no loop could end on: told as what the project lacks.
TEST_F(WholeSite, a_single_keyword_ends_in_a_fault_that_says_so) {
    SampleContent content;
    content.keywords.resize(1);
    content.boxes[2].tied.clear();
    SampleProject project(app, content);
    use(project.form, 0, u"2", u"0");
    project.form.Combo4.text = u"101"; // every page links to the target
    app.desktop.expect(u"Are you sure", Answer::yes);
    app.desktop.expect(u"one keyword only: a random page that links needs a second one");
    EXPECT_FALSE(screens().dispatch([&] { project.form.Command1_Click(); }));
    project.form.Combo2.text = u"0";
    project.form.Check14.value = false;
    app.desktop.expect(u"Are you sure", Answer::yes);
    app.desktop.expect(u"the hallway page needs a second one");
    EXPECT_FALSE(screens().dispatch([&] { project.form.Command1_Click(); }));
    project.form.Check14.value = true;
    EXPECT_TRUE(project.generate());
}

TEST_F(WholeSite, a_hallway_template_keeps_to_its_rows_and_markers) {
    SampleProject project(app);
    use(project.form, 0, u"0", u"0");
    project.form.checkBulgaro.value = true;
    project.form.plantilla_sitemap = app.path(u"hall.htm");
    const auto hallway = [&](const std::string& source) {
        app.write(u"hall.htm", source);
        EXPECT_TRUE(project.generate());
        return app.read(project.main_folder(u"sitemap.htm"));
    };
    EXPECT_EQ(hallway("plain\r\n\r\n text"), " \r\n plain \r\n  \r\n  text\r\n");
    EXPECT_EQ(hallway(""), "");
}

} // namespace
} // namespace twk
