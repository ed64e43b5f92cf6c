// SPDX-License-Identifier: MIT
#include "reports/findings.h"

#include "platform/numbers.h"

#include <algorithm>
#include <map>

namespace twk {

namespace {

constexpr double heavy_kb = 100;
constexpr double least_density = 1, most_density = 5;

/// Why the text of a page is empty.
enum class Emptiness { none, long_text, short_text, asked, over_half, too_short, blank_boxes };

Emptiness emptiness(const PageRow& row) {
    if (!row.made.empty_text || row.made.index) return Emptiness::none;
    for (const Fitting& fitting : row.made.fittings) {
        if (!fitting.emptied) continue;
        if (fitting.density > 50) return Emptiness::over_half;
        if (fitting.density >= 1) return Emptiness::too_short;
        if (row.kind != 3) return Emptiness::asked;
        return row.made.is_long() ? Emptiness::long_text : Emptiness::short_text;
    }
    return Emptiness::blank_boxes;
}

template <class Holds> std::vector<std::size_t> rows_that(const SiteReport& report, Holds holds) {
    std::vector<std::size_t> rows;
    for (std::size_t p = 0; p < report.pages.size(); ++p)
        if (holds(report.pages[p])) rows.push_back(p);
    return rows;
}

Finding empty_body(const SiteReport& report, Emptiness because) {
    Finding found{.rule = "empty-body", .weight = Weight::broken, .name = u"Page without a text"};
    found.pages = rows_that(report, [&](const PageRow& row) { return emptiness(row) == because; });
    const auto bounds = [](const std::array<int, 2>& of) {
        return to_text(of[0]) + u" and " + to_text(of[1]);
    };
    switch (because) {
    case Emptiness::long_text:
        found.why =
            u"The text has more than 10000 characters, and a density of 0 was drawn for it. The bounds "
            u"are " +
            bounds(report.facts.long_bounds) + u": every draw is below its bound.";
        found.remedy = u"Raise 1.d and 1.f in the settings file, or use fewer or shorter content boxes.";
        break;
    case Emptiness::short_text:
        found.why = u"A density of 0 was drawn for the text. The bounds are " +
                    bounds(report.facts.short_bounds) + u": every draw is below its bound.";
        found.remedy = u"Raise 1.e and 1.g in the settings file.";
        break;
    case Emptiness::asked:
        found.why = u"The keyword density of content boxes is " + report.facts.box_density +
                    u" %, and below 1 the text goes.";
        found.remedy = u"Step 5, level 1: \"Keyword Density (aprox.) for content boxes\" (3.a) from 1 to 50.";
        break;
    case Emptiness::over_half:
        found.why = u"A density over 50 % leaves no room for the text.";
        found.remedy = u"Lower 3.a for first-level pages, 1.d to 1.g for random pages.";
        break;
    case Emptiness::too_short:
        found.why = u"The text has too few words to get one sentence at its density: words times density "
                    u"must reach 100.";
        found.remedy = u"Longer content boxes (Step 3), or a higher density.";
        break;
    case Emptiness::blank_boxes:
        found.why = u"The content boxes drawn for it have no words.";
        found.remedy = u"Write a text into every content box (Step 3).";
        break;
    case Emptiness::none: break;
    }
    return found;
}

Finding few_words(const SiteReport& report) {
    const int least = report.facts.min_words;
    return {.rule = "few-words",
            .weight = Weight::poor,
            .name = u"Body with few words",
            .why = u"The body has fewer than " + to_text(least) + u" words (1.a).",
            .remedy =
                u"Longer content boxes, or \"Increase content (word count) if necessary?\" (3.b) on; 1.a "
                u"in the settings file is the measure.",
            .pages = rows_that(report, [&](const PageRow& row) {
                return row.words >= 0 && row.words < least && !row.made.index;
            })};
}

Finding many_words(const SiteReport& report) {
    const int most = report.facts.max_words;
    return {.rule = "many-words",
            .weight = Weight::hint,
            .name = u"Body with many words",
            .why = u"The body has more than " + to_text(most) + u" words (1.b).",
            .remedy =
                u"Shorter content boxes, or \"Decrease content (word count) if necessary?\" (3.c) on; 1.b "
                u"in the settings file is the measure.",
            .pages = rows_that(report, [&](const PageRow& row) { return most > 0 && row.words > most; })};
}

/// Whether the page's own keyword must stand in its title: a random page's title is drawn.
bool has_own_title(const PageRow& row) {
    return row.kind == 1 || row.kind == 2;
}

Finding keyword_not_in_title(const SiteReport& report) {
    const auto missing = [&](const PageRow& row) {
        if (!has_own_title(row)) return false;
        const Text own = LCase(own_keyword(report, row));
        return !own.empty() && !contains(LCase(row.title), trim_view(own));
    };
    return {.rule = "keyword-not-in-title",
            .weight = Weight::poor,
            .name = u"Keyword not in its own page's title",
            .why = u"The title was cut before the keyword's end: a composed title has so many words as 3.d "
                   u"says.",
            .remedy = u"Raise 3.d in the settings file, or lower 3.e so that the keyword is the title alone.",
            .pages = rows_that(report, missing)};
}

Finding keyword_not_in_body(const SiteReport& report) {
    const auto missing = [](const PageRow& row) {
        return (row.kind == 1 && row.own_count == 0) || (row.kind == 2 && row.made.own_count == 0);
    };
    return {.rule = "keyword-not-in-body",
            .weight = Weight::poor,
            .name = u"Keyword not in its own page's text",
            .why = u"The text of the page does not name what the page is about.",
            .remedy =
                u"Sentences with *KEYWORD* or *LINK* (6.c) and words at which they may stand (6.b) in the "
                u"settings file, or a content box that names it, tied to the keyword.",
            .pages = rows_that(report, missing)};
}

Finding density_out_of_bounds(const SiteReport& report) {
    const auto outside = [](const PageRow& row) {
        return row.own_density >= 0 && (row.own_density < least_density || row.own_density > most_density);
    };
    return {.rule = "density",
            .weight = Weight::hint,
            .name = u"Density of the own keyword outside 1 to 5 %",
            .why = u"Below 1 % a page says little about its keyword, above 5 % it reads like a list.",
            .remedy =
                u"Step 5, level 1: the keyword density (3.a) of first-level pages; 1.d to 1.g of random "
                u"pages; 1.c and \"Limit the number of keyword repetitions\" (5.m) where it is too high.",
            .pages = rows_that(report, outside)};
}

/// Rows of which another one has the same key; rows without a key have none.
template <class Key>
std::vector<std::size_t> rows_alike(const SiteReport& report, Key key, std::vector<Text>* keys = nullptr) {
    std::map<Text, std::vector<std::size_t>> groups;
    for (std::size_t p = 0; p < report.pages.size(); ++p)
        if (Text each = key(report.pages[p]); !each.empty()) groups[std::move(each)].push_back(p);
    std::vector<std::size_t> rows;
    for (const auto& [each, of] : groups) {
        if (of.size() < 2) continue;
        rows.insert(rows.end(), of.begin(), of.end());
        if (keys != nullptr) keys->push_back(each);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

Finding same_title(const SiteReport& report) {
    return {.rule = "same-title",
            .weight = Weight::hint,
            .name = u"Title equal to another page's",
            .why = u"Two pages with one title look like one page to a reader of search results.",
            .remedy = u"More keywords and subkeywords (Step 2), or a higher 3.d.",
            .pages = rows_alike(report, [](const PageRow& row) { return LCase(trim_view(row.title)); })};
}

Finding same_file(const SiteReport& report) {
    Finding found{.rule = "same-file",
                  .weight = Weight::broken,
                  .name = u"Two pages under one file name",
                  .why = u"Both are uploaded to one directory of one server, where one replaces the other.",
                  .remedy =
                      u"Different keywords, subkeywords or page names (Step 2, Step 6), or another word "
                      u"separator (5.g)."};
    found.pages = rows_alike(
        report,
        [](const PageRow& row) {
            return row.destination < 0 || row.made.index ? Text() : LCase(row.address);
        },
        &found.items);
    return found;
}

Finding not_linked(const SiteReport& report) {
    return {
        .rule = "not-linked",
        .weight = Weight::poor,
        .name = u"Page that no page links to",
        .why = u"Nobody who follows links ever comes to it.",
        .remedy = u"Second-level pages: \"Enable Second Level Pages interlinking\" (3.f). Others: check that "
                  u"the gateway directories of Step 4 begin with http://.",
        .pages = rows_that(report, [](const PageRow& row) { return row.links_in == 0 && !row.made.index; })};
}

Finding dead_link(const SiteReport& report) {
    Finding found{
        .rule = "dead-link",
        .weight = Weight::broken,
        .name = u"Link that leads nowhere",
        .why = u"The link's address is one of this site, and there is no file for it. A path of this "
               u"machine is one, too: the link to a read-more page holds it.",
        .remedy = u"Read-more pages: \"Decrease content (word count) if necessary?\" (3.c) off, or a "
                  u"higher 1.b. Others: the links in your content boxes (Step 3), gateway directories "
                  u"with http:// (Step 4), or \"Enable Second Level Pages interlinking\" (3.f)."};
    found.pages = rows_that(report, [](const PageRow& row) { return !row.dead.empty(); });
    for (const auto& [place, address] : report.missing) found.items.push_back(address);
    return found;
}

Finding heavy_page(const SiteReport& report) {
    return {.rule = "heavy-page",
            .weight = Weight::poor,
            .name = u"Page over 100 KB",
            .why = u"It takes long to load, and search engines may read only its beginning.",
            .remedy =
                u"Fewer or shorter content boxes (Step 3), fewer random pages per destination (2.a), or a "
                u"lower density (1.d to 1.g, 3.a).",
            .pages = rows_that(report, [](const PageRow& row) { return row.kb > heavy_kb; })};
}

Finding empty_destination(const SiteReport& report, bool files) {
    Finding found{.rule = "empty-destination",
                  .weight = Weight::poor,
                  .name = u"Destination without pages",
                  .why = u"There are more gateway directories than random pages to share out.",
                  .remedy = u"More random pages (2.a), or fewer gateway directories (Step 4)."};
    if (files) {
        found.name = u"Destination whose pages are not linked";
        found.why =
            u"Its random pages have no extension .htm or .html, so that the links among them and this "
            u"report pass them over.";
        found.remedy =
            u"\"Let user change random file-names?\" (2.h) on: names that Step 6 has shown bring their "
            u"extension, .htm or .html (5.n).";
    }
    for (const Destination& each : report.destinations)
        if (each.reported == each.indexes && (each.pages > each.indexes) == files && !each.server.empty())
            found.items.push_back(each.folder);
    return found;
}

/// Numbers of the boxes that no page has in its text.
Finding box_never_drawn(const SiteReport& report) {
    std::vector<bool> drawn(256);
    for (const PageRow& row : report.pages)
        for (const auto* const boxes : {&row.made.boxes, &row.made.added})
            for (const std::uint8_t box : *boxes) drawn[box] = true;
    Finding found{.rule = "box-never-drawn",
                  .weight = Weight::hint,
                  .name = u"Content box that no page has",
                  .why = u"No page drew it. The last box is in random pages only, unless it is tied or the "
                         u"densest one.",
                  .remedy =
                      u"Tie it to a keyword (Step 3), put another one behind it, or let the run write more "
                      u"random pages (2.a)."};
    for (std::size_t box = 0; box < report.facts.boxes.size(); ++box)
        if (!drawn[box])
            found.items.push_back(u"box " + to_text(static_cast<int>(box) + 1) + u": " +
                                  report.facts.boxes[box]);
    return found;
}

Finding keyword_without_box(const SiteReport& report) {
    Finding found{.rule = "keyword-without-box",
                  .weight = Weight::hint,
                  .name = u"Keyword without a tied content box",
                  .why = u"Its page has the densest box or one by chance, which may be about something else.",
                  .remedy = u"Step 3: tie a content box to the keyword."};
    for (std::size_t p = 0; p < report.pages.size(); ++p) {
        const PageRow& row = report.pages[p];
        if (row.kind != 1 || row.made.choice == BoxChoice::tied) continue;
        found.pages.push_back(p);
        found.items.push_back(own_keyword(report, row));
    }
    return found;
}

} // namespace

std::vector<Finding> find_findings(const SiteReport& report) {
    std::vector<Finding> all;
    for (const Emptiness because : {Emptiness::long_text, Emptiness::short_text, Emptiness::asked,
                                    Emptiness::over_half, Emptiness::too_short, Emptiness::blank_boxes})
        all.push_back(empty_body(report, because));
    for (const auto rule :
         {same_file, dead_link, few_words, keyword_not_in_title, keyword_not_in_body, not_linked, heavy_page})
        all.push_back(rule(report));
    for (const bool files : {false, true}) all.push_back(empty_destination(report, files));
    for (const auto rule :
         {many_words, density_out_of_bounds, same_title, box_never_drawn, keyword_without_box})
        all.push_back(rule(report));
    std::erase_if(all, [](const Finding& each) { return each.pages.empty() && each.items.empty(); });
    std::stable_sort(all.begin(), all.end(),
                     [](const Finding& a, const Finding& b) { return a.weight < b.weight; });
    return all;
}

std::vector<std::vector<std::size_t>> findings_of_pages(const std::vector<Finding>& findings,
                                                        std::size_t pages) {
    std::vector<std::vector<std::size_t>> of_pages(pages);
    for (std::size_t f = 0; f < findings.size(); ++f)
        for (const std::size_t page : findings[f].pages) of_pages[page].push_back(f);
    return of_pages;
}

Text weight_name(Weight weight) {
    return weight == Weight::broken ? u"Broken" : weight == Weight::poor ? u"Poor" : u"Hint";
}

} // namespace twk
