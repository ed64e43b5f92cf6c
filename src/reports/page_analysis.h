// SPDX-License-Identifier: MIT
#pragma once

#include "engine/page_record.h"
#include "platform/text.h"
#include "reports/link_book.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace twk {

/// How often one keyword stands in one page; a report of many pages holds one for each pair of them.
struct KeywordAnalysis {
    static constexpr std::int16_t unknown = -1; ///< could not be computed

    std::int16_t in_body = unknown;
    std::int16_t in_title = unknown;
    std::int16_t title_density = unknown; ///< per cent
};

/// The analysis of one page.
struct PageAnalysis {
    Text path;                             ///< 0
    Text kb;                               ///< 1
    Text kind;                             ///< 2: 1 first-level, 2 second-level, 3 random, 4 site map
    Text words;                            ///< 3
    Text title;                            ///< 6
    Text title_words;                      ///< 7
    Text file;                             ///< 10
    Text url;                              ///< 11
    Text links;                            ///< 12
    Text links_to;                         ///< 13
    Text redirect;                         ///< 14
    std::vector<KeywordAnalysis> keywords; ///< `keyword_texts` tells of them
    PageLinks leads_to;
    PageRecord made;
};

/// What one keyword is in one page, as the report shows it; empty where it could not be computed.
struct KeywordTexts {
    Text count, density;             ///< body: fields 4 and 5
    Text title_count, title_density; ///< title: fields 8 and 9
};

/// Texts of the page's keyword `k`. Fault 9 outside its keywords.
KeywordTexts keyword_texts(const PageAnalysis& page, std::size_t k);

/// Density of the page's keyword `k` in its body, as the report rounds it; nothing where there is none.
std::optional<double> keyword_density(const PageAnalysis& page, std::size_t k);

} // namespace twk
