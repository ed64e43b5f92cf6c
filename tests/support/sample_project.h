// SPDX-License-Identifier: MIT
#pragma once

#include "engine/run.h"
#include "settings/form6.h"
#include "support/temp_app.h"

namespace twk::test {

/// The text, so many times.
Text repeated(TextView text, int times);

/// The small shed project: three keywords in mixed case, one of them without subkeywords, four boxes (a short
/// one, a tied one, one with letters beyond ASCII), no secondary host and no other target. It is put into the
/// store of a test's application folder, and the screens that a run reads are loaded.
/// The strategy (tests/golden/strategy.dat) has no chance decorations, no Step 6 and ten random pages;
/// a test changes the controls of `form`, and the rows.
class SampleProject {
  public:
    explicit SampleProject(TempApp& app);

    Form6& form;
    twk::Run& run() const { return *form.run; }
    /// Folder of the project and of its main host, below the application folder.
    static Text folder(TextView below = {}) { return u"Projects/shed" + slash(below); }
    static Text main_folder(TextView below = {}) {
        return folder(u"pages.oakshed.example-sheds") + slash(below);
    }

    /// The click of "Next: Generate Gateway Pages", confirmed; returns whether it ended without a fault.
    bool generate();

  private:
    static Text slash(TextView below) { return below.empty() ? Text() : u"/" + Text(below); }
    TempApp& app_;
};

/// Compares a generated tree with the golden one, file by file and line by line; pictures and animations only
/// by name. The application folder's path is written as "{APP}" in the golden pages.
///
/// To renew a golden tree, delete its folder and run the test: it writes the folder anew and fails, once, so
/// that somebody looks at what has changed before it is committed.
void expect_same_tree(const Text& actual_folder, const std::string& golden_case);

} // namespace twk::test
