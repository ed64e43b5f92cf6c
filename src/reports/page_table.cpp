// SPDX-License-Identifier: MIT
#include "reports/page_table.h"

#include "platform/desktop.h"
#include "platform/html.h"
#include "platform/numbers.h"
#include "platform/paths.h"

#include <algorithm>

namespace twk {

namespace {

constexpr std::uint8_t no_kind = 0;

int whole(const Text& field) {
    return field.empty() ? -1 : static_cast<int>(Val(field));
}

/// What stands at every place of the site: the kind of a page, 0 for another file, -1 for nothing.
struct Places {
    std::vector<std::int8_t> kind;
    std::vector<int> linked; ///< pages that link there

    void set(std::uint32_t place, int value) {
        if (place >= kind.size()) kind.resize(place + 1, -1);
        kind[place] = static_cast<std::int8_t>(value);
    }
};

int destination_of(const SiteReport& report, const Text& path) {
    const Text parent = folder_of(path);
    const TextView folder = last_name(TextView(parent));
    for (std::size_t d = 0; d < report.destinations.size(); ++d)
        if (same_text(report.destinations[d].folder, folder)) return static_cast<int>(d);
    return -1;
}

void list_destinations(SiteReport& report, const LinkBook& book, const std::vector<OutputFolder>& folders) {
    for (const OutputFolder& each : folders) {
        if (each.folder.empty()) continue; // what stands in the project's own folder stays there
        const int server = book.server_of(each.folder);
        report.destinations.push_back(
            {.folder = each.folder,
             .server = server < 0 ? Text() : book.servers()[static_cast<std::size_t>(server)],
             .pages = each.pages,
             .other_files = each.other_files,
             .bytes = each.bytes});
        report.bytes += each.bytes;
    }
}

void measure_own_keyword(PageRow& row, const PageAnalysis& page) {
    const int k = row.made.keyword;
    if (k < 0 || k >= std::ssize(page.keywords)) return;
    const KeywordAnalysis& found = page.keywords[static_cast<std::size_t>(k)];
    row.own_count = found.in_body;
    row.own_title_count = found.in_title;
    row.own_density = keyword_density(page, static_cast<std::size_t>(k)).value_or(row.own_density);
}

PageRow row_of(const SiteReport& report, const PageAnalysis& page, LinkBook& book) {
    PageRow row{.kind = static_cast<int>(Val(page.kind)),
                .destination = destination_of(report, page.path),
                .file = Text(last_name(TextView(page.path))),
                .path = page.path,
                .title = page.title,
                .links_to = page.links_to,
                .redirects = page.redirect.empty()     ? -1
                             : page.redirect == u"YES" ? 1
                                                       : 0,
                .words = whole(page.words),
                .title_words = whole(page.title_words),
                .kb = Val(page.kb),
                .links_out = static_cast<int>(page.leads_to.mentions),
                .made = page.made};
    row.place = book.place(book.server_of(Text(last_name(TextView(folder_of(page.path))))), row.file);
    row.address = book.address(row.place);
    if (row.destination >= 0 &&
        !report.destinations[static_cast<std::size_t>(row.destination)].server.empty())
        row.address = report.destinations[static_cast<std::size_t>(row.destination)].server + u"/" + row.file;
    measure_own_keyword(row, page);
    return row;
}

/// Every place that the links lead to, each once.
template <class Visit> void each_place(const PageLinks& links, const LinkBook& book, Visit visit) {
    for (const std::uint32_t place : links.own) visit(place);
    if (links.siblings == PageLinks::no_list) return;
    for (const std::uint32_t place : book.list(links.siblings)) visit(place);
}

void count_links(SiteReport& report, Places& places, const LinkBook& book, const PageLinks& links, int kind,
                 PageRow* row) {
    each_place(links, book, [&](std::uint32_t place) {
        if (row != nullptr && place == row->place) return; // a page's link to itself helps it little
        ++places.linked[place];
        const int to = places.kind[place];
        if (to >= 0)
            ++report.links_of_kinds[static_cast<std::size_t>(kind)][static_cast<std::size_t>(to)];
        else if (row != nullptr)
            row->dead.push_back(place);
    });
}

/// What a page links to and who links to it, from the places where there is something.
void join_links(SiteReport& report, const std::vector<const PageAnalysis*>& pages,
                const std::vector<OtherPage>& others, LinkBook& book,
                const std::vector<OutputFolder>& folders) {
    Places places;
    for (const OutputFolder& each : folders) {
        if (each.folder.empty()) continue;
        const int server = book.server_of(each.folder);
        for (const Text& file : each.files) places.set(book.place(server, file), no_kind);
    }
    for (const PageRow& row : report.pages) places.set(row.place, row.kind);
    places.kind.resize(book.places(), -1);
    places.linked.assign(book.places(), 0);
    for (std::size_t p = 0; p < report.pages.size(); ++p) {
        PageRow& row = report.pages[p];
        count_links(report, places, book, pages[p]->leads_to, row.kind, &row);
    }
    for (const OtherPage& other : others) count_links(report, places, book, other.leads_to, no_kind, nullptr);
    for (PageRow& row : report.pages) row.links_in = places.linked[row.place];
    for (std::uint32_t place = 0; place < book.places(); ++place)
        if (places.kind[place] < 0 && places.linked[place] > 0)
            report.missing.emplace_back(place, book.address(place));
}

/// The first words that a box shows, cut between two of them.
Text beginning(const Text& box) {
    constexpr std::size_t most = 60;
    const Text visible = visible_text(box);
    TextView text = trim_view(TextView(visible).substr(0, visible.find(u'\r')));
    if (text.size() <= most) return Text(text);
    text = text.substr(0, std::min(most, text.rfind(u' ', most)));
    while (text.ends_with(u'.')) text.remove_suffix(1);
    return Text(text) + u"...";
}

} // namespace

SiteReport make_site_report(const std::vector<PageAnalysis>& pages, const std::vector<Text>& keywords,
                            const std::vector<OtherPage>& others, LinkBook& book, RunFacts facts,
                            const std::vector<OutputFolder>& folders) {
    SiteReport report{.facts = std::move(facts), .keywords = keywords};
    for (Text& box : report.facts.boxes) box = beginning(box);
    list_destinations(report, book, folders);
    std::vector<const PageAnalysis*> told;
    for (const PageAnalysis& page : pages)
        if (!page.path.empty()) told.push_back(&page);
    report.pages.reserve(told.size());
    report.densities.reserve(told.size() * keywords.size());
    for (const PageAnalysis* page : told) {
        report.pages.push_back(row_of(report, *page, book));
        const PageRow& row = report.pages.back();
        if (row.destination >= 0) {
            Destination& of = report.destinations[static_cast<std::size_t>(row.destination)];
            ++of.reported;
            if (row.made.index) ++of.indexes;
        }
        for (std::size_t k = 0; k < keywords.size(); ++k) {
            const auto density =
                k < page->keywords.size() ? keyword_density(*page, k) : std::optional<double>();
            report.densities.push_back(static_cast<float>(density.value_or(-1)));
        }
    }
    join_links(report, told, others, book, folders);
    return report;
}

Text kind_name(int kind) {
    static const TextView names[] = {u"Other", u"First-level", u"Second-level", u"Random", u"Site map"};
    return Text(names[kind >= 1 && kind <= 4 ? kind : 0]);
}

Text kind_name(const PageRow& row) {
    return row.made.index ? Text(u"Index") : kind_name(row.kind);
}

Text layout_name(Layout layout) {
    switch (layout) {
    case Layout::no_table: return u"No table";
    case Layout::table_1: return u"Table 1";
    case Layout::table_2: return u"Table 2";
    case Layout::table_3: return u"Table 3";
    case Layout::none: break;
    }
    return u"none";
}

const Text& folder_name(const SiteReport& report, const PageRow& row) {
    static const Text none;
    return row.destination < 0 ? none : report.destinations[static_cast<std::size_t>(row.destination)].folder;
}

TextView redirects_word(const PageRow& row) {
    return row.redirects < 0 ? u"" : row.redirects == 1 ? u"yes" : u"no";
}

Text fitted_keyword(const SiteReport& report, const PageRow& row, const Fitting& fitting) {
    if (fitting.keyword < 0) return own_keyword(report, row);
    const auto k = static_cast<std::size_t>(fitting.keyword);
    return k < report.keywords.size() ? report.keywords[k] : Text();
}

Text own_keyword(const SiteReport& report, const PageRow& row) {
    const auto& table = report.facts.keywords;
    const auto k = static_cast<std::size_t>(row.made.keyword);
    const auto column = static_cast<std::size_t>(row.made.subkeyword);
    if (row.made.keyword < 0 || k >= table.size() || column >= table[k].size()) return {};
    return table[k][column];
}

const Text& missing_address(const SiteReport& report, std::uint32_t place) {
    const auto at = std::lower_bound(report.missing.begin(), report.missing.end(), place,
                                     [](const auto& each, std::uint32_t find) { return each.first < find; });
    static const Text none;
    return at == report.missing.end() || at->first != place ? none : at->second;
}

} // namespace twk
