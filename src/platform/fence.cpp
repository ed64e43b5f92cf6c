// SPDX-License-Identifier: MIT
#include "platform/fence.h"

#include "platform/faults.h"
#include "platform/name_index.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace twk {

namespace fs = std::filesystem;

namespace {

/// A run works in a few folders at a time.
constexpr std::size_t most_open = 64;

[[noreturn]] void fenced(const Text& path) {
    throw RuntimeFault(fault_path_access,
                       u"Path/File access error: " + path + u" does not lie in the project's folder");
}

/// Whether the place is the folder or lies below it; both with all links followed.
bool is_below(const fs::path& place, const fs::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), place.begin(), place.end()).first == folder.end();
}

} // namespace

FencedPath::FencedPath(std::shared_ptr<const Descriptor> folder, std::string on_disk, Text text)
    : folder_(std::move(folder)), on_disk_(std::move(on_disk)),
      name_at_(on_disk_.size() - last_name(on_disk_).size()), text_(std::move(text)) {}

int FencedPath::folder() const {
    if (!folder_) fail_with(ENOTDIR, text_);
    return folder_->number();
}

bool FencedPath::bears_given_name() const {
    return name() == to_utf8(last_name(TextView(text_)));
}

FencedPath FencedPath::as_given() const {
    return {folder_, with_last_name(on_disk_, to_utf8(last_name(TextView(text_)))), text_};
}

Fence::Fence(const Text& projects, TextView name) : folder_(joined_path(projects, name)) {
    if (!is_folder_name(name)) fenced(folder_);
    std::error_code error;
    projects_ = fs::weakly_canonical(disk_path(projects), error);
    if (error) fenced(folder_);
    root();
}

Fence::Fence(Text folder) : folder_(std::move(folder)) {}

/// The folder with all links followed. Fault 75 when it no longer lies where it has to.
fs::path Fence::root() const {
    std::error_code error;
    fs::path folder = fs::weakly_canonical(disk_path(folder_), error);
    if (error || (!projects_.empty() && folder.parent_path() != projects_)) fenced(folder_);
    return folder;
}

/// The folder, when it is there and lies inside. One that is not there yet is looked at anew each time.
std::shared_ptr<const Descriptor> Fence::opened(const std::string& folder) const {
    if (const auto known = open_.find(folder); known != open_.end()) return known->second;
    std::error_code error;
    const fs::path inside = root();
    const fs::path place = fs::canonical(folder, error);
    if (error || !is_below(place, inside)) return nullptr;
    const Descriptor start(::open(inside.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC | O_NOFOLLOW));
    if (!start) return nullptr;
    auto held = std::make_shared<const Descriptor>(open_beneath(start, place.lexically_relative(inside)));
    if (!*held) return nullptr;
    if (open_.size() >= most_open) open_.clear();
    return open_[folder] = held;
}

FencedPath Fence::within(const Text& path) const {
    const std::string name = disk_path(path);
    const std::string_view last = last_name(name);
    struct stat info {};
    int failed = ENOENT;
    // A link that a sole writer takes for the entry it knows stops the work where it opens it.
    if (!NameIndex::is_missing(name) && !NameIndex::is_there(name))
        failed = ::lstat(name.c_str(), &info) == 0 ? 0 : errno;
    // What stands in a folder of the project under a plain name, and is no link, lies in it.
    const bool plain = !last.empty() && last != "." && last != "..";
    const bool link = failed == 0 && S_ISLNK(info.st_mode);
    if (plain && !link && (failed == 0 || failed == ENOENT))
        if (auto folder = opened(folder_of(name))) return {std::move(folder), name, path};
    return within_by_links(path, name, link);
}

FencedPath Fence::within_by_links(const Text& path, const std::string& name, bool link) const {
    std::error_code error;
    const fs::path inside = root();
    // A link that leads nowhere yet would make its target when it is written.
    if (link && !fs::exists(name, error)) fenced(path);
    const fs::path place = fs::weakly_canonical(name, error);
    if (error || !is_below(place, inside) || place == inside) fenced(path);
    return {opened(folder_of(name)), name, path};
}

FencedPath Fence::entry(const Text& path) const {
    const std::string name = disk_path(path);
    if (auto folder = opened(folder_of(name))) return {std::move(folder), name, path};
    return within(path);
}

FencedPath Fence::itself() const {
    if (projects_.empty()) fenced(folder_);
    const Descriptor root(::open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
    auto held = std::make_shared<const Descriptor>(open_beneath(root, projects_.relative_path()));
    return {*held ? std::move(held) : nullptr, disk_path(folder_), folder_};
}

ReplacedFile::ReplacedFile(FencedPath path, FencedPath sibling)
    : path_(std::move(path)), sibling_(std::move(sibling)) {
    missing_ = NameIndex::is_missing(path_.on_disk());
    if (!missing_) prove_readable();
}

void ReplacedFile::prove_readable() {
    const Descriptor file(::openat(path_.folder(), path_.name(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!file) {
        if (errno != ENOENT) fail_with(errno, path_.text());
        missing_ = true;
        return;
    }
    struct stat info {};
    if (::fstat(file.number(), &info) != 0) fail_with(errno, path_.text());
    if (S_ISDIR(info.st_mode)) fail_with(EISDIR, path_.text());
}

TextStreamPtr ReplacedFile::open(TextKind kind) {
    try {
        return FileSystemObject().OpenTextFile(sibling_, OpenMode::writing, true, kind);
    } catch (const RuntimeFault& fault) {
        const bool folder = fault.number() == fault_path_not_found || fault.number() == fault_file_permission;
        if (!folder || !missing_ || ::faccessat(path_.folder(), ".", W_OK | X_OK, 0) == 0) throw;
        fail_with(errno == ENOENT ? ENOTDIR : errno, path_.text());
    }
}

ReplacedFile::~ReplacedFile() {
    if (!missing_) return;
    try {
        FileSystemObject().OpenTextFile(path_, OpenMode::writing, true);
    } catch (const RuntimeFault&) { // the fault that brought us here is the one to be told
    }
}

void ReplacedFile::replace() {
    FileSystemObject().MoveOver(sibling_, path_);
    missing_ = false;
}

} // namespace twk
