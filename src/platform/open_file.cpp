// SPDX-License-Identifier: MIT
#include "platform/open_file.h"

#include "platform/faults.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

#if defined(__linux__) && __has_include(<linux/openat2.h>)
#include <linux/openat2.h>
#include <sys/syscall.h>
#endif

namespace twk {

namespace {

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

/// Cuts a plain file back to what it was before `error`; returns that, or why it could not be cut.
int undone(const OpenFile& file, std::size_t old_size, int error) {
    if (error == 0 || file.size < 0) return error;
    return ::ftruncate(file.descriptor.number(), static_cast<off_t>(old_size)) != 0 ? errno : error;
}

} // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    if (this != &other) {
        close();
        number_ = std::exchange(other.number_, -1);
    }
    return *this;
}

int Descriptor::close() {
    const int number = std::exchange(number_, -1);
    return number >= 0 && ::close(number) != 0 ? errno : 0;
}

void fail_with(int error, const Text& path) {
    const Failure failure = failure_of(error);
    throw RuntimeFault(failure.number, Text(failure.text) + u": " + path);
}

bool nobody_may_write(const struct stat& info) {
    return (info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
}

namespace {

/// `size` is what the file is expected to hold, below 0 where that says nothing.
std::string read_bytes(const Descriptor& file, const Text& path, std::int64_t size) {
    std::string bytes(static_cast<std::size_t>(std::max<std::int64_t>(size, 0)) + 1, '\0');
    std::size_t have = 0;
    for (;;) {
        const std::size_t room = bytes.size() - have;
        const ssize_t got = ::read(file.number(), bytes.data() + have, room);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) fail_with(errno, path);
        have += static_cast<std::size_t>(got);
        // A plain file that gave less than asked for has ended.
        if (got == 0 || (size >= 0 && static_cast<std::size_t>(got) < room)) break;
        if (have == bytes.size()) bytes.resize(bytes.size() + 4096);
    }
    bytes.resize(have);
    return bytes;
}

std::int64_t plain_size(const struct stat& info) {
    return S_ISREG(info.st_mode) ? info.st_size : -1;
}

} // namespace

std::string read_open(const Descriptor& file, const Text& path) {
    struct stat info {};
    if (::fstat(file.number(), &info) != 0) fail_with(errno, path);
    if (S_ISDIR(info.st_mode)) fail_with(EISDIR, path);
    return read_bytes(file, path, plain_size(info));
}

std::string read_open(const OpenFile& file, const Text& path) {
    return read_bytes(file.descriptor, path, file.size);
}

OpenFile opened_to_write(Descriptor descriptor, const Text& path) {
    struct stat info {};
    if (::fstat(descriptor.number(), &info) != 0) return {std::move(descriptor), -1};
    if (nobody_may_write(info)) fail_with(EACCES, path);
    return {std::move(descriptor), plain_size(info)};
}

/// What lies behind the old end is written first: where the disk is full the file is cut back and stays as it
/// was, and the rest needs no more room.
int replace_content(const OpenFile& opened, std::string_view bytes) {
    const int file = opened.descriptor.number();
    const std::size_t old_size = static_cast<std::size_t>(std::max<std::int64_t>(opened.size, 0));
    const std::size_t common = std::min(old_size, bytes.size());
    if (const int error = write_at(file, bytes.substr(common), common); error != 0)
        return undone(opened, old_size, error);
    if (const int error = write_at(file, bytes.substr(0, common), 0); error != 0) return error;
    if (bytes.size() < old_size && ::ftruncate(file, static_cast<off_t>(bytes.size())) != 0) return errno;
    return 0;
}

int append_content(const OpenFile& opened, std::string_view bytes, std::size_t old_size) {
    return undone(opened, old_size, write_at(opened.descriptor.number(), bytes, old_size));
}

int closed_after(int error, OpenFile& file) {
    const int unclosed = file.descriptor.close();
    return error != 0 ? error : unclosed;
}

Descriptor open_beneath(const Descriptor& root, const std::string& relative, bool by_kernel) {
    constexpr int folder = O_PATH | O_DIRECTORY | O_CLOEXEC;
#if defined(SYS_openat2)
    if (by_kernel) {
        open_how how{};
        how.flags = folder;
        how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
        const auto opened =
            static_cast<int>(::syscall(SYS_openat2, root.number(), relative.c_str(), &how, sizeof how));
        // Older kernels do not know the call, some cages forbid it.
        if (opened >= 0 || (errno != ENOSYS && errno != EPERM)) return Descriptor(opened);
    }
#else
    (void)by_kernel;
#endif
    Descriptor here(::openat(root.number(), ".", folder));
    for (const std::filesystem::path& step : std::filesystem::path(relative)) {
        if (step == "..") {
            errno = EXDEV;
            return {};
        }
        here = Descriptor(::openat(here.number(), step.c_str(), folder | O_NOFOLLOW));
        if (!here) return here;
    }
    return here;
}

} // namespace twk
