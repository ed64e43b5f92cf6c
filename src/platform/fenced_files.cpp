// SPDX-License-Identifier: MIT
#include "platform/faults.h"
#include "platform/fence.h"
#include "platform/name_index.h"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

// The work of FileSystemObject within a fence: relative to open folders, and no link is followed.

namespace twk {

namespace {

bool is_there(const FencedPath& path) {
    return ::faccessat(path.folder(), path.name(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

void unlink(const FencedPath& path, int flags = 0) {
    if (::unlinkat(path.folder(), path.name(), flags) != 0)
        fail_with(flags != 0 && errno == ENOENT ? ENOTDIR : errno, path.text());
    NameIndex::entry_removed(path.on_disk());
}

/// Makes the file, which tells that it is empty and nobody else's, or opens the one that is there.
OpenFile open_to_write(const FencedPath& path, OpenMode mode, bool create) {
    const int access = (mode == OpenMode::appending ? O_RDWR : O_WRONLY) | O_NOFOLLOW | O_CLOEXEC;
    if (create) {
        Descriptor made(::openat(path.folder(), path.name(), access | O_CREAT | O_EXCL, 0666));
        if (made) {
            NameIndex::entry_added(path.on_disk());
            return {std::move(made), 0, true};
        }
        if (errno != EEXIST) fail_with(errno == ENOENT ? ENOTDIR : errno, path.text());
    }
    Descriptor file(::openat(path.folder(), path.name(), access));
    if (!file) fail_with(errno, path.text());
    return opened_to_write(std::move(file), path.text());
}

std::string read_fenced(const FencedPath& path) {
    const Descriptor file(::openat(path.folder(), path.name(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (!file) fail_with(errno, path.text());
    return read_open(file, path.text());
}

} // namespace

TextStreamPtr FileSystemObject::OpenTextFile(const FencedPath& path, OpenMode mode, bool create,
                                             TextKind kind) {
    if (mode == OpenMode::reading) {
        if (create && !is_there(path)) open_to_write(path, OpenMode::writing, true);
        const std::string bytes = read_fenced(path);
        return std::make_shared<TextStream>(path.text(), kind_of_bytes(bytes, kind), decode_text(bytes));
    }
    return std::make_shared<TextStream>(path.text(), mode, kind, open_to_write(path, mode, create));
}

void FileSystemObject::DeleteFile(const FencedPath& path) {
    struct stat info {};
    if (::fstatat(path.folder(), path.name(), &info, AT_SYMLINK_NOFOLLOW) != 0) fail_with(errno, path.text());
    if (S_ISDIR(info.st_mode)) fail_with(ENOENT, path.text());
    unlink(path);
}

void FileSystemObject::CopyFile(const Text& from, const FencedPath& to) {
    const std::string bytes = read_bytes(from);
    // A file that stands there under the same name in another case gives way: the copy's name holds.
    if (!to.bears_given_name() && is_there(to)) unlink(to);
    const FencedPath place = to.as_given();
    OpenFile file = open_to_write(place, OpenMode::writing, true);
    const int error = closed_after(replace_content(file, bytes), file);
    if (error == 0) return;
    if (file.made) unlink(place);
    fail_with(error, to.text());
}

void FileSystemObject::MoveOver(const FencedPath& from, const FencedPath& to) {
    const FencedPath place = to.as_given();
    if (::renameat(from.folder(), from.name(), place.folder(), place.name()) != 0)
        fail_with(errno, from.text());
    NameIndex::entry_removed(from.on_disk());
    // A file that stood there under the same name in another case gives way, now that the new one is there.
    if (to.on_disk() != place.on_disk() && is_there(to)) unlink(to);
    NameIndex::entry_added(place.on_disk());
}

void FileSystemObject::DeleteFolder(const FencedPath& path) {
    struct stat info {};
    if (::fstatat(path.folder(), path.name(), &info, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISDIR(info.st_mode))
        fail_with(ENOTDIR, path.text());
    std::error_code error;
    std::filesystem::remove_all(path.on_disk(), error); // removes links, never what they lead to
    NameIndex::forget();
    if (error) fail_with(error.value(), path.text());
}

void MkDir(const FencedPath& path) {
    if (::mkdirat(path.folder(), path.name(), 0777) != 0)
        fail_with(errno == ENOENT ? ENOTDIR : errno, path.text());
    NameIndex::entry_added(path.on_disk());
}

void RmDir(const FencedPath& path) {
    unlink(path, AT_REMOVEDIR);
}

} // namespace twk
