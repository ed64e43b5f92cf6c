// SPDX-License-Identifier: MIT
#pragma once

#include "platform/paths.h"
#include "platform/text_stream.h"

#include <cstdint>
#include <string>
#include <vector>

/// Files as the program knows them. A path is a text with the machine's separator; names are found without
/// regard to case, an exact match first. Faults: 53 no such file, 70 permission denied, 75 a path that may
/// not be touched, 76 no such folder, 61 disk full, 57 any other failure of reading or writing.
namespace twk {

class FencedPath;

class FileSystemObject {
  public:
    bool FileExists(const Text& path) const;
    /// Opening for reading a file that is not there is fault 53, unless `create` makes an empty one. Opening
    /// for writing or appending proves at once that the file can be written, and creates it under `create`.
    /// For files that the user has named.
    TextStreamPtr OpenTextFile(const Text& path, OpenMode mode, bool create = false,
                               TextKind kind = TextKind::list);
    /// A sibling of the file takes its place and keeps its mode, owner and group; a symbolic link stays one,
    /// and what it leads to is replaced. Fault 70 when that is protected. Whenever the program ends, one of
    /// the two stands under the name, whole.
    void ReplaceFile(const Text& sibling, const Text& path);

    // What the program writes and erases by itself lies within a fence. No link is followed.

    TextStreamPtr OpenTextFile(const FencedPath& path, OpenMode mode, bool create = false,
                               TextKind kind = TextKind::list);
    /// Fault 53 when there is none.
    void DeleteFile(const FencedPath& path);
    /// Overwrites; the copy's name bears the case given here.
    void CopyFile(const Text& from, const FencedPath& to);
    /// The file takes the other name; what stood there is gone. The name bears the case given here.
    void MoveOver(const FencedPath& from, const FencedPath& to);
    /// With all that is in it; symbolic links are removed, never followed.
    void DeleteFolder(const FencedPath& path);
};

/// Whether there is a folder, or a file, of that name.
bool dir_exists(const Text& path);
bool file_exists(const Text& path);
/// Fault 75 when it is there already, 76 when its parent is not.
void MkDir(const Text& path);
void MkDir(const FencedPath& path);
/// An empty folder; otherwise fault 75.
void RmDir(const FencedPath& path);
/// Whether the file may not be written: by its mode, whoever asks. Nothing there is not protected.
bool is_protected(const Text& path);
/// The path with all links followed. Fault 53 when it leads nowhere.
Text real_path(const Text& path);
/// Whether the path, its links followed, lies in the folder or in one below. Fault 53 when either is missing.
bool lies_in(const Text& path, const Text& folder);
/// Length in bytes.
std::int64_t FileLen(const Text& path);

/// Names in a folder by name without regard to case ("_" before the letters). "*.htm" matches whole names
/// without regard to case, "*.*" wants a point in the name; ";" stands between patterns of which one has to
/// match. A folder that is not there is fault 76.
std::vector<Text> list_files(const Text& folder, TextView pattern);
std::vector<Text> list_folders(const Text& folder);
bool matches_pattern(TextView name, TextView pattern);

/// All bytes of a file.
std::string read_bytes(const Text& path);
/// Whole text of a file, decoded as a reading stream does.
Text read_text_file(const Text& path);

/// The path as it stands on disk, names found without regard to case; where nothing is found, as given.
std::string disk_path(const Text& path);

/// Whether a folder can bear the name: not empty, "." or "..", no separator or control character in it, and
/// no longer than a file system takes.
bool is_folder_name(TextView name);

} // namespace twk
