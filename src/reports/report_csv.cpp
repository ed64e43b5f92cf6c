// SPDX-License-Identifier: MIT
#include "reports/report_csv.h"

#include "platform/numbers.h"
#include "reports/page_story.h"
#include "reports/report_svg.h"

namespace twk {

namespace {

constexpr std::string_view line_end = "\r\n";

std::string number(double value) {
    return value < 0 ? std::string() : to_utf8(to_text(value));
}

std::string density(float value) {
    return value < 0 ? std::string() : short_number(static_cast<double>(value));
}

class Line {
  public:
    explicit Line(std::string& out) : out_(out) {}
    ~Line() { out_ += line_end; }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    void plain(std::string_view cell) {
        if (!first_) out_ += ',';
        first_ = false;
        out_ += cell;
    }
    void text(TextView cell) { plain(csv_cell(cell)); }

  private:
    std::string& out_;
    bool first_ = true;
};

void write_headings(const SiteReport& report, std::string& out) {
    Line line(out);
    for (const TextView name :
         {u"kind", u"folder", u"file", u"address", u"words", u"kb", u"links out", u"links in", u"dead links",
          u"title", u"title words", u"own keyword", u"own density", u"redirect", u"how it was made"})
        line.text(name);
    for (const Text& keyword : report.keywords) line.text(u"density of " + keyword);
}

void write_page(const SiteReport& report, std::size_t p, std::string& out) {
    const PageRow& row = report.pages[p];
    Line line(out);
    line.text(kind_name(row));
    line.text(folder_name(report, row));
    line.text(row.file);
    line.text(row.address);
    line.plain(number(row.words));
    line.plain(number(row.kb));
    line.plain(number(row.links_out));
    line.plain(number(row.links_in));
    line.plain(number(static_cast<double>(row.dead.size())));
    line.text(row.title);
    line.plain(number(row.title_words));
    line.text(own_keyword(report, row));
    line.plain(number(row.own_density));
    line.text(redirects_word(row));
    line.text(short_story(row));
    for (std::size_t k = 0; k < report.keywords.size(); ++k) line.plain(density(report.density(p, k)));
}

} // namespace

std::string csv_cell(TextView text) {
    std::string cell = to_utf8(text);
    if (const std::size_t first = cell.find_first_not_of(" \t\r\n");
        first != std::string::npos && std::string_view("=+-@").find(cell[first]) != std::string_view::npos)
        cell.insert(0, 1, '\'');
    if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
    std::string quoted = "\"";
    for (const char unit : cell) {
        if (unit == '"') quoted += '"';
        quoted += unit;
    }
    return quoted + '"';
}

std::string report_as_csv(const SiteReport& report) {
    std::string out;
    write_headings(report, out);
    for (std::size_t p = 0; p < report.pages.size(); ++p) write_page(report, p, out);
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return is_ascii(std::string_view(out)) ? out : std::string(mark) + out;
}

} // namespace twk
