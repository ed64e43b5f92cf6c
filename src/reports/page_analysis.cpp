// SPDX-License-Identifier: MIT
#include "reports/page_analysis.h"

#include "platform/numbers.h"
#include "platform/subscript.h"

namespace twk {

namespace {

Text whole_number(std::int16_t figure) {
    return figure == KeywordAnalysis::unknown ? Text() : to_text(figure);
}

/// "." where the keyword does not stand.
Text density_text(const PageAnalysis& page, std::int16_t count) {
    const double words = Val(page.words);
    if (count == KeywordAnalysis::unknown || words == 0) return {};
    return count == 0 ? Text(u".") : Format(count * 100.0 / words, u"##.##");
}

} // namespace

KeywordTexts keyword_texts(const PageAnalysis& page, std::size_t k) {
    const KeywordAnalysis& found = at(page.keywords, k);
    return {.count = whole_number(found.in_body),
            .density = density_text(page, found.in_body),
            .title_count = whole_number(found.in_title),
            .title_density = whole_number(found.title_density)};
}

std::optional<double> keyword_density(const PageAnalysis& page, std::size_t k) {
    const Text density = density_text(page, at(page.keywords, k).in_body);
    return density.empty() ? std::nullopt : std::optional(Val(density));
}

} // namespace twk
