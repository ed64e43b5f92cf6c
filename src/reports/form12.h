// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/keyword_counts.h"
#include "platform/screens.h"
#include "reports/page_analysis.h"
#include "reports/page_table.h"
#include "reports/report_file.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace twk {

class KeywordTable;

/// The report: shows the progress of a run and the analysis of every page it wrote.
class Form12 {
  public:
    static constexpr const char* name = "Form12";
    static constexpr TextView title = u"Generated Pages Report";
    static constexpr bool marked = true;

    Form12(); ///< lists, report and buttons stay disabled until a run has ended

    ScreenMap map; ///< the controls below enter themselves

    TWK_CONTROL(Frame, Frame1, u"Report");
    TWK_CONTROL(
        Label, Label6,
        u"These reports describe several settings in your generated pages: words, keywords, page weight, "
        u"number of links. You can use it to adjust your TWK settings and repeat the page generation step "
        u"(exit the program and reenter to clean old files). Remember to upload each page to its corresponding "
        u"directory, as saved in your hard disk.");
    TWK_CONTROL(Label, Label3, u"Now Performing Action:");
    TWK_CONTROL(Label, Label2); ///< status line
    TWK_CONTROL(ProgressBar, ProgressBar1);
    TWK_CONTROL(Label, lbl_progress); ///< pages written of those planned, and the time left
    TWK_CONTROL(Label, Label5, u"First-Level Pages");
    TWK_CONTROL(ListBox, List1);
    TWK_CONTROL(Label, Label4, u"Second-Level Pages");
    TWK_CONTROL(ListBox, List2);
    TWK_CONTROL(Label, Label1, u"Random Generated Pages");
    TWK_CONTROL(ListBox, List3);
    TWK_CONTROL(RichTextBox, RichTextBox1);
    TWK_CONTROL(WebBrowser, wb1);
    TWK_CONTROL(Label, Label7, u"(Appearance may be different than in maximized browser)");
    TWK_CONTROL(CommandButton, Command3, u"Open HTML sitemap on Browser");
    TWK_CONTROL(CommandButton, Command2, u"Close");

    void enumerate(ScreenMap& map);
    void Form_Load();
    void List_Click(int list); ///< 1, 2 or 3
    void Command2_Click();
    void Command3_Click();

    /// Empties the report and disables what shows it, until the run that begins has ended.
    void begin_run();
    /// The run has written a page.
    void page_done();
    /// The run has ended before its end: the report can be closed and tells of no action.
    void break_off();
    /// Keeps the number of subkeywords.
    void reporte2(int subkeywords);
    /// Sizes the analysis and takes the keywords over.
    void Reporte(const KeywordTable& tabla, int keywords);
    /// Analyses a page; all faults are ignored, what cannot be computed stays empty. `bytes` of the file are
    /// asked for when they are below 0.
    void reporte2_2(const Text& path, const Text& page, std::int16_t& index, int kind, const Text& s1,
                    const Text& s2, const Text& s3, std::int64_t bytes = -1);
    void reporte2_3(int first_level_pages);
    void reporte_nivel2(int first, int end);
    void reporte_nivel3(int first, int end);
    /// Keeps how the page that is analysed next is made. `siblings` is the part of its text that other pages
    /// share.
    void keep_record(const PageRecord& made, TextView siblings);
    /// Counts the links of a page that is not analysed.
    void links_from(const Text& path, const Text& page);
    /// The run has come to its end; the overview can be asked for.
    void ended(RunFacts facts);
    /// What the overview shows of the run, made when it is first asked for. Null until a run has ended. Fault
    /// 76 when its pages are gone.
    std::shared_ptr<const SiteReport> overview();
    /// Asks for a name and writes the report of the run that has ended under it.
    void save_report(ReportFormat format);
    /// Shows the report of the page at a position of list 1, 2 or 3.
    void Show_reporte(int position, int list);

    std::vector<Text> xKeyWords;
    std::vector<Text> sub_xKeyWords; ///< filled by nothing
    std::vector<PageAnalysis> informe;
    std::int16_t n_kw = 0;
    std::int16_t n_sub = 0;
    std::int16_t inicio2 = 0, inicio3 = 0; ///< first page of the second-level and of the random pages

  private:
    void enable_lists(bool on);
    void plan_pages(const KeywordTable& tabla);
    const KeywordSet& keyword_set();
    void analyse_body(PageAnalysis& page, const Text& html, const KeywordSet& set);
    void analyse_title(PageAnalysis& page, const Text& html, const KeywordSet& set);
    void fill_list(ListBox& list, int first, int end, int width);
    Text report_text(const PageAnalysis& page, int list) const;

    int pages_planned_ = 0; ///< by the run under way
    int pages_done_ = 0;
    double first_page_ = 0;             ///< when the run began to write, in seconds since midnight
    std::optional<KeywordSet> counted_; ///< the keywords, to be counted together
    LinkBook book_;
    std::vector<OtherPage> others_;
    PageRecord next_made_;
    TextView next_siblings_;
    std::optional<RunFacts> facts_; ///< once a run has ended
    std::shared_ptr<const SiteReport> overview_;
};

} // namespace twk
