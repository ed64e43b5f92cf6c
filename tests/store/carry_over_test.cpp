// SPDX-License-Identifier: MIT
#include "platform/faults.h"
#include "store/carry_over.h"
#include "store/store_file.h"
#include "store/store_setup.h"
#include "support/temp_app.h"

#include <chrono>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace twk::test {

namespace {

const std::string key = "lantern4821";

/// Puts a store of the tests' data into the place of the application's.
void put_store(const TempApp& app, const std::string& name) {
    app.write(u"hive.mdb", bytes_of(std::filesystem::path(TEST_OLD_STORES_DIR) / name));
}

/// Opens the store in yet another form, one that both libraries know. Its pages are as large as the usual
/// ones: 3.4 reads past the end of a smaller page when a broken-off change is undone with the wrong key.
sqlite3* open_foreign(const std::string& file, int flags = SQLITE_OPEN_READWRITE) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(file.c_str(), &db, flags, nullptr);
    run_own(db, "PRAGMA key = " + quoted(key) + "; PRAGMA cipher_page_size = 4096; PRAGMA kdf_iter = 5000");
    return db;
}

/// What must come through: 50 rows, and that the key 51 has been in use.
bool whole(sqlite3* db) {
    return value_of(db, "select count(*) from keywords") == "50" &&
           value_of(db, "select seq from sqlite_sequence where name = 'keywords'") == "51" &&
           value_of(db, "PRAGMA integrity_check") == "ok";
}

void remove_all_of(const std::string& file) {
    for (const char* const part : {"", "-journal", "-wal", "-shm", ".new", ".new-journal", ".debian13"})
        std::filesystem::remove(file + part);
}

void make_foreign(const std::string& file) {
    remove_all_of(file);
    sqlite3* const db = open_foreign(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    run_own(db, "PRAGMA journal_mode = WAL");
    run_own(db, bytes_of(std::filesystem::path(TEST_DATA_DIR) / "schema_hive.sql"));
    run_own(db, "BEGIN");
    for (int i = 0; i < 51; ++i) run_own(db, "insert into keywords ( keyword ) values ( 'word' )");
    run_own(db, "delete from keywords where keyid = 51; COMMIT");
    sqlite3_close(db);
}

bool carry(const std::string& file) {
    sqlite3* const from = open_foreign(file);
    const bool carried = carry_over(from, file, key);
    sqlite3_close(from);
    return carried;
}

/// Whether the store stands under its name, whole, in one of the two forms.
bool stands(const std::string& file) {
    const auto [db, code] = try_open(file, SQLITE_OPEN_READWRITE, key, CipherForm::common);
    const bool carried = code == SQLITE_OK && whole(db);
    sqlite3_close(db);
    if (carried) return std::filesystem::exists(file + ".debian13");
    sqlite3* const old = open_foreign(file);
    const bool untouched = whole(old);
    sqlite3_close(old);
    return untouched;
}

} // namespace

TEST(StoresOfBothLibraries, AreOneFormat) {
    for (const char* const name : {"hive-3.4.1.mdb", "hive-4.5.5.mdb"}) {
        const TempApp app;
        put_store(app, name);
        EXPECT_EQ(app.value(u"select * from Projects", u"name"), u"garden-sample") << name;
        app.run(u"insert into keywords ( pid , keyword ) values ( 1 , 'new' ) ");
        EXPECT_EQ(app.value(u"select * from keywords where pid = 1 and keyword = 'new'", u"keyid"), u"7");
        sqlite3* const db = open_store(to_utf8(app.path(u"hive.mdb")), SQLITE_OPEN_READWRITE, key);
        EXPECT_EQ(value_of(db, "PRAGMA integrity_check"), "ok") << name;
        sqlite3_close(db);
        EXPECT_FALSE(app.exists(u"hive.mdb.debian13")) << name;
    }
}

TEST(StoreOfDebian13, IsCarriedOverOnceOrSaysWhatToDo) {
    const TempApp app;
    sqlite3* const any = open_store(to_utf8(app.path(u"hive.mdb")), SQLITE_OPEN_READWRITE, key);
    const bool readable = reads_sha512(any);
    sqlite3_close(any);
    put_store(app, "hive-4.6-sha512.mdb");
    const std::string before = app.read(u"hive.mdb");
    if (!readable) {
        try {
            app.hive();
            ADD_FAILURE() << "a store that cannot be read was opened";
        } catch (const RuntimeFault& fault) {
            EXPECT_EQ(fault.number(), fault_store_password);
            EXPECT_TRUE(contains(fault.text(), u"hive.mdb' comes from Debian 13")) << fault.what();
        }
        EXPECT_EQ(app.read(u"hive.mdb"), before);
        return;
    }
    {
        const Database reader = OpenDatabase(app.path(u"hive.mdb"), false, true, u";pwd=lantern4821");
        EXPECT_EQ(Database(reader).OpenRecordset({u"select * from keywords"}).RecordCount(), 6);
    }
    EXPECT_EQ(app.read(u"hive.mdb"), before);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(app.value(u"select * from Projects", u"name"), u"garden-sample");
    for (const auto& [name, form] :
         {std::pair(u"hive.mdb", CipherForm::common), std::pair(u"hive.mdb.debian13", CipherForm::sha512)}) {
        const auto [db, code] = try_open(to_utf8(app.path(name)), SQLITE_OPEN_READONLY, key, form);
        EXPECT_EQ(code, SQLITE_OK) << to_utf8(name);
        EXPECT_EQ(value_of(db, "select count(*) from elements"), "14") << to_utf8(name);
        sqlite3_close(db);
    }
    EXPECT_FALSE(app.exists(u"hive.mdb.new"));
    EXPECT_FALSE(app.exists(u"hive.mdb.debian13.2"));
}

TEST(CarryOver, LeavesTheOldFileUnderAnotherNameAndWaitsForOthersToLeave) {
    const TempApp app;
    const std::string file = to_utf8(app.path(u"old.mdb"));
    make_foreign(file);
    std::filesystem::permissions(file, std::filesystem::perms(0640));
    app.write(u"old.mdb.debian13", "of an earlier day");
    app.write(u"old.mdb.new", "of a time that ended in the middle");
    sqlite3* const other = open_foreign(file);
    EXPECT_TRUE(whole(other));
    EXPECT_FALSE(carry(file));
    EXPECT_TRUE(run_own(other, "update keywords set keyword = 'changed'"));
    sqlite3_close(other);
    EXPECT_TRUE(carry(file));
    EXPECT_TRUE(stands(file));
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0640));
    const auto [db, code] = try_open(file, SQLITE_OPEN_READONLY, key, CipherForm::common);
    EXPECT_EQ(value_of(db, "select keyword from keywords"), "changed");
    EXPECT_EQ(value_of(db, "PRAGMA journal_mode"), "wal");
    sqlite3_close(db);
    EXPECT_EQ(app.read(u"old.mdb.debian13"), "of an earlier day");
    EXPECT_TRUE(app.exists(u"old.mdb.debian13.2"));
}

TEST(CarryOver, SurvivesAKillAtAnyMoment) {
    const TempApp app;
    const std::string file = to_utf8(app.path(u"old.mdb"));
    make_foreign(file);
    const std::string before = bytes_of(file);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(carry(file));
    const auto whole_time = std::chrono::steady_clock::now() - start;
    for (int i = 0; i < 20; ++i) {
        remove_all_of(file);
        app.write(u"old.mdb", before);
        const pid_t child = fork();
        if (child == 0) _exit(carry(file) ? 0 : 1);
        std::this_thread::sleep_for(whole_time * i / 20);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        EXPECT_TRUE(stands(file)) << i;
    }
}

} // namespace twk::test
