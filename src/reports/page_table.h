// SPDX-License-Identifier: MIT
#pragma once

#include "reports/output_folders.h"
#include "reports/page_analysis.h"

#include <array>
#include <cstdint>
#include <vector>

namespace twk {

/// Where pages of a run lie and where they must be uploaded to.
struct Destination {
    Text folder{}; ///< name of the folder below the project's
    Text server{}; ///< address; empty for a folder that belongs to none
    int pages = 0;
    int other_files = 0;
    std::int64_t bytes = 0;
    int reported = 0; ///< pages of the table
    int indexes = 0;  ///< index pages among them
};

/// What a report knows of the run besides its pages, as it stood at the run's end.
struct RunFacts {
    Text project{};
    Text project_folder{};     ///< path
    Text made_at{};            ///< date and time
    std::vector<Text> hosts{}; ///< addresses, the main one first
    std::vector<Text> boxes{}; ///< content boxes; in a finished report how each begins, empty for a blank one
    std::vector<std::vector<Text>> keywords{}; ///< of the table: column 0 the keyword, then its subkeywords
    int min_words = 0, max_words = 0;          ///< 1.a and 1.b
    std::array<int, 2> long_bounds{};          ///< 1.d and 1.f
    std::array<int, 2> short_bounds{};         ///< 1.e and 1.g
    Text box_density{};                        ///< 3.a as typed
    int random_per_host = 0;                   ///< pages
};

/// One page of the table.
struct PageRow {
    int kind = 0;         ///< 1 first-level, 2 second-level, 3 random, 4 site map
    int destination = -1; ///< of `SiteReport::destinations`; -1 for none
    Text file{};          ///< name on disk
    Text path{};          ///< whole
    Text title{};
    Text address{};       ///< where the page will be
    Text links_to{};      ///< the report's own field
    int redirects = -1;   ///< 1 yes, 0 no, -1 not told
    int words = -1;       ///< of the body; -1 where it could not be computed
    int title_words = -1; ///< -1 likewise
    double kb = 0;        ///< thousands of bytes
    int links_out = 0;    ///< every "href"
    int links_in = 0;     ///< other pages that link to it, the hallway page among them
    int own_count = -1;   ///< occurrences of the page's own keyword in the body; -1 unknown
    int own_title_count = -1;
    double own_density = -1;           ///< per cent; -1 unknown
    std::vector<std::uint32_t> dead{}; ///< places without a file that it links to
    std::uint32_t place = 0;           ///< of its address
    PageRecord made{};
};

/// Everything that an overview shows, as plain data that stands by itself.
struct SiteReport {
    RunFacts facts;
    std::vector<Text> keywords{}; ///< as the report shows them
    std::vector<Destination> destinations{};
    std::vector<PageRow> pages{};                          ///< in the order of the report
    std::vector<float> densities{};                        ///< [page * keywords + keyword]; -1 unknown
    std::array<std::array<int, 5>, 5> links_of_kinds{};    ///< [from][to], by kind; 0 for all other files
    std::vector<std::pair<std::uint32_t, Text>> missing{}; ///< address of every place without a file
    std::int64_t bytes = 0;                                ///< of all files that are to be uploaded

    float density(std::size_t page, std::size_t keyword) const {
        return densities[page * keywords.size() + keyword];
    }
};

/// A page that was not analysed, and its links.
struct OtherPage {
    Text path{};
    PageLinks leads_to;
};

/// Puts the table together; `folders` are those of the project as they are on disk.
SiteReport make_site_report(const std::vector<PageAnalysis>& pages, const std::vector<Text>& keywords,
                            const std::vector<OtherPage>& others, LinkBook& book, RunFacts facts,
                            const std::vector<OutputFolder>& folders);

/// "First-level" and so on; "Index" for an index page, which is of kind 3.
Text kind_name(const PageRow& row);
Text kind_name(int kind);
/// The template's name as Step 5 shows it.
Text layout_name(Layout layout);
/// Name of the folder that the page lies in; empty for one that no destination has.
const Text& folder_name(const SiteReport& report, const PageRow& row);
/// "yes", "no", or empty where it is not told.
TextView redirects_word(const PageRow& row);
/// The keyword that a text of the page was brought to a density for.
Text fitted_keyword(const SiteReport& report, const PageRow& row, const Fitting& fitting);
/// The keyword that the page is about: a second-level page's subkeyword, else the keyword; empty for none.
Text own_keyword(const SiteReport& report, const PageRow& row);
/// Address of a place without a file.
const Text& missing_address(const SiteReport& report, std::uint32_t place);

} // namespace twk
