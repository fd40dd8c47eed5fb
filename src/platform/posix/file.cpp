#include "platform/system/file.h"

#include "platform/posix/system_calls.h"
#include "platform/system/directory.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <iterator>
#include <stdio.h>  // renameat2
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

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

File Open(int base, const std::string& path, int flags, int errorWhenMissing = ENOENT) {
    constexpr mode_t kReadableAndWritable = 0666;  // less what the user's mask takes away
    constexpr int kAlways = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    File file(Uninterrupted(
        [&] { return ::openat(base, SystemPath(path), flags | kAlways, kReadableAndWritable); }));
    if (!file.IsOpen()) throw SystemFailure(errno == ENOENT ? errorWhenMissing : errno);
    return file;
}

File OpenRegular(int base, const std::string& path, int flags, int errorWhenMissing) {
    File file = Open(base, path, flags, errorWhenMissing);
    struct stat info {};
    if (::fstat(DescriptorOf(file), &info) != 0) throw SystemFailure(errno);
    if (S_ISDIR(info.st_mode)) throw SystemFailure(EISDIR);
    if (!S_ISREG(info.st_mode)) throw SystemFailure(ENODEV);
    return file;
}

File OpenForWriting(int base, const std::string& path, WriteMode mode) {
    const bool isReplaced = mode == WriteMode::Replace;
    File file = isReplaced ? OpenRegular(base, path, O_WRONLY | O_CREAT, ENOTDIR)
                           : OpenRegular(base, path, O_WRONLY | O_APPEND, ENOENT);
    const bool isTaken = ::flock(DescriptorOf(file), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (isTaken) throw SystemFailure(EACCES);
    if (isReplaced && Uninterrupted([&] { return ::ftruncate(DescriptorOf(file), 0); }) != 0)
        throw SystemFailure(errno);
    return file;
}

/// A file system that has no such call is no failure.
void ThrowIfNotSynced(int result) {
    const bool isSupported = errno != EINVAL && errno != ENOTSUP && errno != ENOSYS;
    if (result != 0 && isSupported) throw SystemFailure(errno);
}

/// The name, which must not lead out of its folder.
std::string OwnName(std::string_view name) {
    if (name.find('/') != std::string_view::npos) throw SystemFailure(ENOENT);
    return std::string(name);
}

}  // namespace

Failure SystemFailure(int error) {
    const auto* meaning = std::find_if(std::begin(kErrorMeanings), std::end(kErrorMeanings),
                                       [error](const ErrorMeaning& known) { return known.error == error; });
    if (meaning == std::end(kErrorMeanings)) return AccessFailure();
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

int File::Close() noexcept {
    if (!IsOpen()) return 0;
    // An interrupted close has closed the file all the same.
    return ::close(static_cast<int>(Release())) == 0 || errno == EINTR ? 0 : errno;
}

std::uint64_t File::Size() const {
    struct stat info {};
    if (::fstat(DescriptorOf(*this), &info) != 0) throw SystemFailure(errno);
    return static_cast<std::uint64_t>(info.st_size);
}

std::size_t File::Read(std::span<char> buffer) const {
    const auto count =
        Uninterrupted([&] { return ::read(DescriptorOf(*this), buffer.data(), buffer.size()); });
    if (count < 0) throw SystemFailure(errno);
    return static_cast<std::size_t>(count);
}

File::Written File::Write(std::string_view bytes) const noexcept {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const std::string_view rest = bytes.substr(done);
        const auto count =
            Uninterrupted([&] { return ::write(DescriptorOf(*this), rest.data(), rest.size()); });
        if (count <= 0) return {done, count < 0 ? errno : EIO};
        done += static_cast<std::size_t>(count);
    }
    return {done, 0};
}

void File::CutTo(std::uint64_t size) const noexcept {
    struct stat info {};
    if (::fstat(DescriptorOf(*this), &info) != 0 || info.st_size <= static_cast<off_t>(size)) return;
    static_cast<void>(
        Uninterrupted([&] { return ::ftruncate(DescriptorOf(*this), static_cast<off_t>(size)); }));
}

void File::Sync() const {
    ThrowIfNotSynced(Uninterrupted([&] { return ::fsync(DescriptorOf(*this)); }));
}

File OpenForReading(const std::string& path) {
    return OpenRegular(AT_FDCWD, path, O_RDONLY, ENOENT);
}

File OpenForWriting(const std::string& path, WriteMode mode) {
    return OpenForWriting(AT_FDCWD, path, mode);
}

void SyncEntry(const std::string& path) {
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    if (::access(SystemPath(folder), R_OK) == 0) OpenFolder(folder).Handle().Sync();
}

void Rename(const std::string& oldPath, const std::string& newPath) {
    const char* const from = SystemPath(oldPath);
    const char* const to = SystemPath(newPath);
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return;
    const bool isSupported = errno != EINVAL && errno != ENOSYS;
    if (isSupported) throw SystemFailure(errno);
    if (EntryExists(newPath)) throw SystemFailure(EEXIST);
    if (::rename(from, to) != 0) throw SystemFailure(errno);
}

OpenFolder::OpenFolder(std::string path)
    : path_(std::move(path)), handle_(Open(AT_FDCWD, path_, O_RDONLY | O_DIRECTORY, ENOTDIR)) {
}

File OpenFolder::Create(std::string_view name) const {
    return OpenForWriting(DescriptorOf(handle_), OwnName(name), WriteMode::Replace);
}

void OpenFolder::Delete(std::string_view name) const {
    if (::unlinkat(DescriptorOf(handle_), SystemPath(OwnName(name)), 0) != 0) throw SystemFailure(errno);
}

File OpenFolder::WaitForLock() const {
    File again = Open(DescriptorOf(handle_), ".", O_RDONLY | O_DIRECTORY);
    ::flock(DescriptorOf(again), LOCK_EX);
    return again;
}

void OpenFolder::SyncFiles() const {
    ThrowIfNotSynced(Uninterrupted([&] { return ::syncfs(DescriptorOf(handle_)); }));
}

}  // namespace halvenmoor::system
