// SPDX-License-Identifier: MIT
#include "store/carry_over.h"

#include "store/store_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace twk {

namespace fs = std::filesystem;

namespace {

void remove_with_journals(const std::string& file) {
    std::error_code error;
    for (const char* const part : {"", "-journal", "-wal", "-shm"}) fs::remove(file + part, error);
}

/// Brings what stands in the log into the file and keeps everybody else out until the connection is closed.
/// Another connection that is open on the file makes the first step fail.
bool hold_alone(sqlite3* db) {
    sqlite3_busy_timeout(db, 0);
    return value_of(db, "PRAGMA main.journal_mode = DELETE") == "delete" &&
           run_own(db, "PRAGMA main.locking_mode = EXCLUSIVE") && run_own(db, "BEGIN EXCLUSIVE") &&
           run_own(db, "COMMIT");
}

/// Whether another file has taken the name since this one was opened.
bool has_moved(sqlite3* db) {
    int moved = 0;
    return sqlite3_file_control(db, "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

bool write_sibling(sqlite3* from, const std::string& sibling, const std::string& key) {
    // A connection that was opened to change a file makes no other one.
    if (!std::ofstream(sibling)) return false;
    if (!run_own(from, "ATTACH " + quoted(sibling) + " AS sibling KEY " + quoted(key))) return false;
    const bool written =
        set_form(from, "sibling", CipherForm::common) && run_own(from, "SELECT sqlcipher_export('sibling')");
    return run_own(from, "DETACH sibling") && written;
}

/// Whether the sibling is whole. It gets a log as every store has; nothing is in the log yet.
bool check_sibling(const std::string& sibling, const std::string& key) {
    const auto [db, code] = try_open(sibling, SQLITE_OPEN_READWRITE, key, CipherForm::common);
    const bool whole = code == SQLITE_OK && value_of(db, "PRAGMA integrity_check") == "ok" &&
                       value_of(db, "PRAGMA journal_mode = WAL") == "wal";
    return sqlite3_close(db) == SQLITE_OK && whole;
}

/// A second name for the old file.
bool keep_old(const std::string& file) {
    for (int n = 1; n < 100; ++n) {
        const std::string kept = file + ".debian13" + (n == 1 ? "" : "." + std::to_string(n));
        std::error_code error;
        // From a time that ended between this step and the next.
        if (fs::equivalent(kept, file, error)) return true;
        if (fs::exists(fs::symlink_status(kept, error))) continue;
        fs::create_hard_link(file, kept, error);
        if (!error) return true;
        // Some file systems have no second names.
        const std::string part = file + ".part";
        fs::copy_file(file, part, fs::copy_options::overwrite_existing, error);
        if (!error) fs::rename(part, kept, error);
        return !error;
    }
    return false;
}

bool take_place(const std::string& sibling, const std::string& file) {
    std::error_code error;
    fs::permissions(sibling, fs::status(file, error).permissions(), error);
    if (error || !keep_old(file)) return false;
    fs::rename(sibling, file, error);
    return !error;
}

} // namespace

bool carry_over(sqlite3* from, const std::string& file, const std::string& key) {
    const bool logged = value_of(from, "PRAGMA main.journal_mode") == "wal";
    const std::string sibling = file + ".new";
    bool done = false;
    if (hold_alone(from)) {
        if (has_moved(from)) return true;
        remove_with_journals(sibling); // of a time that ended in the middle
        done = write_sibling(from, sibling, key) && check_sibling(sibling, key) && take_place(sibling, file);
        if (!done) remove_with_journals(sibling);
    }
    if (!done && logged) {
        run_own(from, "PRAGMA main.locking_mode = NORMAL");
        run_own(from, "PRAGMA main.journal_mode = WAL");
    }
    return done;
}

} // namespace twk
