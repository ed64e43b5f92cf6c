// SPDX-License-Identifier: MIT
// A whole run over a made-up project, from the click to the local site map.
//
//   run_bench [KEYWORDS SUBKEYWORDS BOXES WORDS RANDOM_PAGES [TEMPLATE]] [OPTION VALUE]...
//
// SUBKEYWORDS are those of each keyword, WORDS those of each box, TEMPLATE is 0 to 3. Prints pages, bytes,
// seconds, processor seconds and the process's largest resident size. Options:
//
//   --seed N       what the draws start from, 1 by default
//   --keep DIR     the application folder, made anew and kept; else a temporary one
//   --switches on  every switch of Step 5 on, other targets, secondary hosts; off: all off; else as delivered
//   --every N      every Nth word of a box is a keyword; 0: one of forty, by chance, and as many anchor words
//   --vocabulary N boxes draw from so many different words; 0: each word is made up
//   --tags N       a tag behind every Nth word
//   --keywords K   phrases ("garden topic 7"), words of their own, or words that share their beginning:
//   shared
//   --report FILE  what the report holds of every page
//   --overview yes then how long the overview takes: put together, written as HTML; in windows opened,
//   sorted,
//                  filtered
//   --window yes   in the program's own windows, on whatever display Qt finds (QT_QPA_PLATFORM=offscreen:
//   none)
//   --line yes     one line of figures: pages, bytes, seconds, processor seconds, the kernel's, MB resident

#include "engine/run.h"
#include "inputs/form3.h"
#include "inputs/form7.h"
#include "platform/process.h"
#include "platform/silent_desktop.h"
#include "reports/form12.h"
#include "reports/report_file.h"
#include "settings/form6.h"
#include "shell/form2.h"
#include "shell/module1.h"
#include "store/store_setup.h"
#include "text_shape.h"

#ifdef BENCH_WINDOWS
#include "desktop/qt_desktop.h"
#include "shell/mdi1.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>
#endif

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <sstream>

#include <sys/resource.h>

namespace {

using namespace twk;
namespace fs = std::filesystem;

/// Answers Yes to everything and shows nothing; messages go to the console.
class BenchDesktop : public SilentDesktop {
  public:
    Answer MsgBox(const Message& message) override {
        if (message.critical) std::fprintf(stderr, "%s\n", to_utf8(message.text).c_str());
        return message.buttons == Buttons::yes_no ? Answer::yes : Answer::ok;
    }
};

struct Size {
    int keywords = 100, subkeywords = 20, boxes = 50, words = 500, random_pages = 20, layout = 0;
};

struct Options {
    std::map<std::string, std::string> given;
    std::string value(const std::string& name, const std::string& otherwise = {}) const {
        const auto found = given.find(name);
        return found == given.end() ? otherwise : found->second;
    }
};

/// The project's rows as one script; a store is made from it at once.
std::string rows(const Size& size, const TextShape& shape) {
    std::mt19937 draw(1);
    std::ostringstream sql;
    sql << "insert into Projects (name, site_name, site_url, title, category, description, designer_name, "
           "designer_url) values ('bench', 'Bench', 'http://target.example', 'Subject', 'Category', "
           "'Description', 'Name', 'http://');\n";
    for (int k = 0; k < size.keywords; ++k) {
        sql << "insert into keywords (pid, keyword) values (1, '" << shape.keyword(k) << "');\n";
        for (int s = 0; s < size.subkeywords; ++s)
            sql << "insert into elements (catid, element) values (" << k + 1 << ", 'side path " << s << " of "
                << k << "');\n";
    }
    for (int b = 0; b < size.boxes; ++b)
        sql << "insert into content (pid, content) values (1, '"
            << shape.box_text(size.keywords, size.words, draw) << "');\n";
    return sql.str();
}

std::string schema(const char* name) {
    std::ostringstream text;
    text << std::ifstream(fs::path(BENCH_DATA_DIR) / name).rdbuf();
    return text.str();
}

void deliver(const fs::path& folder, const Size& size, const TextShape& shape) {
    for (const char* name : {"twk.dat", "Images", "swf"})
        fs::copy(fs::path(BENCH_DATA_DIR) / name, folder / name, fs::copy_options::recursive);
    create_store(app_path() + u"/hive.mdb", schema("schema_hive.sql") + rows(size, shape), "lantern4821");
    create_store(app_path() + u"/synonyms.mdb",
                 schema("schema_synonyms.sql") +
                     "insert into synonyms (keyword, synonyms) values ('and', 'plus');",
                 "");
}

/// Steps 1 to 4 as the wizard leaves them; gives Step 5.
Form6& load_screens(const Size& size, const TextShape& shape, const std::string& switches) {
    module1().pid_actual = 1;
    module1().proyecto_actual = u"bench";
    screen<Form2>().txt_name[0].text = u"bench";
    screen<Form2>().Text2[0].text = u"Bench";
    ListBox& keywords = screen<Form3>().List1;
    keywords.clear();
    for (int k = 0; k < size.keywords; ++k) keywords.add_item(from_utf8(shape.keyword(k)));
    screen<Form7>().Text2.text = u"http://main.example";
    screen<Form7>().List1.clear();
    Form6& form = screen<Form6>();
    form.Combo2.text = from_utf8(std::to_string(size.random_pages));
    form.Check9.value = false;
    if (!switches.empty())
        for (CheckBox* box : {&form.Check1, &form.Check2, &form.Check3, &form.Check4, &form.Check5,
                              &form.Check6, &form.Check7, &form.Check8, &form.Check10, &form.Check11,
                              &form.Check12, &form.Check13, &form.Check15})
            box->value = switches == "on";
    if (switches == "on") {
        form.Check9.value = true;
        screen<Form7>().List1.add_item(u"http://second.example/x");
        screen<Form2>().List1.add_item(u"http://other.example/shop");
        screen<Form2>().List1.add_item(u"http://other.example/plans");
    }
    choose_option(form.Template, static_cast<std::size_t>(size.layout));
    return form;
}

void write_report(const std::string& file) {
    std::ofstream out(file);
    const auto put = [&out](const Text& text) { out << to_utf8(text) << '|'; };
    for (const PageAnalysis& page : screen<Form12>().informe) {
        for (const Text* each :
             {&page.path, &page.kb, &page.kind, &page.words, &page.title, &page.title_words, &page.file,
              &page.url, &page.links, &page.links_to, &page.redirect})
            put(*each);
        for (std::size_t k = 0; k < page.keywords.size(); ++k) {
            const KeywordTexts texts = keyword_texts(page, k);
            for (const Text* field : {&texts.count, &texts.density, &texts.title_count, &texts.title_density})
                put(*field);
        }
        out << '\n';
    }
}

double seconds_of(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void time_overview() {
    Form12& report = screen<Form12>();
    std::size_t bytes = 0;
    const double together = seconds_of([&] { report.overview(); });
    const double written =
        seconds_of([&] { bytes = written_report(report, ReportFormat::html).value_or("").size(); });
    std::printf("overview put together in %.2f s, HTML of %.1f MB in %.2f s\n", together,
                static_cast<double>(bytes) / 1e6, written);
}

#ifdef BENCH_WINDOWS
template <class Widget> Widget* widget_named(const char* name) {
    for (QWidget* each : QApplication::allWidgets())
        if (each->objectName() == QLatin1String(name)) return qobject_cast<Widget*>(each);
    return nullptr;
}

/// What a hand waits for, each until it is drawn.
void time_table() {
    auto* const tabs = widget_named<QTabWidget>("tabs_report");
    auto* const table = widget_named<QTableView>("overview_pages");
    auto* const filter = widget_named<QLineEdit>("overview_filter");
    if (tabs == nullptr || table == nullptr || filter == nullptr) return;
    const auto drawn = [](const std::function<void()>& act) {
        return seconds_of([&act] {
            act();
            QCoreApplication::processEvents();
        });
    };
    const double opened = drawn([&] { tabs->setCurrentIndex(1); });
    double sorted = 0;
    for (int column = 0; column < table->model()->columnCount(); ++column)
        if (!table->isColumnHidden(column))
            sorted = std::max(sorted, drawn([&] { table->sortByColumn(column, Qt::AscendingOrder); }));
    const double filtered = drawn([&] { filter->setText(QStringLiteral("7")); });
    std::printf("table opened in %.2f s, sorted by any column in %.2f s at most, filtered in %.2f s\n",
                opened, sorted, filtered);
}
#endif

double in_seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Runs; true when the run came to its end.
bool timed_run(const Size& size, const TextShape& shape, const Options& options) {
    Form6& form = load_screens(size, shape, options.value("--switches"));
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    const auto start = std::chrono::steady_clock::now();
    form.Command1_Click();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    getrusage(RUSAGE_SELF, &after);
    const double kernel = in_seconds(after.ru_stime) - in_seconds(before.ru_stime);
    const double processor = in_seconds(after.ru_utime) - in_seconds(before.ru_utime) + kernel;
    const auto pages = static_cast<long long>(form.run->page.pages_written);
    const auto bytes = static_cast<double>(form.run->page.bytes_written);
    const double resident = static_cast<double>(after.ru_maxrss) / 1024;
    if (!options.value("--line").empty())
        std::printf("%lld %.0f %.3f %.3f %.3f %.0f\n", pages, bytes, seconds.count(), processor, kernel,
                    resident);
    else
        std::printf("%d keywords x %d subkeywords, %d boxes of %d words, %d random pages, template %d\n"
                    "%lld pages, %.1f MB, %.2f s, %.2f s of processor, %.0f MB resident at most\n",
                    size.keywords, size.subkeywords, size.boxes, size.words, size.random_pages, size.layout,
                    pages, bytes / 1e6, seconds.count(), processor, resident);
    if (const std::string file = options.value("--report"); !file.empty()) write_report(file);
    if (!options.value("--overview").empty()) {
        time_overview();
#ifdef BENCH_WINDOWS
        time_table();
#endif
    }
    return form.run->finished;
}

/// Sizes first, then options with their values; false for anything else.
bool read_arguments(int argc, char** argv, Size& size, Options& options) {
    int* const sizes[] = {&size.keywords, &size.subkeywords,  &size.boxes,
                          &size.words,    &size.random_pages, &size.layout};
    int i = 1;
    for (; i < argc && i <= 6 && argv[i][0] != '-'; ++i) *sizes[i - 1] = std::atoi(argv[i]);
    for (; i + 1 < argc; i += 2) options.given[argv[i]] = argv[i + 1];
    return i == argc;
}

std::string application_folder(const Options& options) {
    if (const std::string kept = options.value("--keep"); !kept.empty()) {
        fs::create_directories(kept);
        return fs::absolute(kept).string();
    }
    std::string folder = (fs::temp_directory_path() / "tarnwick-bench-XXXXXX").string();
    return mkdtemp(folder.data()) == nullptr ? std::string() : folder;
}

/// How the texts are made: what the options say.
TextShape shape_of(const Options& options) {
    TextShape shape;
    shape.every = std::stoi(options.value("--every", "0"));
    shape.vocabulary = std::stoi(options.value("--vocabulary", "0"));
    shape.tags = std::stoi(options.value("--tags", "0"));
    shape.kind = options.value("--keywords", "phrases");
    return shape;
}

struct Benchmark {
    const Size& size;
    const TextShape& shape;
    const Options& options;
    const std::string& folder;

    /// Runs in a process state of its own, with the clock standing and the draws those of the seed; true when
    /// the run came to its end.
    bool on(Desktop& desktop, const std::function<void()>& before) const {
        const ProcessGuard guard(desktop, from_utf8(folder),
                                 std::make_shared<FixedClock>(LocalTime{2026, 11, 24, 10, 18, 5, 0}),
                                 std::stoull(options.value("--seed", "1")));
        deliver(folder, size, shape);
        before();
        bool finished = false;
        return screens().dispatch([&] { finished = timed_run(size, shape, options); }) && finished;
    }
};

#ifdef BENCH_WINDOWS
/// The windows as they are, with somebody at them who answers Yes to everything.
class BenchWindows : public QtDesktop {
  public:
    Answer MsgBox(const Message& message) override {
        if (message.critical) std::fprintf(stderr, "%s\n", to_utf8(message.text).c_str());
        return message.buttons == Buttons::yes_no ? Answer::yes : Answer::ok;
    }
    void start(const Text&) override {}
    void wait_modal(Screen&) override {}
};

/// Runs with the main window in sight, once everything has been drawn.
bool run_in_windows(const Benchmark& run, int argc, char** argv) {
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1"); // it does not work for root
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    BenchWindows desktop;
    return run.on(desktop, [&desktop] {
        screens().dispatch([] { screens().show<mdi1>(); });
        desktop.window().show();
        desktop.wait(std::chrono::seconds(2), {});
    });
}
#endif

} // namespace

int main(int argc, char** argv) {
    Size size;
    Options options;
    if (!read_arguments(argc, argv, size, options)) return 2;
    const std::string folder = application_folder(options);
    if (folder.empty()) return 1;
    const TextShape shape = shape_of(options);
    const Benchmark run{size, shape, options, folder};
    bool finished = false;
#ifndef BENCH_WINDOWS
    if (!options.value("--window").empty()) {
        std::fprintf(stderr, "Built without the windows.\n");
        return 2;
    }
#else
    if (!options.value("--window").empty())
        finished = run_in_windows(run, argc, argv);
    else
#endif
    {
        BenchDesktop desktop;
        finished = run.on(desktop, [] {});
    }
    if (options.value("--keep").empty()) fs::remove_all(folder);
    return finished ? 0 : 1;
}
