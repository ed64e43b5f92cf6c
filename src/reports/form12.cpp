// SPDX-License-Identifier: MIT
#include "reports/form12.h"

#include "engine/counting/keyword_counts.h"
#include "engine/density.h"
#include "engine/keyword_table.h"
#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "inputs/form7.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/file_system.h"
#include "platform/html.h"
#include "platform/numbers.h"
#include "platform/subscript.h"
#include "settings/form6.h"
#include "shell/form2.h"
#include "shell/module1.h"

#include <algorithm>
#include <utility>

namespace twk {

namespace {

/// Runs one statement of an analysis; a fault of it leaves its field empty and the analysis goes on.
template <class F> void ignoring_faults(F statement) {
    try {
        statement();
    } catch (const RuntimeFault&) {
    }
}

/// Bare name, with ".htm" behind it: an "x.html" comes out as "xl.htm".
Text bare_file_name(const Text& path) {
    const Text name = Replace(path, u".htm", u"");
    return Text(last_name(TextView(name))) + u".htm";
}

Text title_of(const Text& page) {
    const int from = InStr(page, u"<title>");
    return Replace(Mid(page, from, InStr(page, u"</title>") - from), u"<title>", u"");
}

/// The URL comment up to the first comment's end of the whole page; fault 5 when that stands before it.
Text commented_url(const Text& page) {
    const int from = InStr(page, u"<!-- url");
    return Replace(Mid(page, from, InStr(page, u"-->") - from), u"<!-- url", u"");
}

} // namespace

Form12::Form12() {
    enable_lists(false);
    Command2.enabled = false;
}

void Form12::enable_lists(bool on) {
    for (ListBox* list : {&List1, &List2, &List3}) list->enabled = on;
    RichTextBox1.enabled = on;
    Command3.enabled = on;
}

void Form12::begin_run() {
    ProgressBar1.set_value(CDbl(u"0,0001"));
    for (ListBox* list : {&List1, &List2, &List3}) list->clear();
    RichTextBox1.text = u"";
    Label2.caption = u"";
    lbl_progress.caption = u"";
    enable_lists(false);
    Command2.enabled = false;
    pages_planned_ = pages_done_ = 0;
    facts_.reset();
    overview_.reset();
}

void Form12::page_done() {
    ++pages_done_;
    Text told = u"Page " + to_text(pages_done_) + u" of " + to_text(std::max(pages_planned_, pages_done_));
    constexpr double day = 24 * 60 * 60;
    double passed = clock().Timer() - first_page_;
    if (passed < 0) passed += day; // past midnight
    const int left = pages_planned_ - pages_done_;
    const double seconds = passed / pages_done_ * left;
    if (passed >= 1 && left > 0)
        told += seconds < 90 ? u", about " + to_text(CLng(std::max(seconds, 1.0))) + u" s left"
                             : u", about " + to_text(CLng(seconds / 60)) + u" min left";
    lbl_progress.caption = told;
}

void Form12::break_off() {
    Command2.enabled = true;
    Label2.caption = u"";
    lbl_progress.caption = u"";
}

void Form12::Form_Load() {
    xKeyWords.assign(static_cast<std::size_t>(screen<Form3>().List1.list_count()) + 1, Text());
    ProgressBar1.set_value(CDbl(u"0,0001"));
    desktop().navigate(wb1, u"about:blank");
    DoEvents();
    esperar(1, [this] { return !screens().is_loaded(*this) || !desktop().busy(wb1); });
}

void Form12::reporte2(int subkeywords) {
    n_sub = CInt(static_cast<double>(subkeywords));
}

void Form12::Reporte(const KeywordTable& tabla, int keywords) {
    n_kw = CInt(static_cast<double>(keywords));
    const double pages =
        Val(screen<Form6>().Combo2.text()) + 2 * n_kw + screen<Form7>().List1.list_count() + 1 + 10 + n_sub;
    informe.clear();
    informe.resize(static_cast<std::size_t>(CLng(pages)) + 1);
    xKeyWords.resize(static_cast<std::size_t>(n_kw));
    for (int k = 0; k < n_kw; ++k) at(xKeyWords, k) = tabla.at(k);
    counted_.reset();
    plan_pages(tabla);
    others_.clear();
    std::vector<Text> servers = screen<Form7>().List1.entries();
    servers.insert(servers.begin(), screen<Form7>().Text2.text());
    book_.begin(servers, joined_path(beside_program(u"Projects"), screen<Form2>().txt_name[0].text()));
}

/// First-level, second-level and random pages, the hallway page and the local site map. What a division by
/// the destinations leaves over gets no random page.
void Form12::plan_pages(const KeywordTable& tabla) {
    const int destinations = screen<Form7>().List1.list_count() + 1;
    const int random = static_cast<int>(Int(Val(screen<Form6>().Combo2.text())));
    pages_planned_ = n_kw + random / destinations * destinations + 2;
    for (int k = 0; k < n_kw; ++k)
        for (int c = 1; c < max_columns && !tabla.at(k, c).empty(); ++c) ++pages_planned_;
    pages_done_ = 0;
    first_page_ = clock().Timer();
}

/// A count leaves the keywords in a form that is counted alike.
const KeywordSet& Form12::keyword_set() {
    if (!counted_) counted_.emplace(xKeyWords);
    return *counted_;
}

void Form12::analyse_body(PageAnalysis& page, const Text& html, const KeywordSet& set) {
    Text cuerpo = visible_text(html);
    const TextScan scan(cuerpo);
    ignoring_faults([&] { page.words = to_text(words_of_lines(cuerpo, scan)); });
    KeywordCounts counts(set, cuerpo, scan);
    for (std::size_t k = 0; k < page.keywords.size(); ++k) {
        if (xKeyWords[k].empty()) continue;
        KeywordAnalysis& found = page.keywords[k];
        ignoring_faults([&] { found.in_body = counts.contar(static_cast<int>(k), xKeyWords[k]); });
    }
}

void Form12::analyse_title(PageAnalysis& page, const Text& html, const KeywordSet& set) {
    if (!contains(html, u"<title>")) return;
    Text titulo;
    ignoring_faults([&] { titulo = page.title = title_of(html); });
    ignoring_faults([&] { page.title_words = to_text(contar_palabras(titulo)); });
    KeywordCounts counts(set, titulo);
    for (std::size_t k = 0; k < page.keywords.size(); ++k) {
        KeywordAnalysis& found = page.keywords[k];
        ignoring_faults([&] {
            const std::int16_t n = counts.contar(static_cast<int>(k), xKeyWords[k]);
            found.in_title = n;
            if (counts.absent()) { // its density leaves the title alone
                found.title_density = 0;
                return;
            }
            counts.changed();
            found.title_density = static_cast<std::int16_t>(densidad2(n, titulo, xKeyWords[k]));
        });
    }
}

void Form12::reporte2_2(const Text& path, const Text& page, std::int16_t& index, int kind, const Text& s1,
                        const Text& s2, const Text&, std::int64_t bytes) {
    Label2.caption =
        u"Creating + Analizing " + (Len(path) < 71 ? path : Left(path, 10) + u"..." + Right(path, 50));
    ignoring_faults([&] {
        desktop().show_html(wb1, u"starting browser...");
        desktop().show_html(wb1, page);
        DoEvents();
    });
    PageRecord made = std::exchange(next_made_, {});
    const TextView siblings = std::exchange(next_siblings_, {});
    if (index < 0 || std::cmp_greater_equal(index, informe.size())) return;
    PageAnalysis& entry = at(informe, index);
    entry = {};
    entry.made = std::move(made);
    entry.keywords.resize(static_cast<std::size_t>(n_kw));
    entry.path = path;
    entry.file = bare_file_name(path);
    ignoring_faults(
        [&] { entry.kb = to_text(static_cast<double>(bytes < 0 ? FileLen(path) : bytes) / 1000); });
    entry.kind = to_text(kind);
    const KeywordSet& set = keyword_set();
    analyse_body(entry, page, set);
    analyse_title(entry, page, set);
    if (contains(page, u"<!-- url")) ignoring_faults([&] { entry.url = commented_url(page); });
    entry.leads_to = book_.read(path, page, siblings);
    entry.links = to_text(static_cast<int>(entry.leads_to.mentions) - 1); // leaves one out
    if (kind == 2 || kind == 3) entry.links_to = s1;
    if (kind == 3) entry.redirect = s2;
}

void Form12::keep_record(const PageRecord& made, TextView siblings) {
    next_made_ = made;
    next_siblings_ = siblings;
}

void Form12::links_from(const Text& path, const Text& page) {
    others_.push_back({path, book_.read(path, page, {})});
}

void Form12::ended(RunFacts facts) {
    facts_ = std::move(facts);
}

std::shared_ptr<const SiteReport> Form12::overview() {
    if (facts_ && !overview_)
        overview_ = std::make_shared<const SiteReport>(make_site_report(
            informe, xKeyWords, others_, book_, *facts_, measure_folders(facts_->project_folder)));
    return overview_;
}

void Form12::save_report(ReportFormat format) {
    const std::shared_ptr<const SiteReport> site = overview();
    if (!site) return;
    const TextView ending = ending_of(format);
    const std::optional<Text> file =
        desktop().ask_save_file({.title = u"Save the report",
                                 .start_folder = app_path(),
                                 .filter = u"*" + Text(ending),
                                 .file_name = site->facts.project + u"-report" + Text(ending),
                                 .ending = Text(ending)});
    if (!file) return;
    const Text written = with_ending(*file, ending);
    write_report(*this, format, written);
    say(u"Report saved as " + written);
}

/// Tails of the file names of a range of pages; past the analysis there is none.
void Form12::fill_list(ListBox& list, int first, int end, int width) {
    list.clear();
    for (int i = first; i < end && i < static_cast<int>(informe.size()); ++i)
        list.add_item(Right(at(informe, i).file, width));
}

void Form12::reporte2_3(int first_level_pages) {
    fill_list(List1, 0, first_level_pages, 35);
}

void Form12::reporte_nivel2(int first, int end) {
    inicio2 = CInt(static_cast<double>(first));
    fill_list(List2, first, end, 40);
}

void Form12::reporte_nivel3(int first, int end) {
    inicio3 = CInt(static_cast<double>(first));
    fill_list(List3, first, end, 50);
    DoEvents();
    enable_lists(true);
    Label2.caption = u"Action Complete. Select the pages in the diferent boxes to see the analysis.";
}

void Form12::List_Click(int list) {
    ListBox* const lists[] = {&List1, &List2, &List3};
    const ListBox& clicked = *lists[list - 1];
    if (clicked.list_index() >= 0 && !trim_view(clicked.text()).empty())
        Show_reporte(clicked.list_index(), list);
    for (ListBox* other : lists)
        if (other != &clicked) other->list_index = -1;
}

void Form12::Show_reporte(int position, int list) {
    Command3.enabled = true;
    const int index = position + (list == 2 ? inicio2 : list == 3 ? inicio3 : 0);
    const PageAnalysis& page = at(informe, index);
    desktop().navigate(wb1, page.path);
    RichTextBox1.text = report_text(page, list);
}

Text Form12::report_text(const PageAnalysis& page, int list) const {
    static const TextView kinds[] = {u"", u"First-Level Page", u"Second-Level Page", u"Random-Generated Page",
                                     u"SiteMAP"};
    Text r;
    const auto line = [&r](const Text& text) { r.append(text).append(vbCrLf); };
    line(u"File: " + page.file);
    line(u"Local Path: " + page.path);
    line(u"FileSize: " + page.kb + u" Kb.");
    const int kind = static_cast<int>(Val(page.kind));
    line(u"Page Type: " + Text(kinds[kind >= 1 && kind <= 4 ? kind : 0]));
    if (list == 2) line(u"Links to First-Level Page: " + rspaces(screen<Form6>().choices, page.links_to));
    if (list == 3) {
        line(u"JavaScript Redirection to Target Site?: " + page.redirect);
        line(u"");
    }
    const auto keyword_lines = [&](TextView where, auto count, auto density) {
        for (std::size_t k = 0; k < page.keywords.size(); ++k) {
            const KeywordTexts found = keyword_texts(page, k);
            const Text named = u" for [" + xKeyWords[k] + u"]";
            if (found.*count == u"0") {
                line(u"No KeyWords" + LCase(where) + named);
                continue;
            }
            line(u"KeyWord Count" + Text(where) + named + u": " + found.*count + u" repetitions");
            line(u"   KeyWord Density" + Text(where) + named + u": " + found.*density + u" %");
        }
    };
    line(u"Body Word Count: " + page.words + u" words");
    keyword_lines(u"", &KeywordTexts::count, &KeywordTexts::density);
    line(u"");
    line(u"Title: " + page.title);
    line(u"Title Word Count: " + page.title_words + u" words");
    keyword_lines(u" in Title", &KeywordTexts::title_count, &KeywordTexts::title_density);
    line(u"URL: " + (list == 1 ? screen<Form7>().Text2.text() + u"\\" + page.file : page.url));
    line(u"");
    line(u"Make sure this file is uploaded to the directory above. Otherwise generated-pages will not be "
         u"interlinked.");
    line(
        u"As you can see in the directory " + app_path() +
        u"\\Projects\\ [project's name] \\ there are several directories. Each directory indicates where you "
        u"must upload your gateway pages. Consult the Manual for help.");
    line(u"Links Count: " + page.links);
    return r + u"Report Generated at " + ahora();
}

void Form12::Command2_Click() {
    screens().unload<Form12>();
}

void Form12::Command3_Click() {
    const Text& project = screen<Form2>().txt_name[0].text();
    try {
        desktop().start(joined_path(beside_program(u"Projects"), project, u"sitemap-do-not-upload.htm"));
    } catch (const RuntimeFault&) {
        Message message{u"Your pages are ready.Open your browser to see them \rProjects\\" + project +
                        u"\\sitemap-do-not-upload.htm"};
        message.critical = true;
        desktop().MsgBox(message);
    }
}

void Form12::enumerate(ScreenMap& map) {
    map.event("List1", "Click", [this] { List_Click(1); });
    map.event("List2", "Click", [this] { List_Click(2); });
    map.event("List3", "Click", [this] { List_Click(3); });
    map.events<&Form12::Command2_Click, &Form12::Command3_Click>(*this);
}

} // namespace twk
