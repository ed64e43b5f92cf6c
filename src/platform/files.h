// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// Files as the program knows them. A path is a text with the machine's separator; names are found without
/// regard to case, an exact match first. Faults: 53 no such file, 70 permission denied, 75 a path that may
/// not be touched, 76 no such folder, 61 disk full, 57 any other failure of reading or writing.
namespace twk {

/// How a text is written. All-ASCII text is plain unless it is `marked`.
enum class TextKind {
    list,    ///< UTF-8 without the mark
    page,    ///< UTF-8 with the mark in front when it holds more than ASCII
    marked,  ///< UTF-8 with the mark, ASCII too
    windows, ///< Windows-1252; as a page when a character has no place in it
};

enum class OpenMode { reading = 1, writing = 2, appending = 8 };

/// A text file. A writing stream gathers its text and writes it at Close; destroying it without Close writes
/// nothing. Reading takes a UTF-8 mark, else valid UTF-8, else Windows-1252; lines end in CR LF, LF or CR.
class TextStream {
  public:
    /// `file` is the descriptor of an open file that the stream writes to and closes, -1 for a reading one.
    TextStream(Text path, OpenMode mode, TextKind kind, Text content, int file);
    ~TextStream();
    TextStream(const TextStream&) = delete;
    TextStream& operator=(const TextStream&) = delete;

    /// The next line without its end. Fault 62 at the end of the file.
    Text readline();
    /// All that has not been read yet.
    Text ReadAll();
    bool AtEndOfStream() const;

    void write(TextView text);
    /// The text, in one piece or in several, then CR LF.
    void writeline(TextView line) { writeline(std::initializer_list<TextView>{line}); }
    void writeline(std::initializer_list<TextView> pieces);
    /// Writes what was gathered. A stream that is closed stays closed.
    void Close();
    /// Closes a writing stream; returns the whole text as a reader of the file finds it.
    Text close_and_read();

    const Text& path() const { return path_; }
    /// Of a reading stream: how the file is written, so that what replaces it can be written alike. A file
    /// that is all ASCII, and not marked, is of the kind that it was opened as.
    TextKind kind() const { return kind_; }
    /// Bytes of the file once a writing stream is closed.
    std::int64_t size() const { return size_; }

  private:
    Text path_;
    std::int64_t size_ = 0;
    OpenMode mode_;
    TextKind kind_;
    Text content_;
    std::size_t at_ = 0;
    bool open_ = true;
    int file_;
};

using TextStreamPtr = std::shared_ptr<TextStream>;

class FileSystemObject {
  public:
    bool FileExists(const Text& path) const;
    /// Opening for reading a file that is not there is fault 53, unless `create` makes an empty one. Opening
    /// for writing or appending proves at once that the file can be written, and creates it under `create`.
    TextStreamPtr OpenTextFile(const Text& path, OpenMode mode, bool create = false,
                               TextKind kind = TextKind::list);
    /// Fault 53 when there is none.
    void DeleteFile(const Text& path);
    /// Overwrites; the copy's name bears the case given here.
    void CopyFile(const Text& from, const Text& to);
    /// The file takes the other name; what stood there is gone. The name bears the case given here. Whenever
    /// the program ends, one of the two stands under the name, whole.
    void MoveOver(const Text& from, const Text& to);
    /// The same for a file of the user's, which keeps its mode, owner and group; a symbolic link stays one,
    /// and what it leads to is replaced. Fault 70 when that is protected.
    void ReplaceFile(const Text& from, const Text& to);
    /// With all that is in it; symbolic links are removed, never followed.
    void DeleteFolder(const Text& path);
};

/// A file that is about to be replaced by a sibling. A file that is there is proved to be readable, one that
/// is not gets its name only when the sibling takes it; when that never happens it stands there empty in the
/// end, as if it had been made at once.
class ReplacedFile {
  public:
    /// The faults of opening the file for reading, made when it is missing.
    explicit ReplacedFile(Text path);
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    void replace_by(const Text& sibling);

  private:
    Text path_;
    bool missing_;
};

/// Whether there is a folder (`Dir` with the directory attribute) or a file of that name.
bool dir_exists(const Text& path);
bool file_exists(const Text& path);
/// Name of the file when there is one, empty otherwise.
Text Dir(const Text& path);
/// Fault 75 when it is there already, 76 when its parent is not.
void MkDir(const Text& path);
/// An empty folder; otherwise fault 75.
void RmDir(const Text& path);
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

/// Whole text of a file, decoded as a reading stream does.
Text read_text_file(const Text& path);
std::string encode_text(TextView text, TextKind kind);
/// Kind of a file's bytes; `plain` for ASCII without the mark.
TextKind kind_of_bytes(std::string_view bytes, TextKind plain);
Text decode_text(std::string_view bytes);

/// The path as it stands on disk, names found without regard to case; where nothing is found, as given.
std::string disk_path(const Text& path);

/// Whether a folder can bear the name: not empty, "." or "..", no separator or control character in it, and
/// no longer than a file system takes.
bool is_folder_name(TextView name);

/// Keeps a project's folder: what is erased or written must lie in a direct child of `Projects`.
class Fence {
  public:
    /// `projects` is the folder of all projects. Fault 75 when no folder can bear `name`, or it is a symbolic
    /// link that leads out.
    Fence(Text projects, TextView name);

    const Text& folder() const { return folder_; }
    /// Fault 75 unless the path, its links followed, lies inside the folder.
    void check(const Text& path) const;

  private:
    bool inside(const std::string& folder) const;

    Text projects_;
    Text folder_;
    /// Folders that have been found to lie inside.
    mutable std::set<std::string> known_;
};

} // namespace twk
