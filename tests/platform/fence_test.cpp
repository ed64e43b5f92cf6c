// SPDX-License-Identifier: MIT
#include "platform/faults.h"
#include "platform/fence.h"
#include "support/faults.h"
#include "support/temp_app.h"

#include <fcntl.h>
#include <gtest/gtest.h>

namespace twk::test {

namespace fs = std::filesystem;

namespace {

struct Projects : TempApp {
    Projects() {
        fs::create_directories(folder() / "Projects" / "mine" / "main");
        fs::create_directories(folder() / "Projects" / "other");
        fs::create_directories(folder() / "outside");
        write(u"outside/precious.txt", "precious");
    }
    Text projects() const { return path(u"Projects"); }
    int checked(TextView relative) const {
        return fault_of([&] { Fence(projects(), u"mine").within(path(relative)); });
    }
};

} // namespace

TEST(Fence, LetsOnlyPathsInsideTheFolderThrough) {
    const Projects app;
    EXPECT_EQ(app.checked(u"Projects/mine/page.htm"), 0);
    EXPECT_EQ(app.checked(u"projects/MINE/main/new folder/page.htm"), 0);
    for (const char16_t* const path :
         {u"Projects/mine", u"Projects", u"Projects/other/page.htm", u"Projects/mine2/page.htm",
          u"Projects/mine/../other/page.htm", u"Projects/mine/main/../../../x.htm",
          u"Projects/mine/new/../../x.htm", u"outside/precious.txt"})
        EXPECT_EQ(app.checked(path), fault_path_access) << to_utf8(path);
    fs::create_directory_symlink(app.folder() / "outside", app.folder() / "Projects" / "mine" / "out");
    fs::create_symlink(app.folder() / "outside" / "precious.txt",
                       app.folder() / "Projects" / "mine" / "file.htm");
    fs::create_symlink(app.folder() / "outside" / "unborn.txt",
                       app.folder() / "Projects" / "mine" / "unborn.htm");
    for (const char16_t* const path :
         {u"Projects/mine/out/x.htm", u"Projects/mine/OUT/x.htm", u"Projects/mine/file.htm",
          u"Projects/mine/unborn.htm", u"Projects/mine/Unborn.HTM"})
        EXPECT_EQ(app.checked(path), fault_path_access) << to_utf8(path);
}

TEST(Fence, KeepsWorkInsideWhateverIsPutInTheWayMeanwhile) {
    const Projects app;
    const fs::path mine = app.folder() / "Projects" / "mine";
    FileSystemObject files;
    const Fence fence(app.projects(), u"mine");
    const FencedPath page = fence.within(app.path(u"Projects/mine/main/precious.txt"));
    const FencedPath last = fence.within(app.path(u"Projects/mine/last.htm"));
    fs::create_symlink(app.folder() / "outside" / "precious.txt", mine / "last.htm");
    EXPECT_EQ(fault_of([&] { files.OpenTextFile(last, OpenMode::writing, true); }), fault_path_access);
    EXPECT_EQ(fault_of([&] { files.OpenTextFile(last, OpenMode::reading); }), fault_path_access);
    fs::rename(mine / "main", mine / "moved");
    fs::create_directory_symlink(app.folder() / "outside", mine / "main");
    files.OpenTextFile(page, OpenMode::writing, true)->Close();
    EXPECT_TRUE(fs::is_empty(mine / "moved" / "precious.txt"));
    files.DeleteFile(page);
    EXPECT_EQ(app.read(u"outside/precious.txt"), "precious");

    const Descriptor root(::open(mine.c_str(), O_PATH));
    for (const bool by_kernel : {true, false}) {
        EXPECT_TRUE(open_beneath(root, ".", by_kernel));
        EXPECT_TRUE(open_beneath(root, "moved", by_kernel));
        for (const char* const out : {"main", "moved/../../other", "gone"})
            EXPECT_FALSE(open_beneath(root, out, by_kernel)) << out;
    }
}

TEST(DeleteFolder, RemovesLinksAndNeverFollowsThem) {
    const Projects app;
    fs::create_directory_symlink(app.folder() / "outside", app.folder() / "Projects" / "mine" / "out");
    fs::create_directory_symlink(app.folder() / "outside", app.folder() / "Projects" / "link");
    FileSystemObject files;
    const Fence own(app_path());
    EXPECT_NE(fault_of([&] { files.DeleteFolder(own.entry(app.path(u"Projects/link"))); }), 0);
    files.DeleteFolder(Fence(app.projects(), u"mine").itself());
    EXPECT_FALSE(dir_exists(app.path(u"Projects/mine")));
    EXPECT_EQ(app.read(u"outside/precious.txt"), "precious");
    MkDir(app.path(u"Projects/MINE")); // the name is free again, in any case
    EXPECT_TRUE(app.exists(u"Projects/MINE"));
}

} // namespace twk::test
