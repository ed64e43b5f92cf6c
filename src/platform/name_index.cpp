// SPDX-License-Identifier: MIT
#include "platform/name_index.h"

#include "platform/files.h"

#include <unordered_map>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace twk {

namespace {

struct Folder {
    timespec changed{};
    ino_t inode = 0;
    int checked = 0;    ///< number of the sole writer beside which it was found unchanged
    bool stale = false; ///< changed by the program since it was stamped
    std::unordered_map<std::string, std::string> names; ///< lower case to the name on disk
};

constexpr std::size_t most_folders = 64;

std::unordered_map<std::string, Folder>& folders() {
    static std::unordered_map<std::string, Folder> all;
    return all;
}

int sole_writers = 0;
int sole_writer_number = 0;

std::string folded(const std::string& name) {
    return to_utf8(LCase(from_utf8(name)));
}

bool there(const std::string& path) {
    return ::faccessat(AT_FDCWD, path.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

std::string folder_of(const std::string& path) {
    const std::size_t at = path.rfind('/');
    if (at == std::string::npos) return ".";
    return at == 0 ? "/" : path.substr(0, at);
}

std::string name_of(const std::string& path) {
    const std::size_t at = path.rfind('/');
    return at == std::string::npos ? path : path.substr(at + 1);
}

bool stamp(const std::string& folder, Folder& kept) {
    struct stat info {};
    if (::stat(folder.c_str(), &info) != 0 || !S_ISDIR(info.st_mode)) return false;
    kept.changed = info.st_mtim;
    kept.inode = info.st_ino;
    return true;
}

/// The kept names of a folder, read again when it has changed; null when it cannot be read.
const Folder* names_in(const std::string& folder) {
    const auto kept = folders().find(folder);
    if (sole_writers > 0 && kept != folders().end() && kept->second.checked == sole_writer_number)
        return &kept->second;
    Folder now;
    if (!stamp(folder, now)) return nullptr;
    now.checked = sole_writer_number;
    if (kept != folders().end() && kept->second.inode == now.inode &&
        kept->second.changed.tv_sec == now.changed.tv_sec &&
        kept->second.changed.tv_nsec == now.changed.tv_nsec) {
        kept->second.checked = sole_writer_number;
        return &kept->second;
    }
    DIR* const open = ::opendir(folder.c_str());
    if (open == nullptr) return nullptr;
    while (const dirent* entry = ::readdir(open)) now.names.emplace(folded(entry->d_name), entry->d_name);
    ::closedir(open);
    if (folders().size() >= most_folders) folders().clear();
    return &(folders()[folder] = std::move(now));
}

/// The program has changed the folder itself. Its time is taken at once, or when the sole writer ends.
void changed_here(const std::string& folder, Folder& kept) {
    if (sole_writers > 0)
        kept.stale = true;
    else
        stamp(folder, kept);
}

} // namespace

NameIndex::SoleWriter::SoleWriter() {
    if (++sole_writers == 1) ++sole_writer_number;
}

NameIndex::SoleWriter::~SoleWriter() {
    if (--sole_writers > 0) return;
    for (auto& [folder, kept] : folders())
        if (std::exchange(kept.stale, false)) stamp(folder, kept);
}

bool NameIndex::is_missing(const std::string& path) {
    if (sole_writers == 0 || path.find('/') == std::string::npos) return false;
    const Folder* const names = names_in(folder_of(path));
    return names != nullptr && !names->names.contains(folded(name_of(path)));
}

std::string NameIndex::find(const std::string& path) {
    if (path.empty() || is_missing(path) || there(path)) return path;
    const std::string name = name_of(path);
    if (name.empty()) return path;
    const std::string given = folder_of(path);
    const std::string folder = there(given) ? given : find(given);
    std::string here =
        path.find('/') == std::string::npos ? name : (folder == "/" ? "/" : folder + "/") + name;
    if (folder != given && there(here)) return here;
    const Folder* const names = names_in(folder);
    if (names == nullptr) return here;
    const auto found = names->names.find(folded(name));
    return found == names->names.end() ? here : with_last_name(here, found->second);
}

void NameIndex::entry_added(const std::string& path) {
    const std::string folder = folder_of(path);
    const auto kept = folders().find(folder);
    if (kept == folders().end()) return;
    kept->second.names.insert_or_assign(folded(name_of(path)), name_of(path));
    changed_here(folder, kept->second);
}

void NameIndex::entry_removed(const std::string& path) {
    const std::string folder = folder_of(path);
    const auto kept = folders().find(folder);
    if (kept == folders().end()) return;
    kept->second.names.erase(folded(name_of(path)));
    changed_here(folder, kept->second);
}

void NameIndex::forget() {
    folders().clear();
}

std::string NameIndex::with_last_name(const std::string& path, const std::string& name) {
    const std::size_t at = path.rfind('/');
    return at == std::string::npos ? name : path.substr(0, at + 1) + name;
}

std::string disk_path(const Text& path) {
    return NameIndex::find(to_utf8(path));
}

} // namespace twk
