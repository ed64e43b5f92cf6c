// SPDX-License-Identifier: MIT
#pragma once

#include "engine/page_record.h"
#include "platform/text.h"
#include "reports/link_book.h"

#include <vector>

namespace twk {

/// What one keyword is in one page; texts as the report shows them, empty where they could not be computed.
struct KeywordAnalysis {
    Text count, density;             ///< body: fields 4 and 5
    Text title_count, title_density; ///< title: fields 8 and 9
};

/// The analysis of one page.
struct PageAnalysis {
    Text path;        ///< 0
    Text kb;          ///< 1
    Text kind;        ///< 2: 1 first-level, 2 second-level, 3 random, 4 site map
    Text words;       ///< 3
    Text title;       ///< 6
    Text title_words; ///< 7
    Text file;        ///< 10
    Text url;         ///< 11
    Text links;       ///< 12
    Text links_to;    ///< 13
    Text redirect;    ///< 14
    std::vector<KeywordAnalysis> keywords;
    PageLinks leads_to;
    PageRecord made;
};

} // namespace twk
