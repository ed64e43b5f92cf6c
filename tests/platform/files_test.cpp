// SPDX-License-Identifier: MIT
#include "platform/faults.h"
#include "platform/fence.h"
#include "platform/name_index.h"
#include "support/faults.h"
#include "support/temp_app.h"

#include <chrono>
#include <csignal>
#include <thread>

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace twk::test {

namespace fs = std::filesystem;

namespace {

void write_page(const Text& path, const Text& line, TextKind kind = TextKind::page) {
    const TextStreamPtr out = FileSystemObject().OpenTextFile(path, OpenMode::writing, true, kind);
    out->writeline(line);
    out->Close();
}

/// Lets no file of the process grow past a length.
class LengthLimit {
  public:
    explicit LengthLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~LengthLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    rlimit before_{};
    void (*handler_)(int);
};

} // namespace

TEST(Streams, GatherUntilTheyAreClosed) {
    const TempApp app;
    const Text path = app.path(u"page.htm");
    FileSystemObject files;
    {
        const TextStreamPtr out = files.OpenTextFile(path, OpenMode::writing, true);
        out->writeline(u"one");
        out->write(u"two");
        EXPECT_EQ(app.read(u"page.htm"), "");
        out->Close();
        EXPECT_EQ(app.read(u"page.htm"), "one\r\ntwo");
        EXPECT_EQ(fault_of([&] { out->write(u"late"); }), fault_path_access);
        out->Close();
    }
    files.OpenTextFile(path, OpenMode::writing)->write(u"dropped without Close");
    EXPECT_EQ(app.read(u"page.htm"), "one\r\ntwo");
    write_page(path, u"x");
    EXPECT_EQ(app.read(u"page.htm"), "x\r\n"); // shorter than before
}

TEST(Streams, ReadLinesWhateverTheirEnd) {
    const TempApp app;
    app.write(u"list.txt", "a\r\n\r\nb\nc\rd");
    FileSystemObject files;
    const TextStreamPtr in = files.OpenTextFile(app.path(u"list.txt"), OpenMode::reading);
    for (const char16_t* const line : {u"a", u"", u"b", u"c", u"d"}) EXPECT_EQ(in->readline(), line);
    EXPECT_TRUE(in->AtEndOfStream());
    EXPECT_EQ(fault_of([&] { in->readline(); }), fault_past_end);
    EXPECT_EQ(fault_of([&] { in->write(u"x"); }), fault_path_access);
}

TEST(Encodings, LoseNothing) {
    const TempApp app;
    write_page(app.path(u"ascii.htm"), u"plain");
    EXPECT_EQ(app.read(u"ascii.htm"), "plain\r\n");
    write_page(app.path(u"page.htm"), u"caf\u00e9");
    EXPECT_EQ(app.read(u"page.htm"), "\xEF\xBB\xBF"
                                     "caf\xC3\xA9\r\n");
    write_page(app.path(u"list.dat"), u"caf\u00e9", TextKind::list);
    EXPECT_EQ(app.read(u"list.dat"), "caf\xC3\xA9\r\n");

    EXPECT_EQ(read_text_file(app.path(u"page.htm")), u"caf\u00e9\r\n");
    EXPECT_EQ(read_text_file(app.path(u"list.dat")), u"caf\u00e9\r\n");
    EXPECT_EQ(decode_text("caf\xE9 \x80 \x93x\x94"), u"caf\u00e9 \u20ac \u201cx\u201d");
    EXPECT_EQ(decode_text("\xEF\xBB\xBF"), u"");

    // Appended text has to fit what was there: one mark in front of the whole.
    FileSystemObject files;
    app.write(u"old.htm", "caf\xE9\r\n");
    const TextStreamPtr out =
        files.OpenTextFile(app.path(u"old.htm"), OpenMode::appending, false, TextKind::page);
    out->writeline(u"\u20ac");
    out->Close();
    EXPECT_EQ(app.read(u"old.htm"), "\xEF\xBB\xBF"
                                    "caf\xC3\xA9\r\n\xE2\x82\xAC\r\n");
}

TEST(Names, AreFoundWithoutRegardToCase) {
    const TempApp app;
    const Fence own(app_path());
    FileSystemObject files;
    MkDir(app.path(u"Projects"));
    write_page(app.path(u"PROJECTS/Página.HTM"), u"one");
    EXPECT_TRUE(app.exists(u"Projects/Página.HTM"));
    EXPECT_TRUE(file_exists(app.path(u"projects/pÁGINA.htm")));
    write_page(app.path(u"projects/página.htm"), u"two"); // the same file
    EXPECT_EQ(list_files(app.path(u"projects"), u"*"), (std::vector<Text>{u"Página.HTM"}));
    // Something else makes a file while the names are known.
    app.write(u"Projects/página.HTM", "exact");
    EXPECT_EQ(read_text_file(app.path(u"projects/página.HTM")), u"exact");
    EXPECT_EQ(read_text_file(app.path(u"projects/Página.HTM")), u"two\r\n");

    files.CopyFile(app.path(u"Projects/página.HTM"), own.within(app.path(u"projects/Copy.htm")));
    files.CopyFile(app.path(u"Projects/página.HTM"), own.within(app.path(u"projects/COPY.htm")));
    EXPECT_EQ(list_files(app.path(u"projects"), u"c*"), (std::vector<Text>{u"COPY.htm"}));
    files.DeleteFile(own.within(app.path(u"projects/copy.HTM")));
    EXPECT_FALSE(file_exists(app.path(u"projects/COPY.htm")));
    write_page(app.path(u"projects/copy.htm"), u"again");
    EXPECT_TRUE(app.exists(u"Projects/copy.htm"));
}

TEST(Names, OfASoleWriterFollowTheProgramAndAfterwardsOthersToo) {
    const TempApp app;
    const Fence own(app_path());
    MkDir(app.path(u"P"));
    app.write(u"P/Old.htm", "old");
    {
        const NameIndex::SoleWriter alone;
        EXPECT_TRUE(NameIndex::is_missing(to_utf8(app.path(u"P/new.htm"))));
        EXPECT_FALSE(NameIndex::is_missing(to_utf8(app.path(u"P/OLD.htm"))));
        EXPECT_EQ(disk_path(app.path(u"P/old.HTM")), to_utf8(app.path(u"P/Old.htm")));
        write_page(app.path(u"P/New.htm"), u"one");
        EXPECT_EQ(disk_path(app.path(u"P/new.htm")), to_utf8(app.path(u"P/New.htm")));
        FileSystemObject().MoveOver(own.within(app.path(u"P/New.htm")), own.within(app.path(u"P/OLD.htm")));
        EXPECT_EQ(list_files(app.path(u"P"), u"*"), (std::vector<Text>{u"OLD.htm"}));
        EXPECT_TRUE(NameIndex::is_missing(to_utf8(app.path(u"P/New.htm"))));
    }
    // A folder that changes twice within one tick of the file system's clock shows no second change.
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    app.write(u"P/Other.htm", "of another program");
    const NameIndex::SoleWriter alone;
    EXPECT_EQ(disk_path(app.path(u"P/other.HTM")), to_utf8(app.path(u"P/Other.htm")));
}

TEST(MoveOver, LeavesOneFileUnderTheNameAsGiven) {
    const TempApp app;
    const Fence own(app_path());
    FileSystemObject files;
    const auto replace = [&](TextView sibling, TextView name) {
        return fault_of([&] { files.MoveOver(own.within(app.path(sibling)), own.within(app.path(name))); });
    };
    MkDir(app.path(u"P"));
    app.write(u"P/Page.htm", "old");
    app.write(u"P/PAGE.htmaux", "new");
    EXPECT_EQ(replace(u"P/page.htmAUX", u"p/pAGE.htm"), 0);
    EXPECT_EQ(list_files(app.path(u"P"), u"*"), (std::vector<Text>{u"pAGE.htm"}));
    EXPECT_EQ(read_text_file(app.path(u"P/PAGE.HTM")), u"new");

    EXPECT_EQ(replace(u"P/gone", u"P/page.htm"), fault_file_not_found);
    MkDir(app.path(u"P/folder"));
    EXPECT_EQ(replace(u"P/page.htm", u"P/folder"), fault_path_access);
    EXPECT_EQ(app.read(u"P/pAGE.htm"), "new");

    app.write(u"precious", "precious"); // a link gives way, what it leads to stays
    fs::create_symlink(app.folder() / "precious", app.folder() / "P" / "link.htm");
    EXPECT_EQ(replace(u"P/page.htm", u"P/link.htm"), 0);
    EXPECT_EQ(app.read(u"precious"), "precious");
    EXPECT_EQ(app.read(u"P/link.htm"), "new");
}

TEST(Listings, AreSortedAndMatchWholeNames) {
    const TempApp app;
    MkDir(app.path(u"P"));
    for (const char16_t* const name : {u"b.htm", u"A.HTM", u"_x.htm", u"c.html", u"noext", u"d.GIF"})
        app.write(u"P/" + Text(name), "");
    MkDir(app.path(u"P/folder.htm"));
    EXPECT_EQ(list_files(app.path(u"p"), u"*.htm"), (std::vector<Text>{u"_x.htm", u"A.HTM", u"b.htm"}));
    EXPECT_EQ(list_files(app.path(u"p"), u"*.*").size(), 5U);
    EXPECT_EQ(list_files(app.path(u"p"), u"?.gif"), (std::vector<Text>{u"d.GIF"}));
    EXPECT_EQ(list_files(app.path(u"p"), u"*.htm; *.GIF"),
              (std::vector<Text>{u"_x.htm", u"A.HTM", u"b.htm", u"d.GIF"}));
    EXPECT_EQ(list_folders(app.path(u"p")), (std::vector<Text>{u"folder.htm"}));
    EXPECT_EQ(fault_of([&] { list_files(app.path(u"absent"), u"*"); }), fault_path_not_found);
}

TEST(Listings, MatchStarsInTimeThatAnyoneCanWaitFor) {
    EXPECT_TRUE(matches_pattern(u"abcbcd", u"*bc?"));
    EXPECT_TRUE(matches_pattern(u"abcbcd", u"A*b*D**"));
    EXPECT_FALSE(matches_pattern(u"abcbcd", u"*bcb"));
    EXPECT_FALSE(matches_pattern(u"", u"?"));
    Text stars;
    for (int i = 0; i < 40; ++i) stars += u"*a";
    EXPECT_FALSE(matches_pattern(Text(200, u'a'), stars + u"b"));
}

TEST(Files, FaultsSayWhatIsWrong) {
    const TempApp app;
    const Fence own(app_path());
    FileSystemObject files;
    MkDir(app.path(u"full"));
    app.write(u"full/x", "12345");
    EXPECT_EQ(FileLen(app.path(u"FULL/X")), 5);
    const auto reading = [&](TextView name) {
        return fault_of([&] { files.OpenTextFile(app.path(name), OpenMode::reading); });
    };
    EXPECT_EQ(reading(u"absent"), fault_file_not_found);
    EXPECT_EQ(reading(u"full"), fault_path_access);
    EXPECT_EQ(fault_of([&] { write_page(app.path(u"none/x"), u""); }), fault_path_not_found);
    EXPECT_EQ(fault_of([&] { files.OpenTextFile(app.path(u"absent"), OpenMode::writing); }),
              fault_file_not_found);
    EXPECT_EQ(fault_of([&] { files.DeleteFile(own.within(app.path(u"absent"))); }), fault_file_not_found);
    EXPECT_EQ(fault_of([&] { files.CopyFile(app.path(u"absent"), own.within(app.path(u"y"))); }),
              fault_file_not_found);
    EXPECT_EQ(fault_of([&] { files.DeleteFolder(own.within(app.path(u"absent"))); }), fault_path_not_found);
    EXPECT_EQ(fault_of([&] { MkDir(app.path(u"Full")); }), fault_path_access);
    EXPECT_EQ(fault_of([&] { MkDir(app.path(u"none/sub")); }), fault_path_not_found);
    EXPECT_EQ(fault_of([&] { RmDir(own.within(app.path(u"full"))); }), fault_path_access);
    EXPECT_EQ(fault_of([&] { FileLen(app.path(u"absent")); }), fault_file_not_found);
    EXPECT_EQ(fault_of([&] { write_page(app.path(Text(300, u'x')), u""); }), fault_path_access);
}

TEST(FullDisk, LeavesWhatWasThere) {
    const TempApp app;
    const Fence own(app_path());
    const Text long_text(100000, u'x');
    app.write(u"old.htm", "old");
    app.write(u"big.gif", std::string(100000, 'x'));
    {
        const LengthLimit limit(50000);
        EXPECT_EQ(fault_of([&] { write_page(app.path(u"old.htm"), long_text); }), fault_disk_full);
        EXPECT_EQ(fault_of([&] {
                      FileSystemObject().CopyFile(app.path(u"big.gif"), own.within(app.path(u"copy.gif")));
                  }),
                  fault_disk_full);
        EXPECT_EQ(fault_of([&] { write_page(app.path(u"new.htm"), long_text); }), fault_disk_full);
    }
    EXPECT_EQ(app.read(u"old.htm"), "old");
    EXPECT_EQ(app.read(u"new.htm"), "");
    EXPECT_EQ(fault_of([] { write_page(u"/dev/full", u"x"); }), fault_disk_full);
}

} // namespace twk::test
