// SPDX-License-Identifier: MIT
#include "cli/commands.h"
#include "platform/screens.h"
#include "support/sample_project.h"
#include "support/temp_app.h"

#include <map>
#include <sstream>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace twk::test {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

struct Outcome {
    int status = -1;
    std::string out;
    std::string err;
};

/// An application folder with the delivered stores, in which commands are run as the process would.
class CommandLine : public ::testing::Test {
  protected:
    CommandLine() {
        for (const char* store : {"hive.mdb", "synonyms.mdb"})
            fs::copy_file(fs::path(TEST_STORES_DIR) / store, app.folder() / store,
                          fs::copy_options::overwrite_existing);
    }

    static Outcome run_bare(std::vector<std::string> arguments) {
        std::ostringstream out, err;
        const int status = cli::run_command_line(std::move(arguments), {out, err});
        return {status, out.str(), err.str()};
    }
    Outcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--app", app.folder().string()});
        return run_bare(std::move(arguments));
    }
    Outcome generate(std::vector<std::string> more = {}) const {
        more.insert(more.begin(),
                    {"generate", "garden-sample", "--seed", "7", "--now", "2026-11-24 10:18:05"});
        return run(std::move(more));
    }

    /// Path below the project's folder to content, of every file there.
    std::map<std::string, std::string> output() const {
        const fs::path folder = app.folder() / "Projects" / "garden-sample";
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file())
                files[entry.path().lexically_relative(folder).string()] = bytes_of(entry.path());
        }
        return files;
    }

    TempApp app;
};

TEST_F(CommandLine, WrongUsageIsStatusTwoAndHelpIsStatusZeroOnTheOutput) {
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {"dance"},
        {"generate"},
        {"list", "garden-sample"},
        {"check", "garden-sample", "--seed", "1"},
        {"generate", "garden-sample", "--seed", "many"},
        {"generate", "garden-sample", "--now", "yesterday"},
        {"generate", "garden-sample", "--now", "2026-02-29 10:00:00"},
        {"generate", "garden-sample", "--now", "2026-02-28 24:00:00"},
        {"--app", "/there/is/no/such/folder", "list"},
    };
    for (const auto& arguments : wrong) {
        const Outcome outcome = run_bare(arguments);
        EXPECT_EQ(outcome.status, 2) << (arguments.empty() ? "no argument" : arguments.back());
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err, "");
    }
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"--help"}, {"generate", "--help"}, {"check", "-h"}}) {
        const Outcome outcome = run_bare(arguments);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_NE(outcome.out.find("Usage"), std::string::npos);
        EXPECT_EQ(outcome.err, "");
    }
    EXPECT_FALSE(app.exists(u"Projects")) << "wrong usage touches nothing";
}

TEST_F(CommandLine, ListTellsTheProjectsInTheOrderOfTheStore) {
    app.run(u"insert into Projects ( name ) values ( 'almonds' )");
    const Outcome outcome = run({"list"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "garden-sample\nalmonds\n");
}

TEST_F(CommandLine, CheckPassesTheDeliveredSampleAndGeneratesNothing) {
    const Outcome outcome = run({"check", "Garden-Sample"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(
        outcome.out.find(
            "garden-sample: ready for Step 5 with 6 keywords, 8 content boxes and 3 gateway directories"),
        std::string::npos)
        << outcome.out;
    EXPECT_TRUE(output().empty());
    EXPECT_TRUE(screens().open().empty()) << "no screen outlives its command";
}

TEST_F(CommandLine, ARefusalOfTheWizardIsStatusThreeWithItsMessage) {
    const auto refused = [&](const std::string& message) {
        const Outcome outcome = run({"check", "garden-sample"});
        EXPECT_EQ(outcome.status, 3) << message;
        EXPECT_NE(outcome.err.find(message), std::string::npos) << outcome.err;
        EXPECT_EQ(outcome.out, "");
    };
    EXPECT_EQ(run({"check", "nobody"}).status, 3);
    EXPECT_NE(run({"check", "nobody"}).err.find("Must select a Project from the dropdown list"),
              std::string::npos);
    // A name in another encoding does not spoil the figures.
    const Outcome latin = run({"generate", "caf\xe9", "--json"});
    EXPECT_EQ(latin.status, 3);
    EXPECT_EQ(Json::parse(latin.out).at("status"), 3);

    fs::remove(app.folder() / "twk.dat");
    refused("ERROR: Missing File");
    app.run(u"delete from host1");
    refused("You must enter an URL to host the gateway pages");
    app.run(u"delete from content where cid > 1");
    refused("You Must enter at least 2 content boxes.");
    app.run(u"delete from keywords where keyid > 2");
    refused("You must provide more than 3 keywords");
    app.run(u"update Projects set site_url = 'http://www.greenspade.example/'");
    refused("You can't put a backward or fordward slash at the end of the Target Site URL");
}

TEST_F(CommandLine, AFaultIsStatusOneWithItsMessage) {
    // A statement that an apostrophe breaks.
    app.run("update Projects set designer_name = 'O''Hara'");
    Outcome outcome = generate();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("Run-time error '3075':"), std::string::npos) << outcome.err;

    fs::remove(app.folder() / "hive.mdb");
    outcome = run({"list"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("Run-time error '3024':"), std::string::npos) << outcome.err;
    EXPECT_FALSE(app.exists(u"hive.mdb")) << "a store is never made";

    EXPECT_EQ(run({"generate", "garden-sample", "--report", "/there/is/no/such/folder/r.json"}).status, 1);
}

TEST_F(CommandLine, GenerateWritesTheSampleAndTellsPagesBytesAndSeconds) {
    const Outcome outcome = generate();
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const auto files = output();

    const std::string main = "pages.greenspade.example/";
    for (const char* page : {"vegetable_garden.htm", "seed_saving.htm", "sitemap.htm"})
        EXPECT_TRUE(files.contains(main + page)) << page;
    int random_pages = 0;
    std::size_t pages = 0, bytes = 0;
    for (const auto& [path, content] : files) {
        bytes += content.size();
        if (path.ends_with(".htm") || path.ends_with(".HTM")) ++pages;
        for (const char* host :
             {"pages.greenspade.example_More_Files/", "allotment.example-notes/", "kitchen-plot.example/"})
            if (path.starts_with(host) && path.ends_with(".htm") && !path.ends_with("/index.htm"))
                ++random_pages;
    }
    EXPECT_EQ(random_pages, 18) << "20 pages over three destinations, the remainder left out";
    const std::string figures = std::to_string(pages) + " pages, " + std::to_string(bytes) + " bytes, ";
    EXPECT_NE(outcome.out.find(figures), std::string::npos) << figures << '\n' << outcome.out;
    const std::string site_map = outcome.out.substr(outcome.out.find("local site map: ") + 16);
    EXPECT_TRUE(fs::is_regular_file(site_map.substr(0, site_map.find('\n')))) << site_map;
    EXPECT_NE(outcome.out.find("vegetable_garden.htm"), std::string::npos) << "tells pages as it goes";
    EXPECT_TRUE(app.exists(u"garden-sample.dat"));
    EXPECT_TRUE(app.exists(u"last-generated.txt"));
    EXPECT_FALSE(app.exists(u"garden-sample.fnm")) << "the question whether to save the names gets a No";
}

TEST_F(CommandLine, TheDeliveredStrategyFillsTheRandomPagesOfTheSample) {
    fs::copy_file(fs::path(TEST_DATA_DIR) / "garden-sample.dat", app.folder() / "garden-sample.dat");
    ASSERT_EQ(generate().status, 0);
    int filled = 0;
    for (const auto& [path, content] : output()) {
        if (!path.ends_with(".htm") || path.ends_with("index.htm") ||
            path.starts_with("pages.greenspade.example/"))
            continue;
        EXPECT_NE(content.find("<!-- Still Info -->"), std::string::npos) << path << " has no body";
        ++filled;
    }
    EXPECT_EQ(filled, 9) << "10 pages over three destinations, the remainder left out";
}

TEST_F(CommandLine, OneSeedAndMomentGiveTheSameBytesTwice) {
    ASSERT_EQ(generate().status, 0);
    const auto first = output();
    // The second run starts from the settings file that the first one saved.
    ASSERT_EQ(generate().status, 0);
    EXPECT_EQ(output(), first);
    ASSERT_EQ(run({"generate", "garden-sample", "--seed", "8", "--now", "2026-11-24 10:18:05"}).status, 0);
    EXPECT_NE(output(), first);
}

TEST_F(CommandLine, ReportAndFiguresAreJson) {
    const fs::path report_file = app.folder() / "report.json";
    const Outcome outcome = generate({"--json", "--report", report_file.string()});
    ASSERT_EQ(outcome.status, 0) << outcome.err;

    const Json figures = Json::parse(outcome.out);
    EXPECT_EQ(figures.at("project"), "garden-sample");
    EXPECT_EQ(figures.at("status"), 0);
    EXPECT_GE(figures.at("seconds"), 0);
    int pages = 0;
    for (const Json& each : figures.at("destinations")) pages += each.at("pages").get<int>();
    EXPECT_EQ(figures.at("pages"), pages);

    const Json report = Json::parse(app.read(u"report.json"));
    std::map<int, int> of_kind;
    int kind_before = 0;
    for (const Json& page : report) {
        const int kind = page.at("kind");
        EXPECT_GE(kind, kind_before) << "page order";
        kind_before = kind;
        ++of_kind[kind];
        const fs::path path = app.folder() / page.at("path").get<std::string>();
        EXPECT_TRUE(fs::exists(path)) << path;
        EXPECT_GT(page.at("words"), 0);
        EXPECT_EQ(page.at("keywords").size(), 6U);
        EXPECT_EQ(page.at("redirect").get<std::string>().empty(), kind != 3);
    }
    // Every keyword, every subkeyword (and the site's name for the one without), every page of the passes.
    EXPECT_EQ(of_kind[1], 6);
    EXPECT_EQ(of_kind[2], 15);
    EXPECT_EQ(of_kind[3], 18 + 3);
    const Json& first = report.at(0).at("keywords").at(0);
    EXPECT_EQ(first.at("keyword"), "vegetable garden");
    EXPECT_GT(first.at("count"), 0);
    EXPECT_GT(first.at("density"), 0);
}

TEST_F(CommandLine, ReportsAreThePageTheTableAndTheArrayThatStandHere) {
    fs::create_directory(app.folder() / "reports");
    for (const char* const file : {"sample.html", "sample.csv", "sample.json"})
        ASSERT_EQ(generate({"--report", (app.folder() / "reports" / file).string()}).status, 0);
    expect_same_tree(app.path(u"reports"), "reports");
}

TEST_F(CommandLine, ExplainTellsHowAPageWasMadeAndLeavesTheProjectAlone) {
    ASSERT_EQ(generate().status, 0);
    const auto before = output();
    const auto explain = [this](const std::string& page) {
        return run({"explain", "garden-sample", page, "--seed", "9", "--now", "2026-11-24 10:18:05"});
    };
    const Outcome told = explain("Pages.greenspade.example/vegetable_garden.htm");
    EXPECT_EQ(told.status, 0) << told.err;
    EXPECT_NE(told.out.find("which is tied to the keyword"), std::string::npos) << told.out;
    EXPECT_EQ(explain("index.htm").out.find("http://pages.greenspade.example/index.htm"), 0U)
        << "and two more";
    EXPECT_EQ(explain("nothing.htm").status, 3);
    EXPECT_EQ(output(), before);
}

TEST_F(CommandLine, ARunThatEndsByItsOwnMessageIsRefused) {
    fs::remove_all(app.folder() / "Images");
    fs::create_directory(app.folder() / "Images");
    const Outcome outcome = generate({"--json"});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_NE(outcome.err.find("Must have more than 3 images"), std::string::npos) << outcome.err;
    const Json told = Json::parse(outcome.out);
    EXPECT_EQ(told.at("status"), 3);
    EXPECT_NE(told.at("message").get<std::string>().find("Must have more than 3 images"), std::string::npos);
}

} // namespace
} // namespace twk::test
