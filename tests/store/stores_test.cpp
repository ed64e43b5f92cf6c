// SPDX-License-Identifier: MIT
#include "platform/faults.h"
#include "platform/numbers.h"
#include "store/store_setup.h"
#include "support/faults.h"
#include "support/temp_app.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace twk::test {

namespace {

Statement keyword_of(int pid, const Text& word) {
    return {u"insert into keywords ( pid , keyword ) values ( {} , '{}' ) ", pid, word};
}

/// Runs the action in another process; returns whether it ended well.
template <class Action> pid_t in_another_process(Action action) {
    const pid_t child = fork();
    if (child != 0) return child;
    try {
        action();
    } catch (...) {
        _exit(1);
    }
    _exit(0);
}

bool ended_well(pid_t child) {
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

TEST(OpenDatabase, FaultsWhereThereIsNoStoreAndMakesNone) {
    const TempApp app;
    const auto opening = [&](const Text& name, const Text& connect) {
        return fault_of([&] { OpenDatabase(app.path(name), false, false, connect); });
    };
    EXPECT_EQ(opening(u"absent.mdb", u";pwd=lantern4821"), fault_store_missing);
    EXPECT_FALSE(app.exists(u"absent.mdb"));
    EXPECT_EQ(opening(u"Images", u""), fault_store_missing);

    const Database open = app.hive(); // an open handle helps no one with the wrong password
    EXPECT_EQ(opening(u"hive.mdb", u";pwd=lantern4822"), fault_store_password);
    EXPECT_EQ(opening(u"hive.mdb", u";pwd=it's"), fault_store_password);
    EXPECT_EQ(opening(u"hive.mdb", u""), fault_store);

    app.write(u"broken.mdb", "this is a text and no store, however long it may go on");
    EXPECT_EQ(opening(u"broken.mdb", u""), fault_store);
    app.write(u"empty.mdb", "");
    EXPECT_EQ(opening(u"empty.mdb", u""), fault_store);
    EXPECT_EQ(app.read(u"empty.mdb"), "");
    EXPECT_EQ(fault_of([] { Database().Execute({u"delete from host"}); }), fault_store);
    EXPECT_EQ(fault_of([&] { create_store(app.path(u"hive.mdb"), "", ""); }), fault_path_access);
}

TEST(OpenDatabase, FindsTheFileWithoutRegardToCaseAndHidesItsContent) {
    const TempApp app;
    app.hive().Execute(keyword_of(1, u"unmistakable"));
    Database other = OpenDatabase(app.path(u"HIVE.MDB"), false, false, u";pwd=lantern4821");
    EXPECT_EQ(other.OpenRecordset({u"select * from keywords"}).RecordCount(), 1);
    other = Database();
    EXPECT_GT(app.read(u"hive.mdb").size(), 0U);
    EXPECT_EQ(app.read(u"hive.mdb").find("unmistakable"), std::string::npos);
}

TEST(OpenDatabase, SeveralHandlesSeeEachOthersWritesAtOnce) {
    const TempApp app;
    Database first = app.hive();
    {
        Database second = app.hive();
        Recordset standing = first.OpenRecordset({u"select * from keywords"});
        second.Execute(keyword_of(1, u"one"));
        EXPECT_TRUE(standing.eof());
    }
    EXPECT_EQ(first.OpenRecordset({u"select * from keywords"}).RecordCount(), 1);
    Database reader = OpenDatabase(app.path(u"hive.mdb"), false, true, u";pwd=lantern4821");
    EXPECT_NE(fault_of([&] { reader.Execute(keyword_of(1, u"two")); }), 0);
    EXPECT_EQ(reader.OpenRecordset({u"select * from keywords"}).RecordCount(), 1);
}

TEST(TwoProcesses, WriteTheSameStoreWithoutLoss) {
    const TempApp app;
    const auto write_fifty = [&app] {
        Database store = app.hive();
        for (int i = 0; i < 50; ++i) store.Execute(keyword_of(1, u"word " + to_text(i)));
    };
    const pid_t one = in_another_process(write_fifty);
    const pid_t two = in_another_process(write_fifty);
    EXPECT_TRUE(ended_well(one));
    EXPECT_TRUE(ended_well(two));
    EXPECT_EQ(app.count(u"select * from keywords"), 100);
}

TEST(WriteTogether, StandsWhollyOrNotAtAll) {
    const TempApp app;
    const auto replace = [&app](const Text& last) {
        Database store = app.hive();
        WriteTogether together(store);
        store.Execute({u"delete from keywords where pid = 1"});
        store.Execute(keyword_of(1, u"new"));
        if (last.empty()) kill(getpid(), SIGKILL);
        store.Execute(keyword_of(1, last));
        together.finish();
    };
    app.hive().Execute(keyword_of(1, u"old"));
    EXPECT_FALSE(ended_well(in_another_process([&] { replace({}); })));
    EXPECT_EQ(app.value(u"select * from keywords", u"keyword"), u"old");
    replace(u"newer");
    EXPECT_EQ(app.count(u"select * from keywords where pid = 1"), 2);
    // A fault takes back what was written before it, and leaves the store free.
    EXPECT_EQ(fault_of([&] { replace(u"it's"); }), fault_statement);
    EXPECT_EQ(app.count(u"select * from keywords where pid = 1"), 2);
    app.hive().Execute(keyword_of(1, u"last"));
    EXPECT_EQ(fault_of([] { WriteTogether(Database{}); }), fault_store);
}

TEST(Keys, AreNeverUsedAgainAndGoUpInOrderOfInsertion) {
    const TempApp app;
    for (const char16_t* const word : {u"zebra", u"apple", u"mango"}) app.hive().Execute(keyword_of(1, word));
    app.run(u"delete from keywords where keyword = 'mango' and pid = 1");
    app.hive().Execute(keyword_of(1, u"berry"));
    Recordset rows = app.hive().OpenRecordset({u"select * from keywords where pid = 1"});
    const std::pair<double, Text> expected[] = {{1, u"zebra"}, {2, u"apple"}, {4, u"berry"}};
    for (const auto& [key, word] : expected) {
        EXPECT_EQ(rows.Fields(u"KEYID").number(), key);
        EXPECT_EQ(rows.Fields(u"keyword").text(), word);
        rows.MoveNext();
    }
    EXPECT_TRUE(rows.eof());
}

TEST(Rows, AreReadByNameAliasAndKind) {
    const TempApp app;
    app.run(u"insert into keywords ( pid , keyword ) values ( 7 , '12' ) ");
    Recordset rows =
        app.hive().OpenRecordset({u"select keywords.keyid as X2 , keyword , pid as X3 from keywords"});
    EXPECT_EQ(rows.Fields(u"x2").text(), u"1");
    EXPECT_EQ(rows.Fields(u"X3").number(), 7);
    EXPECT_EQ(rows.Fields(u"Keyword").text(), u"12");
    EXPECT_EQ(fault_of([&] { rows.Fields(u"pid"); }), fault_field);
    rows.MoveNext();
    EXPECT_EQ(fault_of([&] { rows.Fields(u"X2"); }), fault_no_record);
    EXPECT_EQ(fault_of([&] { rows.MoveNext(); }), fault_no_record);

    Database synonyms = app.synonyms();
    synonyms.Execute({u"insert into synonyms ( keyword ) values ( 'house' )"});
    const Recordset null = synonyms.OpenRecordset({u"select * from synonyms"});
    EXPECT_TRUE(null.Fields(u"synonyms").is_null());
    EXPECT_EQ(fault_of([&] { null.Fields(u"synonyms").text(); }), fault_null);
    EXPECT_EQ(fault_of([&] { null.Fields(u"keyword").number(); }), fault_type);
}

TEST(ContentRows, AreWrittenInChunks) {
    const TempApp app;
    const Text chunk = Text(100000, u'x') + u"it's \"quoted\" \u00e9 ";
    Recordset adding = app.hive().OpenRecordset({u"content"});
    EXPECT_TRUE(adding.eof());
    EXPECT_NE(fault_of([&] { adding.AppendChunk(u"content", u"too early"); }), 0);
    adding.AddNew();
    adding.set(u"pid", 3);
    for (int i = 0; i < 5; ++i) adding.AppendChunk(u"content", chunk);
    adding.Update();
    adding.Close();
    Text whole;
    for (int i = 0; i < 5; ++i) whole += chunk;
    EXPECT_TRUE(app.value(u"select * from content where pid = 3", u"content") == whole);

    Recordset changing = app.hive().OpenRecordset({u"select * from content WHERE cid = 1"});
    changing.Edit();
    changing.AppendChunk(u"content", u"short"); // the first chunk takes the place of what was there
    EXPECT_TRUE(app.value(u"select * from content", u"content") == whole);
    changing.Update();
    EXPECT_EQ(app.value(u"select * from content where cid = 1", u"content"), u"short");
    EXPECT_EQ(app.value(u"select * from content where cid = 1", u"pid"), u"3");
    Recordset other = app.hive().OpenRecordset({u"select * from Projects"});
    EXPECT_EQ(fault_of([&] { other.Edit(); }), fault_no_record);
}

} // namespace twk::test
