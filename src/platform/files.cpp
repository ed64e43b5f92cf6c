// SPDX-License-Identifier: MIT
#include "platform/files.h"

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

constexpr std::size_t usual_page = 32 * 1024; ///< units, so that a page seldom outgrows its first room

/// Where none of them is set even root is kept out.
constexpr mode_t any_write = S_IWUSR | S_IWGRP | S_IWOTH;

struct Failure {
    int number;
    TextView text;
};

Failure failure_of(int error) {
    switch (error) {
    case ENOENT: return {fault_file_not_found, u"File not found"};
    case ENOTDIR: return {fault_path_not_found, u"Path not found"};
    case EACCES:
    case EPERM:
    case EROFS: return {fault_file_permission, u"Permission denied"};
    case ENOSPC:
    case EFBIG:
    case EDQUOT: return {fault_disk_full, u"Disk full"};
    case EISDIR:
    case EEXIST:
    case ENOTEMPTY:
    case ENAMETOOLONG:
    case EINVAL:
    case ELOOP: return {fault_path_access, u"Path/File access error"};
    default: return {fault_device_io, u"Device I/O error"};
    }
}

[[noreturn]] void fail(int error, const Text& path) {
    const Failure failure = failure_of(error);
    throw RuntimeFault(failure.number, Text(failure.text) + u": " + path);
}

struct Descriptor {
    int number;
    explicit Descriptor(int opened) : number(opened) {}
    ~Descriptor() {
        if (number >= 0) ::close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
};

std::string read_bytes(const Text& path) {
    const std::string name = disk_path(path);
    const Descriptor file(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.number < 0) fail(errno, path);
    struct stat info {};
    if (::fstat(file.number, &info) != 0) fail(errno, path);
    if (S_ISDIR(info.st_mode)) fail(EISDIR, path);
    std::string bytes;
    bytes.resize(static_cast<std::size_t>(std::max<off_t>(info.st_size, 0)));
    std::size_t have = 0;
    for (;;) {
        if (have == bytes.size()) bytes.resize(bytes.size() + 4096);
        const ssize_t got = ::read(file.number, bytes.data() + have, bytes.size() - have);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) fail(errno, path);
        if (got == 0) break;
        have += static_cast<std::size_t>(got);
    }
    bytes.resize(have);
    return bytes;
}

/// Returns an error number, 0 for none.
int write_at(int file, std::string_view bytes, std::size_t offset) {
    while (!bytes.empty()) {
        const ssize_t put = ::pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (put < 0 && errno != EINTR) return errno;
        if (put > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(put));
            offset += static_cast<std::size_t>(put);
        }
    }
    return 0;
}

/// Gives an open file new content. What lies behind the old end is written first: where the disk is full the
/// file is cut back and stays as it was, and the rest needs no more room.
int replace_content(int file, std::string_view bytes) {
    struct stat before {};
    if (::fstat(file, &before) != 0) return errno;
    const std::size_t old_size = static_cast<std::size_t>(std::max<off_t>(before.st_size, 0));
    const std::size_t common = std::min(old_size, bytes.size());
    if (const int error = write_at(file, bytes.substr(common), common); error != 0) {
        if (S_ISREG(before.st_mode) && ::ftruncate(file, before.st_size) != 0) return errno;
        return error;
    }
    if (const int error = write_at(file, bytes.substr(0, common), 0); error != 0) return error;
    if (bytes.size() < old_size && ::ftruncate(file, static_cast<off_t>(bytes.size())) != 0) return errno;
    return 0;
}

/// Opens a file for writing, made where there is none.
int open_to_write(const std::string& name, const Text& path) {
    const int file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    if (file < 0) fail(errno == ENOENT ? ENOTDIR : errno, path);
    struct stat info {};
    if (::fstat(file, &info) == 0 && (info.st_mode & any_write) == 0) {
        ::close(file);
        fail(EACCES, path);
    }
    return file;
}

/// Adds bytes at the end of an open file, which is cut back where the disk is full.
int append_content(int file, std::string_view bytes) {
    struct stat before {};
    if (::fstat(file, &before) != 0) return errno;
    const int error = write_at(file, bytes, static_cast<std::size_t>(std::max<off_t>(before.st_size, 0)));
    if (error != 0 && S_ISREG(before.st_mode) && ::ftruncate(file, before.st_size) != 0) return errno;
    return error;
}

/// Writes the whole file. Where the disk is full nothing is written: what was there stays, and a file that
/// was made for it is taken away again.
void write_bytes(const Text& path, std::string_view bytes) {
    const std::string name = disk_path(path);
    const bool there = ::access(name.c_str(), F_OK) == 0;
    const int file = open_to_write(name, path);
    int error = replace_content(file, bytes);
    if (::close(file) != 0 && error == 0) error = errno;
    if (error != 0) {
        if (!there) ::unlink(name.c_str());
        fail(error, path);
    }
    if (!there) NameIndex::entry_added(name);
}

/// Whether decoding gives back what was encoded: no half of a surrogate pair stands alone.
bool reads_back(TextView text) {
    unsigned halves = 0;
    for (const char16_t unit : text) halves += (unit & 0xF800u) == 0xD800u ? 1u : 0u;
    if (halves == 0) return true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] < 0xD800 || text[i] >= 0xE000) continue;
        if (text[i] >= 0xDC00 || i + 1 == text.size() || text[i + 1] < 0xDC00 || text[i + 1] >= 0xE000)
            return false;
        ++i;
    }
    return true;
}

bool is_kind(const Text& path, mode_t kind) {
    struct stat info {};
    return ::stat(disk_path(path).c_str(), &info) == 0 && (info.st_mode & S_IFMT) == kind;
}

Text file_part(const Text& path) {
    const std::size_t at = path.rfind(u'/');
    return at == Text::npos ? path : path.substr(at + 1);
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

void remove_file(const std::string& name, const Text& path) {
    if (::unlink(name.c_str()) != 0) fail(errno, path);
    NameIndex::entry_removed(name);
}

} // namespace

// Streams

TextStream::TextStream(Text path, OpenMode mode, TextKind kind, Text content, int file)
    : path_(std::move(path)), mode_(mode), kind_(kind), content_(std::move(content)), file_(file) {
    if (kind_ == TextKind::page && mode_ != OpenMode::reading) content_.reserve(usual_page);
}

TextStream::~TextStream() {
    if (file_ >= 0) ::close(file_);
}

Text TextStream::readline() {
    if (AtEndOfStream()) throw RuntimeFault(fault_past_end);
    const std::size_t end = std::min(content_.find_first_of(u"\r\n", at_), content_.size());
    Text line = content_.substr(at_, end - at_);
    at_ = end;
    if (at_ < content_.size()) at_ += content_.compare(at_, 2, u"\r\n") == 0 ? 2 : 1;
    return line;
}

Text TextStream::ReadAll() {
    Text rest = content_.substr(at_);
    at_ = content_.size();
    return rest;
}

bool TextStream::AtEndOfStream() const {
    return at_ >= content_.size();
}

void TextStream::write(TextView text) {
    if (!open_ || mode_ == OpenMode::reading) throw RuntimeFault(fault_path_access);
    content_.append(text);
}

void TextStream::writeline(std::initializer_list<TextView> pieces) {
    for (const TextView piece : pieces) write(piece);
    write(vbCrLf);
}

void TextStream::Close() {
    if (mode_ == OpenMode::reading)
        open_ = false;
    else
        close_and_read();
}

Text TextStream::close_and_read() {
    if (!std::exchange(open_, false) || mode_ == OpenMode::reading) return {};
    int error = 0;
    std::string old;
    if (mode_ == OpenMode::appending) old = read_bytes(path_);
    std::string bytes = encode_text(content_, kind_);
    const bool appended = is_ascii(old) && (old.empty() || is_ascii(bytes));
    if (appended) {
        error = old.empty() ? replace_content(file_, bytes) : append_content(file_, bytes);
        if (!old.empty()) content_.insert(0, decode_text(old));
    } else {
        // The mark and the encoding have to fit the whole.
        content_.insert(0, decode_text(old));
        bytes = encode_text(content_, kind_);
        error = replace_content(file_, bytes);
    }
    if (::close(std::exchange(file_, -1)) != 0 && error == 0) error = errno;
    if (error != 0) fail(error, path_);
    size_ = std::ssize(bytes) + (appended ? std::ssize(old) : 0);
    Text text = std::exchange(content_, {});
    if (!reads_back(text)) return decode_text(bytes);
    return text;
}

// The file system

bool FileSystemObject::FileExists(const Text& path) const {
    return file_exists(path);
}

TextStreamPtr FileSystemObject::OpenTextFile(const Text& path, OpenMode mode, bool create, TextKind kind) {
    const std::string name = disk_path(path);
    const bool there = !NameIndex::is_missing(name) && ::access(name.c_str(), F_OK) == 0;
    if (!there && !create) fail(ENOENT, path);
    if (mode == OpenMode::reading) {
        if (!there) write_bytes(path, {});
        const std::string bytes = there ? read_bytes(path) : std::string();
        return std::make_shared<TextStream>(path, mode, kind_of_bytes(bytes, kind), decode_text(bytes), -1);
    }
    const int file = open_to_write(name, path);
    if (!there) NameIndex::entry_added(name);
    return std::make_shared<TextStream>(path, mode, kind, Text(), file);
}

void FileSystemObject::DeleteFile(const Text& path) {
    const std::string name = disk_path(path);
    struct stat info {};
    if (::lstat(name.c_str(), &info) != 0) fail(errno, path);
    if (S_ISDIR(info.st_mode)) fail(ENOENT, path);
    remove_file(name, path);
}

void FileSystemObject::CopyFile(const Text& from, const Text& to) {
    const std::string bytes = read_bytes(from);
    const std::string place = disk_path(to);
    const std::string wanted = NameIndex::with_last_name(place, to_utf8(file_part(to)));
    // A file that stands there under the same name in another case gives way: the copy's name holds.
    if (place != wanted && ::access(place.c_str(), F_OK) == 0) remove_file(place, to);
    write_bytes(to, bytes);
}

void FileSystemObject::MoveOver(const Text& from, const Text& to) {
    const std::string name = disk_path(from);
    const std::string place = disk_path(to);
    const std::string wanted = NameIndex::with_last_name(place, to_utf8(file_part(to)));
    if (::rename(name.c_str(), wanted.c_str()) != 0) fail(errno, from);
    NameIndex::entry_removed(name);
    // A file that stood there under the same name in another case gives way, now that the new one is there.
    if (place != wanted && ::access(place.c_str(), F_OK) == 0) remove_file(place, to);
    NameIndex::entry_added(wanted);
}

void FileSystemObject::ReplaceFile(const Text& from, const Text& to) {
    const std::string place = disk_path(to);
    struct stat old {};
    if (::stat(place.c_str(), &old) != 0) return MoveOver(from, to);
    if (is_protected(to)) fail(EACCES, to);
    const Text target = fs::is_symlink(place) ? real_path(to) : to;
    const std::string sibling = disk_path(from);
    struct stat fresh {};
    if (::stat(sibling.c_str(), &fresh) != 0) fail(errno, from);
    const bool movable = S_ISREG(old.st_mode) && fresh.st_dev == old.st_dev;
    if (movable && take_owner_and_mode(sibling, fresh, old)) return MoveOver(from, target);
    // Another user's file, or one on another disk than its link, gets the new content where it stands.
    write_bytes(target, read_bytes(from));
    DeleteFile(from);
}

void FileSystemObject::DeleteFolder(const Text& path) {
    const std::string name = disk_path(path);
    struct stat info {};
    if (::lstat(name.c_str(), &info) != 0) fail(ENOTDIR, path);
    if (!S_ISDIR(info.st_mode)) fail(ENOTDIR, path);
    std::error_code error;
    fs::remove_all(name, error); // removes links, never what they lead to
    NameIndex::forget();
    if (error) fail(error.value(), path);
}

ReplacedFile::ReplacedFile(Text path) : path_(std::move(path)), missing_(false) {
    const std::string name = disk_path(path_);
    if (!NameIndex::is_missing(name)) {
        const Descriptor file(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
        struct stat info {};
        if (file.number >= 0) {
            if (::fstat(file.number, &info) != 0) fail(errno, path_);
            if (S_ISDIR(info.st_mode)) fail(EISDIR, path_);
            return;
        }
        if (errno != ENOENT) fail(errno, path_);
    }
    const std::string folder = std::filesystem::path(name).parent_path().string();
    if (::access(folder.empty() ? "." : folder.c_str(), W_OK | X_OK) != 0)
        fail(errno == ENOENT ? ENOTDIR : errno, path_);
    missing_ = true;
}

ReplacedFile::~ReplacedFile() {
    if (!missing_) return;
    try {
        if (!file_exists(path_)) write_bytes(path_, {});
    } catch (const RuntimeFault&) { // the fault that brought us here is the one to be told
    }
}

void ReplacedFile::replace_by(const Text& sibling) {
    FileSystemObject().MoveOver(sibling, path_);
    missing_ = false;
}

bool dir_exists(const Text& path) {
    return is_kind(path, S_IFDIR);
}
bool file_exists(const Text& path) {
    return is_kind(path, S_IFREG);
}

Text Dir(const Text& path) {
    if (!file_exists(path)) return {};
    return file_part(from_utf8(disk_path(path)));
}

void MkDir(const Text& path) {
    const std::string name = disk_path(path);
    if (::mkdir(name.c_str(), 0777) != 0) fail(errno == ENOENT ? ENOTDIR : errno, path);
    NameIndex::entry_added(name);
}

void RmDir(const Text& path) {
    const std::string name = disk_path(path);
    if (::rmdir(name.c_str()) != 0) fail(errno == ENOENT ? ENOTDIR : errno, path);
    NameIndex::entry_removed(name);
}

bool is_protected(const Text& path) {
    const std::string name = disk_path(path);
    struct stat info {};
    if (::stat(name.c_str(), &info) != 0) return false;
    return (info.st_mode & any_write) == 0 || ::access(name.c_str(), W_OK) != 0;
}

Text real_path(const Text& path) {
    std::error_code error;
    const fs::path real = fs::canonical(disk_path(path), error);
    if (error) fail(error.value(), path);
    return from_utf8(real.string());
}

bool lies_in(const Text& path, const Text& folder) {
    const Text real = real_path(folder);
    return real_path(path).starts_with(real.ends_with(u'/') ? real : real + u'/');
}

std::int64_t FileLen(const Text& path) {
    struct stat info {};
    if (::stat(disk_path(path).c_str(), &info) != 0) fail(errno, path);
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

Text read_text_file(const Text& path) {
    return decode_text(read_bytes(path));
}

// The fence

bool is_folder_name(TextView name) {
    constexpr std::size_t most_bytes = 255;
    const auto bad = [](char16_t c) { return c == u'/' || c == u'\\' || c < 0x20; };
    const TextView trimmed = trim_view(name);
    return !trimmed.empty() && trimmed != u"." && trimmed != u".." && to_utf8(name).size() <= most_bytes &&
           std::none_of(name.begin(), name.end(), bad);
}

namespace {

[[noreturn]] void fenced(const Text& path) {
    throw RuntimeFault(fault_path_access,
                       u"Path/File access error: " + path + u" does not lie in the project's folder");
}

} // namespace

Fence::Fence(Text projects, TextView name) : projects_(std::move(projects)) {
    folder_ = projects_ + u"/" + Text(name);
    if (!is_folder_name(name)) fenced(folder_);
    std::error_code error;
    const fs::path folder = fs::weakly_canonical(disk_path(folder_), error);
    if (error) fenced(folder_);
    const fs::path root = fs::weakly_canonical(disk_path(projects_), error);
    if (error || folder.parent_path() != root) fenced(folder_);
}

bool Fence::inside(const std::string& folder) const {
    if (known_.contains(folder)) return true;
    std::error_code error;
    const fs::path root = fs::weakly_canonical(disk_path(folder_), error);
    if (error) return false;
    const fs::path place = fs::canonical(folder, error);
    if (error) return false; // a folder that is not there yet is looked at anew each time
    const auto [end, at] = std::mismatch(root.begin(), root.end(), place.begin(), place.end());
    if (end != root.end()) return false;
    known_.insert(folder);
    return true;
}

void Fence::check(const Text& path) const {
    const std::string name = disk_path(path);
    const fs::path given(name);
    struct stat info {};
    const int failed = NameIndex::is_missing(name) ? ENOENT : ::lstat(name.c_str(), &info) == 0 ? 0 : errno;
    // What stands in a folder of the project under a plain name, and is no link, lies in it.
    const std::string last = given.filename().string();
    const bool plain = !last.empty() && last != "." && last != "..";
    const bool link = failed == 0 && S_ISLNK(info.st_mode);
    if (plain && !link && (failed == 0 || failed == ENOENT) && inside(given.parent_path().string())) return;
    std::error_code error;
    const fs::path root = fs::weakly_canonical(disk_path(folder_), error);
    if (error) fenced(path);
    // A link that leads nowhere yet would make its target when it is written.
    if (link && !fs::exists(name, error)) fenced(path);
    const fs::path place = fs::weakly_canonical(name, error);
    if (error) fenced(path);
    const auto [end, at] = std::mismatch(root.begin(), root.end(), place.begin(), place.end());
    if (end != root.end() || at == place.end()) fenced(path);
}

} // namespace twk
