// SPDX-License-Identifier: MIT
#include "reports/report_json.h"

#include "platform/desktop.h"
#include "platform/numbers.h"
#include "reports/findings.h"

#include <nlohmann/json.hpp>

namespace twk {

namespace {

using Json = nlohmann::ordered_json;

Json figure(const Text& field) {
    if (field.empty()) return nullptr;
    const double value = Val(field);
    if (value == Int(value)) return static_cast<std::int64_t>(value);
    return value;
}

std::string relative_path(const Text& path) {
    const Text folder = joined_path(app_path(), u"");
    return to_utf8(TextView(path).starts_with(folder) ? TextView(path).substr(folder.size())
                                                      : TextView(path));
}

Json keyword_analysis(const Text& keyword, const KeywordTexts& found) {
    return {{"keyword", to_utf8(keyword)},
            {"count", figure(found.count)},
            {"density", figure(found.density)},
            {"title_count", figure(found.title_count)},
            {"title_density", figure(found.title_density)}};
}

Json box_numbers(const std::vector<std::uint8_t>& boxes) {
    Json all = Json::array();
    for (const std::uint8_t box : boxes)
        all.push_back(box == PageRecord::no_box ? Json(nullptr) : Json(box + 1));
    return all;
}

Json fittings(const SiteReport& site, const PageRow& row) {
    Json all = Json::array();
    for (const Fitting& each : row.made.fittings) {
        if (!each.done && row.made.units == 0) continue;
        Json one = {{"density", each.density}, {"used", each.done}};
        if (each.done) {
            one["keyword"] = to_utf8(fitted_keyword(site, row, each));
            one["emptied"] = each.emptied;
        }
        all.push_back(std::move(one));
    }
    return all;
}

const char* choice_name(BoxChoice choice) {
    switch (choice) {
    case BoxChoice::tied: return "tied";
    case BoxChoice::densest: return "densest";
    default: return "drawn";
    }
}

Json record(const SiteReport& site, const PageRow& row) {
    const PageRecord& made = row.made;
    if (made.index) return {{"index", true}};
    return {{"template", to_utf8(layout_name(made.layout))},
            {"boxes", box_numbers(made.boxes)},
            {"choice", choice_name(made.choice)},
            {"added", box_numbers(made.added)},
            {"densities", fittings(site, row)},
            {"sentences", made.sentences},
            {"replaced", made.replaced},
            {"synonyms", made.synonyms},
            {"read_more", made.read_more},
            {"movie", made.movie},
            {"picture", made.picture},
            {"empty", made.empty_text}};
}

/// What stands behind the fields of the analysis. `found` are the findings of the page.
void add_overview(Json& page, const SiteReport& site, const PageRow& row,
                  const std::vector<Finding>& findings, const std::vector<std::size_t>& found) {
    page["folder"] = row.destination < 0 ? Json(nullptr) : Json(to_utf8(folder_name(site, row)));
    page["address"] = to_utf8(row.address);
    page["links_out"] = row.links_out;
    page["links_in"] = row.links_in;
    page["own_keyword"] = to_utf8(own_keyword(site, row));
    Json dead = Json::array();
    for (const std::uint32_t place : row.dead) dead.push_back(to_utf8(missing_address(site, place)));
    page["dead_links"] = std::move(dead);
    Json rules = Json::array();
    for (const std::size_t f : found) rules.push_back(findings[f].rule);
    page["findings"] = std::move(rules);
    page["made"] = record(site, row);
}

Json page_analysis(const PageAnalysis& page, const std::vector<Text>& keywords) {
    Json all = Json::array();
    for (std::size_t k = 0; k < keywords.size() && k < page.keywords.size(); ++k)
        if (!keywords[k].empty()) all.push_back(keyword_analysis(keywords[k], keyword_texts(page, k)));
    return {{"kind", figure(page.kind)},
            {"path", relative_path(page.path)},
            {"kb", figure(page.kb)},
            {"words", figure(page.words)},
            {"title", to_utf8(page.title)},
            {"title_words", figure(page.title_words)},
            {"file", to_utf8(page.file)},
            {"url", to_utf8(page.url)},
            {"links", figure(page.links)},
            {"links_to", to_utf8(page.links_to)},
            {"redirect", to_utf8(page.redirect)},
            {"keywords", std::move(all)}};
}

/// An element of the array, two blanks in front of each of its lines.
void append_element(std::string& out, const Json& element) {
    out += out.size() == 1 ? "\n" : ",\n";
    const std::string text = element.dump(2, ' ', false, Json::error_handler_t::replace);
    out += "  ";
    for (const char unit : text) { // no text holds a line end of its own
        out += unit;
        if (unit == '\n') out += "  ";
    }
}

} // namespace

std::string report_as_json(const std::vector<PageAnalysis>& pages, const SiteReport& site) {
    const std::vector<Finding> findings = find_findings(site);
    const auto found = findings_of_pages(findings, site.pages.size());
    std::string out = "[";
    std::size_t p = 0;
    for (const PageAnalysis& page : pages) {
        if (page.path.empty()) continue;
        Json element = page_analysis(page, site.keywords);
        add_overview(element, site, site.pages[p], findings, found[p]);
        append_element(out, element);
        ++p;
    }
    return out + (p == 0 ? "]\n" : "\n]\n");
}

} // namespace twk
