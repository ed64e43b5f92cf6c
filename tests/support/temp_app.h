// SPDX-License-Identifier: MIT
#pragma once

#include "platform/process.h"
#include "store/database.h"
#include "support/test_desktop.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace twk::test {

/// All bytes of a file; none when it cannot be read.
std::string bytes_of(const std::filesystem::path& file);
/// A file or folder of tests/golden.
std::filesystem::path golden(const std::string& name);

/// An application folder of its own for a test: fresh, empty stores, the delivered files, a scripted desktop,
/// a clock that stands at 24 November 2026, 10:18:05, and the fixed seed 1. All of it goes with the object.
class TempApp {
  public:
    TempApp();
    /// The same on an application folder that stands, and stays.
    explicit TempApp(std::filesystem::path folder);
    ~TempApp();
    TempApp(const TempApp&) = delete;
    TempApp& operator=(const TempApp&) = delete;

    TestDesktop desktop;
    std::shared_ptr<FixedClock> clock;

    const std::filesystem::path& folder() const { return folder_; }
    /// Path of a file in the folder, as the program names it.
    Text path(TextView relative) const;
    void write(TextView relative, std::string_view bytes) const; ///< makes the folders on its way
    std::string read(TextView relative) const;
    bool exists(TextView relative) const;

    Database hive() const;
    Database synonyms() const;
    /// Runs statements as they are, whatever the program would say to them: past its own way to a store.
    void run(const Text& statement, TextView store = u"hive.mdb") const;
    void run(const std::string& sql) const { run(from_utf8(sql)); }
    /// First column named `column` of the first row, empty when there is none.
    Text value(const Text& statement, TextView column) const;
    /// What a statement finds in the project store, or in `synonyms` of the other: columns parted by ",",
    /// rows by "|".
    std::string rows_of(const std::string& sql) const;
    /// All rows of the project store, one a line.
    std::string all_rows() const;
    int count(const Text& statement, TextView store = u"hive.mdb") const;

  private:
    using EachRow = int (*)(void* into, int columns, char** values, char** names);
    /// Code of the library.
    int query(const Text& sql, TextView store, EachRow each, void* into) const;

    std::filesystem::path folder_;
    std::optional<ProcessGuard> guard_;
    bool temporary_ = false;
};

} // namespace twk::test
