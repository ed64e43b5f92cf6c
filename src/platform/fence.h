// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_system.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace twk {

/// A path that its fence has found to lie inside: what the program itself writes or erases. Its folder is
/// held open, so that no link put in the way later leads the work elsewhere.
class FencedPath {
  public:
    /// As it was given.
    const Text& text() const { return text_; }
    /// As it stands on disk.
    const std::string& on_disk() const { return on_disk_; }
    /// The open folder and the name in it. Fault 76 when the folder is not there.
    int folder() const;
    const char* name() const { return on_disk_.c_str() + name_at_; }
    /// The same place under the name as it was given, in its own case.
    FencedPath as_given() const;
    bool bears_given_name() const;

  private:
    friend class Fence;
    FencedPath(std::shared_ptr<const Descriptor> folder, std::string on_disk, Text text);

    std::shared_ptr<const Descriptor> folder_; ///< null when it is not there
    std::string on_disk_;
    std::size_t name_at_;
    Text text_;
};

/// Keeps a folder: what is erased or written must lie in it.
class Fence {
  public:
    /// A direct child of `projects`, the folder of all projects. Fault 75 when no folder can bear `name`, or
    /// it is a symbolic link that leads out.
    Fence(const Text& projects, TextView name);
    /// A folder of the program's own.
    explicit Fence(Text folder);

    const Text& folder() const { return folder_; }
    /// Fault 75 unless the path, its links followed, lies inside the folder.
    FencedPath within(const Text& path) const;
    /// The same for an entry that is to be removed: one that is a link counts as itself, wherever it leads.
    FencedPath entry(const Text& path) const;
    /// The project's folder itself. Fault 75 for a folder of the program's own.
    FencedPath itself() const;
    /// The folders are made anew: none is held any longer.
    void forget() { open_.clear(); }

  private:
    std::filesystem::path root() const;
    std::shared_ptr<const Descriptor> opened(const std::string& folder) const;
    FencedPath within_by_links(const Text& path, const std::string& name, bool link) const;

    Text folder_;
    std::filesystem::path projects_; ///< with all links followed; empty for a folder of the program's own
    mutable std::map<std::string, std::shared_ptr<const Descriptor>> open_;
};

/// A file that a run writes anew: to a sibling, which takes its place when it is whole. A file that is there
/// is proved to be readable, one that is not gets its name only when the sibling takes it; when that never
/// happens it stands there empty in the end, as if it had been made at once.
class ReplacedFile {
  public:
    ReplacedFile(FencedPath path, FencedPath sibling);
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    /// The stream of the sibling. Faults 53, 70 and 75 of a file that is there and cannot be read, 70 and 76
    /// of a folder in which none can be made.
    TextStreamPtr open(TextKind kind);
    void replace();

  private:
    void prove_readable();

    FencedPath path_, sibling_;
    bool missing_ = false;
};

} // namespace twk
