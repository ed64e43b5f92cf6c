// SPDX-License-Identifier: MIT
#include "platform/file_system.h"

#include "platform/faults.h"
#include "platform/name_index.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace twk {

namespace fs = std::filesystem;

namespace {

/// Opens a file of the user's for writing, made where there is none, and for reading, too, when it is to be
/// added to.
OpenFile open_to_write(const std::string& name, const Text& path, OpenMode mode) {
    const int access = mode == OpenMode::appending ? O_RDWR : O_WRONLY;
    Descriptor file(::open(name.c_str(), access | O_CREAT | O_CLOEXEC, 0666));
    if (!file) fail_with(errno == ENOENT ? ENOTDIR : errno, path);
    return opened_to_write(std::move(file), path);
}

/// Writes the whole file. Where the disk is full nothing is written: what was there stays, and a file that
/// was made for it is taken away again.
void write_bytes(const Text& path, std::string_view bytes) {
    const std::string name = disk_path(path);
    const bool there = ::access(name.c_str(), F_OK) == 0;
    OpenFile file = open_to_write(name, path, OpenMode::writing);
    if (const int error = closed_after(replace_content(file, bytes), file); error != 0) {
        if (!there) ::unlink(name.c_str());
        fail_with(error, path);
    }
    if (!there) NameIndex::entry_added(name);
}

bool is_kind(const Text& path, mode_t kind) {
    const std::string name = disk_path(path);
    struct stat info {};
    return !NameIndex::is_missing(name) && ::stat(name.c_str(), &info) == 0 &&
           (info.st_mode & S_IFMT) == kind;
}

/// Lower case, so that "_" stands before the letters.
void sort_names(std::vector<Text>& names) {
    std::vector<std::pair<Text, Text>> keyed;
    keyed.reserve(names.size());
    for (Text& name : names) keyed.emplace_back(LCase(name), std::move(name));
    std::sort(keyed.begin(), keyed.end());
    names.clear();
    for (auto& [key, name] : keyed) names.push_back(std::move(name));
}

template <class Wanted> std::vector<Text> listed(const Text& folder, Wanted wanted) {
    std::error_code error;
    fs::directory_iterator entries(fs::path(disk_path(folder)), fs::directory_options::skip_permission_denied,
                                   error);
    if (error) throw RuntimeFault(fault_path_not_found, u"Path not found: " + folder);
    std::vector<Text> names;
    for (; entries != fs::directory_iterator(); entries.increment(error)) {
        if (wanted(*entries)) names.push_back(from_utf8(entries->path().filename().string()));
        if (error) break;
    }
    sort_names(names);
    return names;
}

/// Gives a file the owner, group and mode of another; false when that is not allowed.
bool take_owner_and_mode(const std::string& name, const struct stat& own, const struct stat& other) {
    const bool same = own.st_uid == other.st_uid && own.st_gid == other.st_gid;
    if (!same && ::chown(name.c_str(), other.st_uid, other.st_gid) != 0) return false;
    return ::chmod(name.c_str(), other.st_mode & 07777) == 0;
}

/// Gives the file another name, in the case as it is given.
void move_over(const Text& from, const Text& to) {
    const std::string name = disk_path(from);
    const std::string place = disk_path(to);
    const std::string wanted = with_last_name(place, to_utf8(last_name(to)));
    if (::rename(name.c_str(), wanted.c_str()) != 0) fail_with(errno, from);
    NameIndex::entry_removed(name);
    // A file that stood there under the same name in another case gives way, now that the new one is there.
    if (place != wanted && ::access(place.c_str(), F_OK) == 0) {
        if (::unlink(place.c_str()) != 0) fail_with(errno, to);
        NameIndex::entry_removed(place);
    }
    NameIndex::entry_added(wanted);
}

} // namespace

bool FileSystemObject::FileExists(const Text& path) const {
    return file_exists(path);
}

TextStreamPtr FileSystemObject::OpenTextFile(const Text& path, OpenMode mode, bool create, TextKind kind) {
    const std::string name = disk_path(path);
    const bool there = !NameIndex::is_missing(name) && ::access(name.c_str(), F_OK) == 0;
    if (!there && !create) fail_with(ENOENT, path);
    if (mode == OpenMode::reading) {
        if (!there) write_bytes(path, {});
        const std::string bytes = there ? read_bytes(path) : std::string();
        return std::make_shared<TextStream>(path, kind_of_bytes(bytes, kind), decode_text(bytes));
    }
    OpenFile file = open_to_write(name, path, mode);
    if (!there) NameIndex::entry_added(name);
    return std::make_shared<TextStream>(path, mode, kind, std::move(file));
}

void FileSystemObject::ReplaceFile(const Text& sibling, const Text& path) {
    const std::string place = disk_path(path);
    struct stat old {};
    if (::stat(place.c_str(), &old) != 0) return move_over(sibling, path);
    if (is_protected(path)) fail_with(EACCES, path);
    const Text target = fs::is_symlink(place) ? real_path(path) : path;
    const std::string name = disk_path(sibling);
    struct stat fresh {};
    if (::stat(name.c_str(), &fresh) != 0) fail_with(errno, sibling);
    const bool movable = S_ISREG(old.st_mode) && fresh.st_dev == old.st_dev;
    if (movable && take_owner_and_mode(name, fresh, old)) return move_over(sibling, target);
    // Another user's file, or one on another disk than its link, gets the new content where it stands.
    write_bytes(target, read_bytes(sibling));
    if (::unlink(name.c_str()) != 0) fail_with(errno, sibling);
    NameIndex::entry_removed(name);
}

bool dir_exists(const Text& path) {
    return is_kind(path, S_IFDIR);
}
bool file_exists(const Text& path) {
    return is_kind(path, S_IFREG);
}

void MkDir(const Text& path) {
    const std::string name = disk_path(path);
    if (::mkdir(name.c_str(), 0777) != 0) fail_with(errno == ENOENT ? ENOTDIR : errno, path);
    NameIndex::entry_added(name);
}

bool is_protected(const Text& path) {
    const std::string name = disk_path(path);
    struct stat info {};
    if (::stat(name.c_str(), &info) != 0) return false;
    return nobody_may_write(info) || ::access(name.c_str(), W_OK) != 0;
}

Text real_path(const Text& path) {
    std::error_code error;
    const fs::path real = fs::canonical(disk_path(path), error);
    if (error) fail_with(error.value(), path);
    return from_utf8(real.string());
}

bool lies_in(const Text& path, const Text& folder) {
    const Text real = real_path(folder);
    return real_path(path).starts_with(real.ends_with(u'/') ? real : real + u'/');
}

std::int64_t FileLen(const Text& path) {
    struct stat info {};
    if (::stat(disk_path(path).c_str(), &info) != 0) fail_with(errno, path);
    return info.st_size;
}

bool matches_pattern(TextView name, TextView pattern) {
    std::size_t at = 0, in = 0;
    // Where the last star stands, and up to where it has taken the name. Whatever an earlier star took is
    // settled by then, so that it is enough to let the last one take more.
    std::size_t star = TextView::npos, taken = 0;
    while (in < name.size()) {
        if (at < pattern.size() && pattern[at] == u'*') {
            star = at++;
            taken = in;
        } else if (at < pattern.size() && (pattern[at] == u'?' || lower(pattern[at]) == lower(name[in]))) {
            ++at;
            ++in;
        } else if (star != TextView::npos) {
            at = star + 1;
            in = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', at) == TextView::npos;
}

std::vector<Text> list_files(const Text& folder, TextView pattern) {
    const std::vector<TextView> patterns = split_views(pattern, u";");
    return listed(folder, [&](const fs::directory_entry& entry) {
        std::error_code error;
        const Text name = from_utf8(entry.path().filename().string());
        const auto matched = [&](TextView each) { return matches_pattern(name, trim_view(each)); };
        return entry.is_regular_file(error) && std::any_of(patterns.begin(), patterns.end(), matched);
    });
}

std::vector<Text> list_folders(const Text& folder) {
    return listed(folder, [](const fs::directory_entry& entry) {
        std::error_code error;
        return entry.is_directory(error);
    });
}

std::string read_bytes(const Text& path) {
    const Descriptor file(::open(disk_path(path).c_str(), O_RDONLY | O_CLOEXEC));
    if (!file) fail_with(errno, path);
    return read_open(file, path);
}

Text read_text_file(const Text& path) {
    return decode_text(read_bytes(path));
}

bool is_folder_name(TextView name) {
    constexpr std::size_t most_bytes = 255;
    const auto bad = [](char16_t c) { return c == u'/' || c == u'\\' || c < 0x20; };
    const TextView trimmed = trim_view(name);
    return !trimmed.empty() && trimmed != u"." && trimmed != u".." && to_utf8(name).size() <= most_bytes &&
           std::none_of(name.begin(), name.end(), bad);
}

} // namespace twk
