// SPDX-License-Identifier: MIT
#pragma once

#include "reports/page_table.h"

#include <array>
#include <vector>

/// Numbers for charts of a report: whoever draws them adds nothing but lines and colours.
namespace twk {

/// Colours of the kinds in every chart, 0 other to 3 random, on light and on dark ground.
inline constexpr std::array kind_colours_on_light{"#8a929d", "#2a6fdb", "#c77700", "#2f8f56"};
inline constexpr std::array kind_colours_on_dark{"#9aa2ad", "#6ea8fe", "#f0b24c", "#63c488"};

/// How many pages of each kind lie between two values.
struct Histogram {
    struct Bar {
        double from = 0, to = 0;       ///< `to` itself lies in the next bar, but for the last one's
        std::array<int, 4> of_kinds{}; ///< 1 first-level, 2 second-level, 3 random; 0 other
        int pages() const { return of_kinds[0] + of_kinds[1] + of_kinds[2] + of_kinds[3]; }
    };
    Text title{};
    Text unit{};
    std::vector<Bar> bars{}; ///< of one width; none when there are no values
    int most = 0;            ///< pages of the highest bar
};

Histogram words_chart(const SiteReport& report);
Histogram size_chart(const SiteReport& report);
/// Densities of one keyword, by its row.
Histogram density_chart(const SiteReport& report, std::size_t keyword);

/// Links between kinds: a line per kind with pages.
struct LinkMatrix {
    std::vector<int> kinds; ///< 1, 2, 3, and 0 for other files where a link leads to or comes from one
    std::vector<std::vector<int>> links; ///< [from][to]
    int most = 0;
};

LinkMatrix links_chart(const SiteReport& report);

/// Pages of each kind, 0 to 4.
std::array<int, 5> pages_of_kinds(const SiteReport& report);

} // namespace twk
