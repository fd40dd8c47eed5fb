#include "platform/posix/system.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace halvenmoor::posix {
namespace {

struct ErrorMeaning {
    int error;
    int number;
    const char* description;
};

constexpr ErrorMeaning kErrorMeanings[] = {
    {ENOENT, failure::FileNotFound, "File not found"},
    {EACCES, failure::PermissionDenied, "Permission denied"},
    {EPERM, failure::PermissionDenied, "Permission denied"},
    {EROFS, failure::PermissionDenied, "Permission denied"},
    {EISDIR, failure::PermissionDenied, "Permission denied"},
    {ETXTBSY, failure::PermissionDenied, "Permission denied"},
    {EEXIST, failure::FileExists, "File already exists"},
    {ENOTDIR, failure::PathNotFound, "Path not found"},
    {ELOOP, failure::PathNotFound, "Path not found"},
    {ENAMETOOLONG, failure::PathNotFound, "Path not found"},
    {ENOSPC, failure::DiskFull, "Disk full"},
    {EDQUOT, failure::DiskFull, "Disk full"},
    {EFBIG, failure::DiskFull, "Disk full"},
    {ENOMEM, failure::OutOfMemory, "Out of memory"},
};

/// Repeats a call for as long as a signal interrupts it.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

FileDescriptor Open(int base, const std::string& path, int flags, int errorWhenMissing = ENOENT) {
    constexpr mode_t kReadableAndWritable = 0666;  // less what the user's mask takes away
    constexpr int kAlways = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    FileDescriptor file(Uninterrupted(
        [&] { return ::openat(base, SystemPath(path), flags | kAlways, kReadableAndWritable); }));
    if (!file.IsOpen()) throw SystemFailure(errno == ENOENT ? errorWhenMissing : errno);
    return file;
}

FileDescriptor OpenForWriting(int base, const std::string& path, WriteMode mode) {
    FileDescriptor file = mode == WriteMode::Replace ? Open(base, path, O_WRONLY | O_CREAT | O_TRUNC, ENOTDIR)
                                                     : Open(base, path, O_WRONLY | O_APPEND);
    // Only the opening must not wait. From here on a write that would have to is no failure.
    const int flags = ::fcntl(file.Get(), F_GETFL);
    if (flags < 0 || ::fcntl(file.Get(), F_SETFL, flags & ~O_NONBLOCK) < 0) throw SystemFailure(errno);
    return file;
}

}  // namespace

Failure SystemFailure(int error) {
    const auto* meaning = std::find_if(std::begin(kErrorMeanings), std::end(kErrorMeanings),
                                       [error](const ErrorMeaning& known) { return known.error == error; });
    if (meaning == std::end(kErrorMeanings)) return {failure::FileAccess, "Device I/O error"};
    return {meaning->number, meaning->description};
}

bool EntryExists(const std::string& path) {
    struct stat info {};
    return ::lstat(SystemPath(path), &info) == 0;
}

Kind KindOf(mode_t mode) {
    if (S_ISDIR(mode)) return Kind::Folder;
    return S_ISREG(mode) ? Kind::File : Kind::Other;
}

Kind KindOf(const std::string& path) {
    struct stat info {};
    return ::stat(SystemPath(path), &info) == 0 ? KindOf(info.st_mode) : Kind::Nothing;
}

int FileDescriptor::Close() noexcept {
    if (!IsOpen()) return 0;
    // An interrupted close has closed the file all the same.
    return ::close(Release()) == 0 || errno == EINTR ? 0 : errno;
}

std::uint64_t FileDescriptor::Size() const {
    struct stat info {};
    if (::fstat(descriptor_, &info) != 0) throw SystemFailure(errno);
    return static_cast<std::uint64_t>(info.st_size);
}

std::size_t FileDescriptor::Read(std::span<char> buffer) const {
    const auto count = Uninterrupted([&] { return ::read(descriptor_, buffer.data(), buffer.size()); });
    if (count < 0) throw SystemFailure(errno);
    return static_cast<std::size_t>(count);
}

int FileDescriptor::Write(std::string_view bytes) const noexcept {
    while (!bytes.empty()) {
        const auto count = Uninterrupted([&] { return ::write(descriptor_, bytes.data(), bytes.size()); });
        if (count < 0) return errno;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

FileDescriptor OpenForReading(const std::string& path) {
    FileDescriptor file = Open(AT_FDCWD, path, O_RDONLY);
    struct stat info {};
    if (::fstat(file.Get(), &info) != 0) throw SystemFailure(errno);
    if (S_ISDIR(info.st_mode)) throw SystemFailure(EISDIR);
    if (!S_ISREG(info.st_mode)) throw SystemFailure(ENODEV);
    return file;
}

FileDescriptor OpenForWriting(const std::string& path, WriteMode mode) {
    return OpenForWriting(AT_FDCWD, path, mode);
}

FileDescriptor OpenForWriting(const FileDescriptor& folder, const std::string& name) {
    return OpenForWriting(folder.Get(), name, WriteMode::Replace);
}

FileDescriptor OpenFolder(const std::string& path) {
    return Open(AT_FDCWD, path, O_RDONLY | O_DIRECTORY, ENOTDIR);
}

FileDescriptor OpenFolder(const FileDescriptor& folder) {
    return Open(folder.Get(), ".", O_RDONLY | O_DIRECTORY);
}

}  // namespace halvenmoor::posix
