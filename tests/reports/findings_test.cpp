// SPDX-License-Identifier: MIT
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "reports/charts.h"
#include "reports/findings.h"
#include "reports/report_csv.h"
#include "reports/report_html.h"
#include "support/temp_app.h"

#include <functional>

#include <gtest/gtest.h>

namespace twk {
namespace {

/// Two pages of two tied keywords, each linked, with nothing to find.
SiteReport good_site() {
    SiteReport site;
    site.facts = {.boxes = {u"soil", u"seeds"},
                  .keywords = {{u"soil", u"clay"}, {u"seed"}},
                  .min_words = 100,
                  .max_words = 500};
    site.keywords = {u"soil", u"seed"};
    site.destinations = {{.folder = u"h", .server = u"http://h", .pages = 2, .reported = 2}};
    for (const int k : {0, 1}) {
        PageRow row{.kind = 1, .destination = 0, .words = 200, .kb = 5, .links_in = 1};
        row.title = site.keywords[static_cast<std::size_t>(k)] + u" of the garden";
        row.file = to_text(k) + u".htm";
        row.address = u"http://h/" + row.file;
        row.own_count = 4;
        row.own_density = 2;
        row.made.keyword = static_cast<std::int16_t>(k);
        row.made.boxes = {static_cast<std::uint8_t>(k)};
        row.made.choice = BoxChoice::tied;
        site.pages.push_back(row);
        site.densities.insert(site.densities.end(), {2, 0});
    }
    return site;
}

TEST(Findings, each_rule_finds_its_case_and_no_other_one) {
    const auto emptied = [](int kind, int density, int units) {
        return [=](SiteReport& site) {
            PageRow& row = site.pages[0];
            row.kind = kind;
            row.made.units = units;
            row.made.empty_text = true;
            row.made.fittings[0] = {static_cast<std::int16_t>(density), 0, true, true};
        };
    };
    struct Case {
        std::function<void(SiteReport&)> change;
        std::string_view rule;
        TextView tells; ///< in why or remedy
        std::size_t pages, items;
    };
    const Case cases[] = {
        {emptied(3, 0, 10001), "empty-body", u"1.d and 1.f", 1, 0},
        {emptied(3, 0, 9999), "empty-body", u"1.e and 1.g", 1, 0},
        {emptied(1, 0, 0), "empty-body", u"3.a", 1, 0},
        {emptied(3, 51, 9999), "empty-body", u"over 50", 1, 0},
        {emptied(3, 1, 99), "empty-body", u"too few words", 1, 0},
        {[](SiteReport& s) { s.pages[0].words = 99; }, "few-words", u"1.a", 1, 0},
        {[](SiteReport& s) { s.pages[1].words = 501; }, "many-words", u"1.b", 1, 0},
        {[](SiteReport& s) { s.pages[0].title = u"garden"; }, "keyword-not-in-title", u"3.d", 1, 0},
        {[](SiteReport& s) { s.pages[0].own_count = 0; }, "keyword-not-in-body", u"6.c", 1, 0},
        {[](SiteReport& s) { s.pages[0].own_density = 5.1; }, "density", u"5 %", 1, 0},
        {[](SiteReport& s) { s.pages[0].own_density = 0.9; }, "density", u"5 %", 1, 0},
        {[](SiteReport& s) { s.pages[0].title = u"Seed and soil", s.pages[1].title = u"seed and soil "; },
         "same-title", u"one title", 2, 0},
        {[](SiteReport& s) { s.pages[1].address = u"http://h/0.HTM"; }, "same-file", u"replaces", 2, 1},
        {[](SiteReport& s) { s.pages[1].links_in = 0; }, "not-linked", u"3.f", 1, 0},
        {[](SiteReport& s) { s.pages[1].kb = 100.1; }, "heavy-page", u"2.a", 1, 0},
        {[](SiteReport& s) { s.destinations.push_back({.folder = u"x", .server = u"http://x"}); },
         "empty-destination", u"more gateway directories", 0, 1},
        {[](SiteReport& s) { s.destinations.push_back({.folder = u"x", .server = u"y", .pages = 3}); },
         "empty-destination", u"2.h", 0, 1},
        {[](SiteReport& s) { s.facts.boxes.push_back(u"rain"); }, "box-never-drawn", u"Tie it", 0, 1},
        {[](SiteReport& s) { s.pages[1].made.choice = BoxChoice::drawn; }, "keyword-without-box", u"Step 3",
         1, 1},
    };
    EXPECT_TRUE(find_findings(good_site()).empty());
    for (const Case& each : cases) {
        SiteReport site = good_site();
        each.change(site);
        const std::vector<Finding> found = find_findings(site);
        ASSERT_EQ(found.size(), 1U) << each.rule;
        EXPECT_EQ(found[0].rule, each.rule);
        EXPECT_TRUE(contains(found[0].why + found[0].remedy, each.tells)) << to_utf8(found[0].why);
        EXPECT_EQ(found[0].pages.size(), each.pages) << each.rule;
        EXPECT_EQ(found[0].items.size(), each.items) << each.rule;
    }
}

TEST(Findings, links_are_followed_over_folders_servers_and_shared_lists) {
    test::TempApp app;
    LinkBook book;
    const Text project = app.path(u"Projects/p");
    book.begin({u"http://h", u"http://o/notes"}, project);
    const auto page = [&](TextView path, const Text& html, TextView siblings = {}) {
        PageAnalysis each;
        each.path = project + u"/" + Text(path);
        each.kind = u"3";
        each.leads_to = book.read(each.path, html, siblings);
        return each;
    };
    const Text row = u"<a href=\"b.htm\">b</a> | <a href=\"c.htm\">c</a> | ";
    const std::vector<PageAnalysis> pages = {
        page(u"h/a.htm", u"<a href=b.htm><A href = 'HTTP://H\\A.htm#x'><a href=\"http://other/\"><p href>"),
        page(u"h_More_Files/b.htm", u"<a href=\"http://h/a.htm\"><a href=\"http://o/notes/b.htm\">" + row,
             row),
        page(u"o-notes/b.htm", u"<a href=\"http://h/gone.htm\"><br>" + row + u"\r\n</body>", row),
        page(u"h/c.htm", u"<a href=\"" + app.path(u"Projects/p/h/a.htm") + u"\">")};
    EXPECT_EQ(pages[0].leads_to.mentions, 4U);
    EXPECT_EQ(pages[1].leads_to.mentions, 4U);
    const SiteReport site = make_site_report(pages, {}, {}, book, {.hosts = book.servers()},
                                             {{.folder = u"h"}, {.folder = u"o-notes", .files = {u"c.htm"}}});
    const auto in = [&](std::size_t p) { return site.pages[p].links_in; };
    EXPECT_EQ(std::vector({in(0), in(1), in(2), in(3)}), std::vector({1, 1, 1, 1}));
    EXPECT_EQ(site.links_of_kinds[3][0], 1) << "a file that is no page of the table";
    std::vector<std::size_t> dead;
    for (const PageRow& each : site.pages) dead.push_back(each.dead.size());
    EXPECT_EQ(dead, std::vector<std::size_t>({0, 0, 1, 1})) << "a path of this machine leads nowhere";
    EXPECT_EQ(site.missing[0].second, u"http://h/gone.htm");
}

TEST(Findings, no_text_of_a_project_becomes_markup_or_a_formula) {
    SiteReport site = good_site();
    for (Text* const text :
         {&site.facts.project, &site.facts.boxes[0], &site.keywords[0], &site.pages[0].title,
          &site.pages[0].file, &site.pages[0].address, &site.destinations[0].folder,
          &site.destinations[0].server, &site.facts.keywords[0][0]})
        *text = u"\"'><script>alert(1)</script>&amp;\x01";
    site.pages[1].address = site.pages[0].address;
    const std::string html = report_as_html(site);
    EXPECT_EQ(html.find("<script>alert"), std::string::npos);
    EXPECT_EQ(html.find('\x01'), std::string::npos);
    EXPECT_NE(html.find("&quot;&#39;&gt;&lt;script&gt;alert(1)&lt;/script&gt;&amp;amp;"), std::string::npos);
    EXPECT_EQ(csv_cell(u"=1+1"), "'=1+1");
    EXPECT_EQ(csv_cell(u"\t@x,\"y\"\n"), "\"'\t@x,\"\"y\"\"\n\"");
    EXPECT_EQ(csv_cell(u"a-b"), "a-b");
}

TEST(Charts, bars_hold_every_value_once_whatever_their_spread) {
    SiteReport site = good_site();
    for (const double kb : {0.0, 0.04, 7.3, 99.999, 100.0, 31000.5}) {
        site.pages[0].kb = kb;
        const Histogram chart = size_chart(site);
        int pages = 0;
        for (const Histogram::Bar& bar : chart.bars) {
            pages += bar.pages();
            EXPECT_TRUE(bar.pages() == 0 || (bar.from <= kb && kb < bar.to) || (bar.from <= 5 && 5 < bar.to));
        }
        EXPECT_EQ(pages, 2) << kb;
        EXPECT_LE(chart.bars.size(), 14U) << kb;
    }
    site.pages.clear();
    EXPECT_TRUE(words_chart(site).bars.empty());
}

} // namespace
} // namespace twk
