// SPDX-License-Identifier: MIT
#include "engine/keyword_table.h"
#include "inputs/form7.h"
#include "reports/form12.h"
#include "settings/form6.h"
#include "shell/form2.h"
#include "support/faults.h"
#include "support/temp_app.h"

#include <gtest/gtest.h>

namespace twk {
namespace {

using test::fault_of;

class Report : public testing::Test {
  protected:
    Report() : form(start()) {
        KeywordTable keywords;
        keywords.resize(4);
        keywords.cell(0) = u"Garden Shed";
        keywords.cell(1) = u"roof";
        keywords.cell(2) = u"";
        screen<Form6>().Combo2.text = u"0";
        form.reporte2(0);
        form.Reporte(keywords, 3); // 2 * 3 + 1 + 10 places behind the first
    }
    static Form12& start() {
        screen<Form2>().txt_name[0].text = u"shed";
        screen<Form7>().Text2.text = u"http://pages.example/sheds";
        return screen<Form12>();
    }
    /// Writes the page beside the program and has it analysed at the index.
    const PageAnalysis& analyse(const std::string& html, int kind = 1, std::int16_t index = 0) {
        app.write(u"page.htm", html);
        form.reporte2_2(app.path(u"page.htm"), from_utf8(html), index, kind, u"first.htm", u"YES", u"note");
        return form.informe.at(static_cast<std::size_t>(index));
    }

    test::TempApp app;
    Form12& form;
};

TEST_F(Report, measures_body_and_title_by_their_own_rules) {
    const PageAnalysis& page = analyse(
        "<html><head><title>roof on a garden shed roof</title><style>roof</style></head><body>"
        "<!-- url http://h/x.htm --><a href=a>garden  shed</a> roof roofs <script>roof</script> Roof<br>one two"
        "<a href=b>x</a></body></html>");
    EXPECT_EQ(page.words, u"7"); // a line end parts two of them
    EXPECT_EQ(keyword_texts(page, 0).count, u"1");
    EXPECT_EQ(keyword_texts(page, 0).density, u"14.29");
    EXPECT_EQ(keyword_texts(page, 1).count, u"2"); // part of a word counts, capitals do not
    EXPECT_EQ(keyword_texts(page, 1).density, u"28.57");
    EXPECT_EQ(keyword_texts(page, 2).count, u""); // an empty keyword is left out
    EXPECT_EQ(page.title, u"roof on a garden shed roof");
    EXPECT_EQ(page.title_words, u"6");
    EXPECT_EQ(keyword_texts(page, 0).title_density, u"25"); // four blanks once the phrase is one piece
    EXPECT_EQ(keyword_texts(page, 1).title_count, u"2");
    EXPECT_EQ(page.url, u" http://h/x.htm ");
    EXPECT_EQ(page.links, u"1"); // one is left out
    EXPECT_EQ(page.file, u"page.htm");
    EXPECT_EQ(page.links_to + page.redirect, u"");
    EXPECT_EQ(form.xKeyWords[0], u"garden shed");
}

TEST_F(Report, leaves_empty_what_cannot_be_computed) {
    const PageAnalysis& bare = analyse("<html><body><!-- a --><!-- url x --></body></html>", 3);
    EXPECT_EQ(bare.words, u"0");
    EXPECT_EQ(keyword_texts(bare, 0).count, u"0");
    EXPECT_EQ(keyword_texts(bare, 0).density, u"");
    EXPECT_EQ(bare.title + bare.title_words + keyword_texts(bare, 0).title_count, u"");
    EXPECT_EQ(bare.url, u""); // a comment ends before it
    EXPECT_EQ(bare.links, u"-1");
    EXPECT_EQ(bare.links_to, u"first.htm");
    EXPECT_EQ(bare.redirect, u"YES");
    const PageAnalysis& reversed = analyse("</title><title>x", 2);
    EXPECT_EQ(reversed.title, u"");
    EXPECT_EQ(reversed.title_words, u"0");
    EXPECT_EQ(reversed.redirect, u"");
    std::string crowd = "<title>";
    for (int i = 0; i < 328; ++i) crowd += "roof ";
    const PageAnalysis& many = analyse(crowd + "</title>");
    EXPECT_EQ(keyword_texts(many, 1).title_count, u"328");
    EXPECT_EQ(keyword_texts(many, 1).title_density, u""); // does not fit into 16 bits
}

TEST_F(Report, ignores_pages_past_its_end) {
    std::int16_t index = 18;
    form.reporte2_2(app.path(u"gone.htm"), u"<title>x</title>", index, 1, u"", u"", u"");
    EXPECT_EQ(form.informe.size(), 18U);
    form.reporte_nivel2(16, 20);
    EXPECT_EQ(form.List2.list_count(), 2);
    EXPECT_EQ(fault_of([this] { form.Show_reporte(2, 2); }), fault_subscript);
}

TEST_F(Report, shortens_long_paths_and_names) {
    std::int16_t index = 0;
    const auto status = [&](std::size_t length) {
        const Text path = u"/" + Text(length - 5, u'p') + u".htm";
        form.reporte2_2(path, u"", index, 1, u"", u"", u"");
        return Len(form.Label2.caption()) - Len(u"Creating + Analizing ");
    };
    EXPECT_EQ(status(70), 70);
    EXPECT_EQ(status(71), 63);
    form.reporte2_3(1);
    form.reporte_nivel2(0, 1);
    form.reporte_nivel3(0, 1);
    EXPECT_EQ(Len(form.List1.list(0)), 35);
    EXPECT_EQ(Len(form.List2.list(0)), 40);
    EXPECT_EQ(Len(form.List3.list(0)), 50);
    form.reporte2_2(u"/a/x.html", u"", index, 1, u"", u"", u"");
    EXPECT_EQ(form.informe[0].file, u"xl.htm");
}

} // namespace
} // namespace twk
