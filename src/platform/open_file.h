// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include <sys/stat.h>

/// Files that are open, by their descriptors, and what goes through them.
namespace twk {

/// Owns a descriptor of the system; -1 is none.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int opened) : number_(opened) {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }
    /// Returns an error number, 0 for none.
    int close();

  private:
    int number_ = -1;
};

/// A file that is open for writing.
struct OpenFile {
    Descriptor descriptor{};
    std::int64_t size = -1; ///< bytes when it was opened; below 0 for what is no plain file
    bool made = false;      ///< by opening it
};

/// Throws the fault of an error number: 53 no such file, 76 no such folder, 70 permission denied, 61 disk
/// full, 75 a path that cannot be used so, 57 any other.
[[noreturn]] void fail_with(int error, const Text& path);

/// Whether nobody at all may write: where that is so even root is kept out.
bool nobody_may_write(const struct stat& info);

/// All bytes of a file that is open for reading. Fault 75 for a folder. `path` is for the message.
std::string read_open(const Descriptor& file, const Text& path);
std::string read_open(const OpenFile& file, const Text& path);

/// Gives an open file its content, and adds at its end. Where the disk is full the file stays as it was. Both
/// return an error number, 0 for none.
int replace_content(const OpenFile& file, std::string_view bytes);
int append_content(const OpenFile& file, std::string_view bytes, std::size_t old_size);

/// Closes a file that something was written to. Returns the error of that, or else the one of closing.
int closed_after(int error, OpenFile& file);

/// What is known of a file behind its opening. Fault 70 when nobody may write it.
OpenFile opened_to_write(Descriptor descriptor, const Text& path);

/// The folder of that path below another one, for work relative to it. No link is followed and nothing leads
/// out: an empty descriptor, and `errno`, when one would. `by_kernel` lets the kernel see to that where it
/// can; else it is gone there step by step.
Descriptor open_beneath(const Descriptor& root, const std::string& relative, bool by_kernel = true);

} // namespace twk
