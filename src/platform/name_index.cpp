// SPDX-License-Identifier: MIT
#include "platform/name_index.h"

#include "platform/file_system.h"
#include "platform/process.h"

#include <ctime>
#include <memory>
#include <tuple>
#include <unordered_map>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace twk {

namespace {

using Names = std::unordered_map<std::string, std::string>; ///< lower case to the name on disk

struct Folder {
    timespec changed{};
    ino_t inode = 0;
    int checked = 0; ///< number of the sole writer beside which it was found unchanged
    /// A sole writer has changed it since it was stamped, within this time.
    bool stale = false;
    timespec from{}, to{};
    bool other_clock = false; ///< its times do not come from this machine's clock
    Names names{};
};

constexpr std::size_t most_folders = 64;

/// What is kept for the process.
struct KeptNames {
    std::unordered_map<std::string, Folder> folders{};
    int sole_writers = 0;
    int sole_writer_number = 0;
    timespec alone_since{};
};

KeptNames& kept_names() {
    return process().part<KeptNames>();
}

std::string folded(std::string_view name) {
    if (!is_ascii(name)) return to_utf8(LCase(from_utf8(name)));
    std::string lower(name);
    for (char& unit : lower)
        if (unit >= 'A' && unit <= 'Z') unit = static_cast<char>(unit + ('a' - 'A'));
    return lower;
}

bool there(const std::string& path) {
    return ::faccessat(AT_FDCWD, path.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

bool stamp(const std::string& folder, Folder& kept) {
    struct stat info {};
    if (::stat(folder.c_str(), &info) != 0 || !S_ISDIR(info.st_mode)) return false;
    kept.changed = info.st_mtim;
    kept.inode = info.st_ino;
    return true;
}

bool at_or_before(const timespec& a, const timespec& b) {
    return std::tie(a.tv_sec, a.tv_nsec) <= std::tie(b.tv_sec, b.tv_nsec);
}

/// Whether the folder's last change is one that the kept names know of.
bool is_known(const Folder& kept, const Folder& now) {
    if (kept.inode != now.inode) return false;
    const timespec& from = kept.stale ? kept.from : kept.changed;
    const timespec& to = kept.stale ? kept.to : kept.changed;
    return at_or_before(from, now.changed) && at_or_before(now.changed, to);
}

bool read_names(const std::string& folder, Names& names) {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
    if (!open) return false;
    while (const dirent* entry = ::readdir(open.get())) names.emplace(folded(entry->d_name), entry->d_name);
    return true;
}

/// The kept names of a folder, read again when it has changed; null when it cannot be read.
const Folder* names_in(const std::string& folder) {
    KeptNames& all = kept_names();
    const auto kept = all.folders.find(folder);
    const bool known = kept != all.folders.end();
    if (all.sole_writers > 0 && known && kept->second.checked == all.sole_writer_number) return &kept->second;
    Folder now;
    if (!stamp(folder, now)) return nullptr;
    now.checked = all.sole_writer_number;
    if (known && is_known(kept->second, now)) {
        std::swap(now.names, kept->second.names);
        now.other_clock = kept->second.other_clock;
        return &(kept->second = std::move(now));
    }
    if (!read_names(folder, now.names)) return nullptr;
    // A change outside the time in which it was made, and nothing new: the times are those of another clock.
    if (known)
        now.other_clock = kept->second.other_clock || (kept->second.stale && kept->second.names == now.names);
    if (all.folders.size() >= most_folders) all.folders.clear();
    return &(all.folders[folder] = std::move(now));
}

/// The program has changed the folder itself. Its time is taken at once, or asked for when it is looked at
/// next.
void changed_here(const std::string& folder, Folder& kept) {
    if (kept_names().sole_writers > 0)
        kept.stale = true;
    else
        stamp(folder, kept);
}

/// What is kept of the folder that an entry lies in; null when nothing is.
Folder* kept_folder_of(const std::string& path) {
    const auto kept = kept_names().folders.find(folder_of(path));
    return kept == kept_names().folders.end() ? nullptr : &kept->second;
}

} // namespace

// The kernel stamps a folder with the time of its last tick or with the exact one: a change lies between the
// coarse time before it and the exact time behind it.

NameIndex::SoleWriter::SoleWriter() {
    KeptNames& all = kept_names();
    if (++all.sole_writers > 1) return;
    ++all.sole_writer_number;
    ::clock_gettime(CLOCK_REALTIME_COARSE, &all.alone_since);
}

NameIndex::SoleWriter::~SoleWriter() {
    KeptNames& all = kept_names();
    if (--all.sole_writers > 0) return;
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    for (auto& [folder, kept] : all.folders) {
        if (!kept.stale || kept.checked != all.sole_writer_number) continue;
        kept.from = all.alone_since;
        kept.to = now;
        if (kept.other_clock) kept.stale = !stamp(folder, kept);
    }
}

namespace {

enum class Known { nothing, missing, as_given, otherwise };

/// What a sole writer knows of a path without asking.
Known known(const std::string& path) {
    if (kept_names().sole_writers == 0 || path.find('/') == std::string::npos) return Known::nothing;
    const Folder* const folder = names_in(folder_of(path));
    if (folder == nullptr) return Known::nothing;
    const auto found = folder->names.find(folded(last_name(path)));
    if (found == folder->names.end()) return Known::missing;
    return found->second == last_name(path) ? Known::as_given : Known::otherwise;
}

} // namespace

bool NameIndex::is_missing(const std::string& path) {
    return known(path) == Known::missing;
}

bool NameIndex::is_there(const std::string& path) {
    return known(path) == Known::as_given;
}

std::string NameIndex::find(const std::string& path) {
    if (path.empty()) return path;
    const Known known_of = known(path);
    if (known_of == Known::missing || known_of == Known::as_given || there(path)) return path;
    const std::string name(last_name(path));
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
    Folder* const kept = kept_folder_of(path);
    if (kept == nullptr) return;
    kept->names.insert_or_assign(folded(last_name(path)), std::string(last_name(path)));
    changed_here(folder_of(path), *kept);
}

void NameIndex::entry_removed(const std::string& path) {
    Folder* const kept = kept_folder_of(path);
    if (kept == nullptr) return;
    kept->names.erase(folded(last_name(path)));
    changed_here(folder_of(path), *kept);
}

void NameIndex::forget() {
    kept_names().folders.clear();
}

std::string disk_path(const Text& path) {
    return NameIndex::find(to_utf8(path));
}

} // namespace twk
