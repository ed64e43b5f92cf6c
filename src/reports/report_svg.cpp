// SPDX-License-Identifier: MIT
#include "reports/report_svg.h"

#include "platform/numbers.h"

namespace twk {

namespace {

constexpr int width = 420, height = 200;
constexpr int left = 44, right = 8, top = 10, bottom = 30;

std::string text_at(double x, double y, std::string_view anchor, std::string_view text) {
    return "<text x=\"" + short_number(x) + "\" y=\"" + short_number(y) + "\" text-anchor=\"" +
           std::string(anchor) + "\">" + std::string(text) + "</text>";
}

std::string opening(int w, int h, const std::string& label) {
    return "<svg viewBox=\"0 0 " + std::to_string(w) + " " + std::to_string(h) +
           "\" role=\"img\" aria-label=\"" + label + "\">";
}

/// The parts of a bar, one upon the other, with what a pointer is told.
std::string bar_parts(const Histogram& chart, const Histogram::Bar& bar, double x, double w) {
    std::string out;
    double y = height - bottom;
    for (const int kind : {1, 2, 3, 0}) {
        const int pages = bar.of_kinds[static_cast<std::size_t>(kind)];
        if (pages == 0) continue;
        const double h = static_cast<double>(pages) * (height - top - bottom) / chart.most;
        y -= h;
        out += "<rect class=\"k" + std::to_string(kind) + "\" x=\"" + short_number(x) + "\" y=\"" +
               short_number(y) + "\" width=\"" + short_number(w) + "\" height=\"" + short_number(h) +
               "\"><title>" + escaped(kind_name(kind)) + ": " + std::to_string(pages) + " pages, " +
               short_number(bar.from) + " to " + short_number(bar.to) + " " + escaped(chart.unit) +
               "</title></rect>";
    }
    return out;
}

std::string axes(const Histogram& chart) {
    const int base = height - bottom;
    std::string out = "<path class=\"axis\" d=\"M" + std::to_string(left) + " " + std::to_string(top) + "V" +
                      std::to_string(base) + "H" + std::to_string(width - right) + "\"/>";
    out += text_at(left - 5, top + 8, "end", std::to_string(chart.most));
    out += text_at(left - 5, base, "end", "0");
    out += text_at(left, base + 14, "start", short_number(chart.bars.front().from));
    out += text_at(width - right, base + 14, "end", short_number(chart.bars.back().to));
    const double middle = (chart.bars.front().from + chart.bars.back().to) / 2;
    out += text_at((left + width - right) / 2.0, base + 14, "middle", short_number(middle));
    return out + text_at((left + width - right) / 2.0, base + 27, "middle", escaped(chart.unit));
}

} // namespace

std::string escaped(TextView text) {
    std::string out;
    const std::string utf8 = to_utf8(text);
    out.reserve(utf8.size() + utf8.size() / 8);
    for (const char unit : utf8) {
        switch (unit) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        case '\'': out += "&#39;"; break;
        case '\t':
        case '\n': out += unit; break;
        case '\r': break;
        default:
            if (static_cast<unsigned char>(unit) < 0x20 || unit == 0x7F)
                out += "\xEF\xBF\xBD";
            else
                out += unit;
        }
    }
    return out;
}

std::string short_number(double value) {
    return to_utf8(to_text(Round(value * 100) / 100));
}

std::string as_svg(const Histogram& chart) {
    if (chart.bars.empty()) return "<p class=\"none\">No figures.</p>";
    std::string out = opening(width, height, escaped(chart.title) + ": pages by " + escaped(chart.unit));
    const double step = static_cast<double>(width - left - right) / static_cast<double>(chart.bars.size());
    double x = left;
    for (const Histogram::Bar& bar : chart.bars) {
        out += bar_parts(chart, bar, x + 1, step - 2 < 1 ? 1 : step - 2);
        x += step;
    }
    return out + axes(chart) + "</svg>";
}

std::string as_svg(const LinkMatrix& chart) {
    if (chart.kinds.empty()) return "<p class=\"none\">No figures.</p>";
    constexpr int head = 92, cell_w = 80, cell_h = 32, line = 24;
    const auto n = static_cast<int>(chart.kinds.size());
    std::string out = opening(head + n * cell_w, line + n * cell_h, "Links between kinds of pages");
    for (int to = 0; to < n; ++to)
        out += text_at(head + (to + 0.5) * cell_w, line - 8, "middle",
                       escaped(kind_name(chart.kinds[static_cast<std::size_t>(to)])));
    for (int from = 0; from < n; ++from) {
        const double y = line + from * cell_h;
        out += text_at(head - 8, y + cell_h / 2.0 + 4, "end",
                       escaped(kind_name(chart.kinds[static_cast<std::size_t>(from)])));
        for (int to = 0; to < n; ++to) {
            const int links = chart.links[static_cast<std::size_t>(from)][static_cast<std::size_t>(to)];
            const double share = chart.most == 0 ? 0 : static_cast<double>(links) / chart.most;
            out += "<rect class=\"k1\" fill-opacity=\"" +
                   short_number(links == 0 ? 0.04 : 0.12 + 0.5 * share) + "\" x=\"" +
                   short_number(head + to * cell_w + 1.0) + "\" y=\"" + short_number(y + 1) + "\" width=\"" +
                   std::to_string(cell_w - 2) + "\" height=\"" + std::to_string(cell_h - 2) + "\"/>";
            out += text_at(head + (to + 0.5) * cell_w, y + cell_h / 2.0 + 4, "middle", std::to_string(links));
        }
    }
    return out + "</svg>";
}

} // namespace twk
