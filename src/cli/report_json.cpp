// SPDX-License-Identifier: MIT
#include "cli/report_json.h"

#include "platform/desktop.h"
#include "platform/numbers.h"

#include <nlohmann/json.hpp>

namespace twk::cli {

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

Json keyword_analysis(const Text& keyword, const KeywordAnalysis& found) {
    return {{"keyword", to_utf8(keyword)},
            {"count", figure(found.count)},
            {"density", figure(found.density)},
            {"title_count", figure(found.title_count)},
            {"title_density", figure(found.title_density)}};
}

Json page_analysis(const PageAnalysis& page, const std::vector<Text>& keywords) {
    Json all = Json::array();
    for (std::size_t k = 0; k < keywords.size() && k < page.keywords.size(); ++k)
        if (!keywords[k].empty()) all.push_back(keyword_analysis(keywords[k], page.keywords[k]));
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

} // namespace

std::string report_as_json(const std::vector<PageAnalysis>& pages, const std::vector<Text>& keywords) {
    Json all = Json::array();
    for (const PageAnalysis& page : pages)
        if (!page.path.empty()) all.push_back(page_analysis(page, keywords));
    return all.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace twk::cli
