// SPDX-License-Identifier: MIT
#pragma once

#include "platform/encoding.h"
#include "platform/open_file.h"

#include <cstdint>
#include <initializer_list>
#include <memory>

namespace twk {

enum class OpenMode { reading = 1, writing = 2, appending = 8 };

/// A text file. A writing stream gathers its text and writes it at Close; destroying it without Close writes
/// nothing. Reading takes a UTF-8 mark, else valid UTF-8, else Windows-1252; lines end in CR LF, LF or CR.
class TextStream {
  public:
    /// A reading stream over all that a file holds.
    TextStream(Text path, TextKind kind, Text content);
    /// A stream that writes to the file, or adds to it: then it must be open for reading, too.
    TextStream(Text path, OpenMode mode, TextKind kind, OpenFile file);
    TextStream(const TextStream&) = delete;
    TextStream& operator=(const TextStream&) = delete;

    /// The next line without its end. Fault 62 at the end of the file.
    Text readline();
    bool AtEndOfStream() const;

    void write(TextView text);
    /// What a writing stream has gathered, to be appended to. Fault 75 for any other.
    Text& written();
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
    /// Bytes of the file once a writing stream is closed, and those of them that it did not have before it
    /// was added to.
    std::int64_t size() const { return size_; }
    std::int64_t grown() const { return size_ - old_size_; }

  private:
    Text path_;
    std::int64_t size_ = 0, old_size_ = 0;
    OpenMode mode_;
    TextKind kind_;
    Text content_;
    std::size_t at_ = 0;
    bool open_ = true;
    OpenFile file_;
};

using TextStreamPtr = std::shared_ptr<TextStream>;

} // namespace twk
