// SPDX-License-Identifier: MIT
#pragma once

#include "engine/run.h"
#include "settings/form6.h"
#include "support/temp_app.h"

#include <vector>

namespace twk::test {

/// The text, so many times.
Text repeated(TextView text, int times);

/// A keyword of a project with its subkeywords.
struct SampleKeyword {
    Text keyword;
    std::vector<Text> subkeywords{};
};

/// A content box and the keywords that are tied to it.
struct SampleBox {
    Text text;
    std::vector<Text> tied{};
};

/// What a test project is made of; as it comes, the small shed project: three keywords in mixed case, one of
/// them without subkeywords, four boxes (a short one, a tied one, one with letters beyond ASCII), no
/// secondary host and no other target.
struct SampleContent {
    Text name = u"shed";
    Text site_name = u"OakShed";
    Text designer_name = u"Ida Brook";
    Text designer_url = u"http://www.oakshed.example/ida";
    std::vector<SampleKeyword> keywords;
    std::vector<SampleBox> boxes;
    Text main_host = u"http://pages.oakshed.example/sheds";
    std::vector<Text> hosts;
    std::vector<Text> targets;

    SampleContent();
};

/// Puts a project into the store of a test's application folder and loads the screens that a run reads.
/// The strategy (tests/golden/strategy.dat) has no chance decorations, no Step 6 and ten random pages;
/// a test changes the controls of `form`.
class SampleProject {
  public:
    explicit SampleProject(TempApp& app, const SampleContent& content = {});

    Form6& form;
    twk::Run& run() const { return *form.run; }
    /// Folder of the project and of its main host, below the application folder.
    Text folder(TextView below = {}) const;
    Text main_folder(TextView below = {}) const;

    /// The click of "Next: Generate Gateway Pages", confirmed; returns whether it ended without a fault.
    bool generate();

  private:
    TempApp& app_;
    Text name_;
    Text main_segment_;
};

/// Compares a generated tree with the golden one, file by file and line by line; pictures and animations only
/// by name. The application folder's path is written as "{APP}" in the golden pages.
///
/// To renew a golden tree, delete its folder and run the test: it writes the folder anew and fails, once, so
/// that somebody looks at what has changed before it is committed.
void expect_same_tree(const Text& actual_folder, const std::string& golden_case);

} // namespace twk::test
