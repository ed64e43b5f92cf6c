// SPDX-License-Identifier: MIT
#include "reports/report_html.h"

#include "platform/numbers.h"
#include "reports/findings.h"
#include "reports/page_story.h"
#include "reports/report_page_parts.h"
#include "reports/report_svg.h"

#include <algorithm>

namespace twk {

namespace {

constexpr std::size_t listed_at_most = 20;  ///< pages below a finding
constexpr std::size_t keyword_charts = 12;  ///< keywords whose densities get a chart
constexpr std::size_t listed_densities = 5; ///< of a page, the highest

std::string count(std::size_t n) {
    return std::to_string(n);
}

std::string thousands(std::int64_t n) {
    return to_utf8(Format(static_cast<double>(n), u"###,0"));
}

/// The style sheet with the colours of the kinds in their places.
std::string styles() {
    std::string text = report_page::style;
    const auto put = [&text](std::string_view place, const auto& colours) {
        std::string told;
        for (std::size_t kind = 0; kind < colours.size(); ++kind)
            told += "--k" + count(kind) + ":" + colours[kind] + ";";
        for (std::size_t at = 0; (at = text.find(place, at)) != std::string::npos;)
            text.replace(at, place.size(), told);
    };
    put("{on light}", kind_colours_on_light);
    put("{on dark}", kind_colours_on_dark);
    return text;
}

class Page {
  public:
    explicit Page(const SiteReport& report)
        : report_(report), findings_(find_findings(report)),
          found_(findings_of_pages(findings_, report.pages.size())) {}

    std::string write() {
        head();
        counts();
        findings();
        uploads();
        charts();
        table();
        out_ += std::string("<script>") + report_page::script + "</script>\n</body>\n</html>\n";
        return std::move(out_);
    }

  private:
    void head() {
        const std::string name = escaped(report_.facts.project);
        out_ +=
            "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
            "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
            "'unsafe-inline'; script-src 'unsafe-inline'\">\n"
            "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>Report of " +
            name + "</title>\n<style>" + styles() + "</style>\n</head>\n<body>\n<h1>" + name +
            "</h1>\n<p class=\"soft\">Generated pages, " + escaped(report_.facts.made_at) +
            "</p>\n<nav><a href=\"#findings\">Findings</a><a href=\"#upload\">Where to upload</a>"
            "<a href=\"#charts\">Charts</a><a href=\"#table\">Pages</a></nav>\n";
    }

    void card(const std::string& figure, const std::string& name) {
        out_ += "<div><b>" + figure + "</b>" + name + "</div>\n";
    }

    void counts() {
        out_ += "<h2>At a glance</h2>\n<div class=\"cards\">\n";
        card(thousands(std::ssize(report_.pages)), "pages in this report");
        const auto kinds = pages_of_kinds(report_);
        for (const int kind : {1, 2, 3})
            card(thousands(kinds[static_cast<std::size_t>(kind)]), escaped(kind_name(kind)));
        card(thousands(report_.bytes), "bytes to upload");
        card(count(findings_.size()), findings_.size() == 1 ? "finding" : "findings");
        out_ += "</div>\n";
    }

    std::string page_name(std::size_t p) const {
        const PageRow& row = report_.pages[p];
        const Text& folder = folder_name(report_, row);
        return escaped((row.destination < 0 ? folder : folder + u"/") + row.file);
    }

    void list(std::size_t size, const auto& name) {
        out_ += "<ul class=\"list\">";
        for (std::size_t i = 0; i < std::min(size, listed_at_most); ++i) out_ += "<li>" + name(i) + "</li>";
        if (size > listed_at_most) out_ += "<li>and " + count(size - listed_at_most) + " more</li>";
        out_ += "</ul>\n";
    }

    void findings() {
        out_ += "<h2 id=\"findings\">Findings</h2>\n";
        if (findings_.empty()) out_ += "<p>Nothing to tell of.</p>\n";
        for (std::size_t f = 0; f < findings_.size(); ++f) finding(findings_[f], f + 1);
    }

    void finding(const Finding& each, std::size_t number) {
        const std::string weight = escaped(weight_name(each.weight));
        out_ += "<section class=\"finding " + to_utf8(LCase(weight_name(each.weight))) + "\"><h3>" +
                count(number) + ". " + escaped(each.name) + " <span class=\"tag\">" + weight + ", " +
                count(each.cases()) +
                (each.pages.empty()  ? ""
                 : each.cases() == 1 ? " page"
                                     : " pages") +
                "</span></h3>\n<p>" + escaped(each.why) + "</p>\n<p><b>What changes it:</b> " +
                escaped(each.remedy) + "</p>\n";
        if (!each.pages.empty())
            list(each.pages.size(), [&](std::size_t i) { return page_name(each.pages[i]); });
        if (!each.items.empty())
            list(each.items.size(), [&](std::size_t i) { return escaped(each.items[i]); });
        out_ += "</section>\n";
    }

    void uploads() {
        out_ +=
            "<h2 id=\"upload\">Where to upload</h2>\n<div class=\"wide\"><table>\n<thead><tr><th>Folder</th>"
            "<th>Goes to</th><th class=\"n\">Pages</th><th class=\"n\">Other files</th><th class=\"n\">"
            "Bytes</th></tr></thead>\n<tbody>\n";
        for (const Destination& each : report_.destinations)
            out_ += "<tr><td>" + escaped(each.folder) + "</td><td>" +
                    (each.server.empty() ? "no gateway directory of Step 4" : escaped(each.server)) +
                    "</td><td class=\"n\">" + std::to_string(each.pages) + "</td><td class=\"n\">" +
                    std::to_string(each.other_files) + "</td><td class=\"n\">" + thousands(each.bytes) +
                    "</td></tr>\n";
        out_ += "</tbody>\n</table></div>\n<p class=\"soft\">The folders are in " +
                escaped(report_.facts.project_folder) + ".</p>\n";
    }

    void figure(const std::string& title, const std::string& svg) {
        out_ += "<figure><h3>" + title + "</h3>" + svg + "</figure>\n";
    }

    void charts() {
        out_ += "<h2 id=\"charts\">Charts</h2>\n<p class=\"key\">";
        for (const int kind : {1, 2, 3})
            out_ += R"(<span><svg viewBox="0 0 11 11"><rect class="k)" + std::to_string(kind) +
                    R"(" width="11" height="11" rx="2"/></svg>)" + escaped(kind_name(kind)) + "</span>";
        out_ += "</p>\n<div class=\"charts\">\n";
        for (const Histogram& each : {words_chart(report_), size_chart(report_)})
            figure(escaped(each.title), as_svg(each));
        figure("Links between kinds, from the left to the top", as_svg(links_chart(report_)));
        std::size_t drawn = 0;
        for (std::size_t k = 0; k < report_.keywords.size() && drawn < keyword_charts; ++k) {
            if (report_.keywords[k].empty()) continue;
            const Histogram chart = density_chart(report_, k);
            figure(escaped(chart.title), as_svg(chart));
            ++drawn;
        }
        out_ += "</div>\n";
        if (report_.keywords.size() > keyword_charts)
            out_ += "<p class=\"soft\">The densities of the first " + count(keyword_charts) + " of " +
                    count(report_.keywords.size()) + " keywords.</p>\n";
    }

    void table() {
        const bool stories = report_.pages.size() <= stories_up_to;
        out_ += "<h2 id=\"table\">Pages</h2>\n";
        if (report_.keywords.size() > listed_densities)
            out_ += "<p class=\"soft\">Densities are those of the " + count(listed_densities) +
                    " densest keywords of a page; the CSV and the JSON report have all.</p>\n";
        if (!stories)
            out_ += "<p class=\"soft\">With more than " + count(stories_up_to) +
                    " pages, how each was made is told in a few marks; the JSON report has all of it.</p>\n";
        out_ +=
            "<div class=\"wide\"><table id=\"pages\">\n<thead><tr><th>Kind</th><th>Folder</th><th>File</th>"
            "<th class=\"n\">Words</th><th class=\"n\">KB</th><th class=\"n\">Links out</th>"
            "<th class=\"n\">Links in</th><th>Title</th><th class=\"n\">Title words</th>"
            "<th>Redirects</th><th>Densities in %</th><th>How it was made</th><th>Findings</th></tr></thead>\n"
            "<tbody>\n";
        for (std::size_t p = 0; p < report_.pages.size(); ++p) row(p, stories);
        out_ += "</tbody>\n</table></div>\n";
    }

    /// As the findings are numbered above the table.
    static std::string numbers(const std::vector<std::size_t>& findings) {
        std::string all;
        for (const std::size_t f : findings) all += (all.empty() ? "" : " ") + count(f + 1);
        return all;
    }
    void cell(const std::string& text) { out_ += "<td>" + text; }
    void number(const std::string& figure) { out_ += "<td class=n>" + figure; }
    static std::string known(int value) { return value < 0 ? std::string() : std::to_string(value); }

    void row(std::size_t p, bool stories) {
        const PageRow& row = report_.pages[p];
        out_ += "<tr>"; // end tags that HTML spares are spared: there may be thousands of rows
        cell(escaped(kind_name(row)));
        cell(escaped(folder_name(report_, row)));
        cell(escaped(row.file));
        number(known(row.words));
        number(short_number(row.kb));
        number(std::to_string(row.links_out));
        number(std::to_string(row.links_in));
        cell(escaped(row.title));
        number(known(row.title_words));
        cell(to_utf8(redirects_word(row)));
        cell(densities(p));
        cell(stories ? story(row) : escaped(short_story(row)));
        cell(numbers(found_[p]));
        out_ += '\n';
    }

    std::string densities(std::size_t p) const {
        std::vector<std::size_t> found;
        for (std::size_t k = 0; k < report_.keywords.size(); ++k)
            if (report_.density(p, k) > 0) found.push_back(k);
        const std::size_t shown = std::min(found.size(), listed_densities);
        std::partial_sort(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(shown), found.end(),
                          [&](std::size_t a, std::size_t b) {
                              return std::pair(-report_.density(p, a), a) <
                                     std::pair(-report_.density(p, b), b);
                          });
        std::string out;
        for (std::size_t i = 0; i < shown; ++i)
            out += (i == 0 ? "" : ", ") + escaped(report_.keywords[found[i]]) + " " +
                   short_number(static_cast<double>(report_.density(p, found[i])));
        return out;
    }

    std::string story(const PageRow& row) const {
        std::string out = "<details><summary>" + escaped(short_story(row)) + "</summary><ul>";
        for (const Text& line : page_story(report_, row)) out += "<li>" + escaped(line);
        return out + "</ul></details>";
    }

    const SiteReport& report_;
    std::vector<Finding> findings_;
    std::vector<std::vector<std::size_t>> found_; ///< the findings of each page
    std::string out_{};
};

} // namespace

std::string report_as_html(const SiteReport& report) {
    return Page(report).write();
}

} // namespace twk
