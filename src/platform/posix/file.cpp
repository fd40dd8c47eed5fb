#include "platform/system/file.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <iterator>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace halvenmoor::system {
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

FileDescriptor OpenRegular(int base, const std::string& path, int flags, int errorWhenMissing) {
    FileDescriptor file = Open(base, path, flags, errorWhenMissing);
    struct stat info {};
    if (::fstat(file.Get(), &info) != 0) throw SystemFailure(errno);
    if (S_ISDIR(info.st_mode)) throw SystemFailure(EISDIR);
    if (!S_ISREG(info.st_mode)) throw SystemFailure(ENODEV);
    return file;
}

FileDescriptor OpenForWriting(int base, const std::string& path, WriteMode mode) {
    const bool isReplaced = mode == WriteMode::Replace;
    FileDescriptor file = isReplaced ? OpenRegular(base, path, O_WRONLY | O_CREAT, ENOTDIR)
                                     : OpenRegular(base, path, O_WRONLY | O_APPEND, ENOENT);
    const bool isTaken = ::flock(file.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (isTaken) throw SystemFailure(EACCES);
    if (isReplaced && Uninterrupted([&] { return ::ftruncate(file.Get(), 0); }) != 0)
        throw SystemFailure(errno);
    return file;
}

/// A file system that has no such call is no failure.
void ThrowIfNotSynced(int result) {
    const bool isSupported = errno != EINVAL && errno != ENOTSUP && errno != ENOSYS;
    if (result != 0 && isSupported) throw SystemFailure(errno);
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

bool IsSameFolder(const std::string& a, const std::string& b) {
    struct stat infoA {};
    struct stat infoB {};
    if (::stat(SystemPath(a), &infoA) != 0 || ::stat(SystemPath(b), &infoB) != 0) return false;
    return S_ISDIR(infoA.st_mode) && infoA.st_dev == infoB.st_dev && infoA.st_ino == infoB.st_ino;
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

FileDescriptor::Written FileDescriptor::Write(std::string_view bytes) const noexcept {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const std::string_view rest = bytes.substr(done);
        const auto count = Uninterrupted([&] { return ::write(descriptor_, rest.data(), rest.size()); });
        if (count <= 0) return {done, count < 0 ? errno : EIO};
        done += static_cast<std::size_t>(count);
    }
    return {done, 0};
}

void FileDescriptor::CutTo(std::uint64_t size) const noexcept {
    struct stat info {};
    if (::fstat(descriptor_, &info) != 0 || info.st_size <= static_cast<off_t>(size)) return;
    static_cast<void>(Uninterrupted([&] { return ::ftruncate(descriptor_, static_cast<off_t>(size)); }));
}

void FileDescriptor::Sync() const {
    ThrowIfNotSynced(Uninterrupted([&] { return ::fsync(descriptor_); }));
}

void FileDescriptor::SyncFileSystem() const {
    ThrowIfNotSynced(Uninterrupted([&] { return ::syncfs(descriptor_); }));
}

FileDescriptor OpenForReading(const std::string& path) {
    return OpenRegular(AT_FDCWD, path, O_RDONLY, ENOENT);
}

FileDescriptor OpenForWriting(const std::string& path, WriteMode mode) {
    return OpenForWriting(AT_FDCWD, path, mode);
}

FileDescriptor OpenForWriting(const FileDescriptor& folder, const std::string& name) {
    return OpenForWriting(folder.Get(), name, WriteMode::Replace);
}

std::optional<std::string> ReadSmallFile(const std::string& path) {
    constexpr std::size_t kMaxBytes = 1024 * 1024;
    try {
        const FileDescriptor file = OpenForReading(path);
        const std::uint64_t size = file.Size();
        if (size > kMaxBytes) return std::nullopt;
        std::string text(static_cast<std::size_t>(size), '\0');
        std::size_t done = 0;
        while (const std::size_t count = file.Read(std::span(text).subspan(done))) done += count;
        text.resize(done);
        return text;
    } catch (const Failure& failure) {
        return failure.Number() == failure::FileNotFound ? std::optional(std::string()) : std::nullopt;
    }
}

void SyncEntry(const std::string& path) {
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    if (::access(SystemPath(folder), R_OK) == 0) OpenFolder(folder).Sync();
}

FileDescriptor OpenFolder(const std::string& path) {
    return Open(AT_FDCWD, path, O_RDONLY | O_DIRECTORY, ENOTDIR);
}

FileDescriptor OpenFolder(const FileDescriptor& folder) {
    return Open(folder.Get(), ".", O_RDONLY | O_DIRECTORY);
}

}  // namespace halvenmoor::system
