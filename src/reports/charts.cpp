// SPDX-License-Identifier: MIT
#include "reports/charts.h"

#include <algorithm>
#include <cmath>

namespace twk {

namespace {

constexpr int wanted_bars = 12;

/// 1, 2, 2.5 or 5 times a power of ten, at least as large.
double round_width(double width) {
    const double power = std::pow(10, std::floor(std::log10(width)));
    for (const double step : {1.0, 2.0, 2.5, 5.0})
        if (step * power >= width * (1 - 1e-9)) return step * power;
    return 10 * power;
}

struct Value {
    double value;
    int kind;
};

/// `least_width` keeps whole numbers from being cut into parts.
Histogram histogram(Text title, Text unit, const std::vector<Value>& values, double least_width) {
    Histogram chart{.title = std::move(title), .unit = std::move(unit)};
    if (values.empty()) return chart;
    const auto [low, high] = std::minmax_element(
        values.begin(), values.end(), [](const Value& a, const Value& b) { return a.value < b.value; });
    const double spread = high->value - low->value;
    const double width = std::max(least_width, spread > 0 ? round_width(spread / wanted_bars) : least_width);
    const double from = std::floor(low->value / width) * width;
    const auto bars = static_cast<std::size_t>(std::floor((high->value - from) / width)) + 1;
    for (std::size_t b = 0; b < bars; ++b)
        chart.bars.push_back(
            {from + static_cast<double>(b) * width, from + static_cast<double>(b + 1) * width});
    for (const Value& each : values) {
        const auto b = std::min(bars - 1, static_cast<std::size_t>((each.value - from) / width));
        ++chart.bars[b].of_kinds[static_cast<std::size_t>(each.kind >= 1 && each.kind <= 3 ? each.kind : 0)];
    }
    for (const Histogram::Bar& bar : chart.bars) chart.most = std::max(chart.most, bar.pages());
    return chart;
}

} // namespace

Histogram words_chart(const SiteReport& report) {
    std::vector<Value> values;
    for (const PageRow& row : report.pages)
        if (row.words >= 0) values.push_back({static_cast<double>(row.words), row.kind});
    return histogram(u"Words of the body", u"words", values, 1);
}

Histogram size_chart(const SiteReport& report) {
    std::vector<Value> values;
    for (const PageRow& row : report.pages) values.push_back({row.kb, row.kind});
    return histogram(u"Size", u"KB", values, 0.1);
}

Histogram density_chart(const SiteReport& report, std::size_t keyword) {
    std::vector<Value> values;
    for (std::size_t p = 0; p < report.pages.size(); ++p)
        if (const float density = report.density(p, keyword); density >= 0)
            values.push_back({density, report.pages[p].kind});
    return histogram(u"Density of \"" + report.keywords[keyword] + u"\"", u"%", values, 0.1);
}

std::array<int, 5> pages_of_kinds(const SiteReport& report) {
    std::array<int, 5> counts{};
    for (const PageRow& row : report.pages)
        ++counts[static_cast<std::size_t>(row.kind >= 1 && row.kind <= 4 ? row.kind : 0)];
    return counts;
}

LinkMatrix links_chart(const SiteReport& report) {
    LinkMatrix chart;
    const auto& links = report.links_of_kinds;
    const std::array<int, 5> counts = pages_of_kinds(report);
    for (const std::size_t kind : {1U, 2U, 3U, 0U}) {
        bool used = counts[kind] > 0;
        for (std::size_t other = 0; other < links.size(); ++other)
            used = used || links[kind][other] > 0 || links[other][kind] > 0;
        if (used) chart.kinds.push_back(static_cast<int>(kind));
    }
    for (const int from : chart.kinds) {
        std::vector<int>& line = chart.links.emplace_back();
        for (const int to : chart.kinds) {
            line.push_back(links[static_cast<std::size_t>(from)][static_cast<std::size_t>(to)]);
            chart.most = std::max(chart.most, line.back());
        }
    }
    return chart;
}

} // namespace twk
