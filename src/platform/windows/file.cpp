#include "platform/system/file.h"

#include "platform/windows/paths.h"
#include "platform/windows/system_calls.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace halvenmoor::system {
namespace {

struct ErrorMeaning {
    DWORD error;
    int number;
    const char* description;
};

constexpr DWORD kDiskQuotaExceeded = 1295;  // the header of mingw-w64 does not know it

constexpr ErrorMeaning kErrorMeanings[] = {
    {ERROR_FILE_NOT_FOUND, failure::FileNotFound, "File not found"},
    {ERROR_ACCESS_DENIED, failure::PermissionDenied, "Permission denied"},
    {ERROR_SHARING_VIOLATION, failure::PermissionDenied, "Permission denied"},
    {ERROR_LOCK_VIOLATION, failure::PermissionDenied, "Permission denied"},
    {ERROR_WRITE_PROTECT, failure::PermissionDenied, "Permission denied"},
    {ERROR_USER_MAPPED_FILE, failure::PermissionDenied, "Permission denied"},
    {ERROR_ALREADY_EXISTS, failure::FileExists, "File already exists"},
    {ERROR_FILE_EXISTS, failure::FileExists, "File already exists"},
    {ERROR_PATH_NOT_FOUND, failure::PathNotFound, "Path not found"},
    {ERROR_DIRECTORY, failure::PathNotFound, "Path not found"},
    {ERROR_INVALID_NAME, failure::PathNotFound, "Path not found"},
    {ERROR_BAD_PATHNAME, failure::PathNotFound, "Path not found"},
    {ERROR_BAD_NETPATH, failure::PathNotFound, "Path not found"},
    {ERROR_BAD_NET_NAME, failure::PathNotFound, "Path not found"},
    {ERROR_FILENAME_EXCED_RANGE, failure::PathNotFound, "Path not found"},
    {ERROR_CANT_RESOLVE_FILENAME, failure::PathNotFound, "Path not found"},
    {ERROR_DISK_FULL, failure::DiskFull, "Disk full"},
    {ERROR_HANDLE_DISK_FULL, failure::DiskFull, "Disk full"},
    {kDiskQuotaExceeded, failure::DiskFull, "Disk full"},
    {ERROR_FILE_TOO_LARGE, failure::DiskFull, "Disk full"},
    {ERROR_NOT_ENOUGH_MEMORY, failure::OutOfMemory, "Out of memory"},
    {ERROR_OUTOFMEMORY, failure::OutOfMemory, "Out of memory"},
};

/// What the path leads to, through links; nothing for what cannot be opened.
std::optional<BY_HANDLE_FILE_INFORMATION> InformationAt(const std::string& path) {
    const File file = MakeFile(::CreateFileW(SystemPath(path).c_str(), FILE_READ_ATTRIBUTES, kShareAll,
                                             nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION info{};
    if (!file.IsOpen() || ::GetFileInformationByHandle(HandleOf(file), &info) == 0) return std::nullopt;
    return info;
}

bool IsFolder(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

File Open(const std::string& path, DWORD access, DWORD sharing, DWORD creation, DWORD errorWhenMissing) {
    File file = MakeFile(::CreateFileW(SystemPath(path).c_str(), access, sharing, nullptr, creation,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) {
        const DWORD error = ::GetLastError();
        const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        throw SystemFailure(static_cast<int>(isMissing ? errorWhenMissing : error));
    }
    if (::GetFileType(HandleOf(file)) != FILE_TYPE_DISK) throw AccessFailure();
    return file;
}

bool MoveTo(const File& file, std::uint64_t position) {
    LARGE_INTEGER distance{};
    distance.QuadPart = static_cast<LONGLONG>(position);
    return ::SetFilePointerEx(HandleOf(file), distance, nullptr, FILE_BEGIN) != 0;
}

}  // namespace

Failure SystemFailure(int error) {
    const auto* meaning =
        std::find_if(std::begin(kErrorMeanings), std::end(kErrorMeanings),
                     [error](const ErrorMeaning& known) { return known.error == static_cast<DWORD>(error); });
    if (meaning == std::end(kErrorMeanings)) return AccessFailure();
    return {meaning->number, meaning->description};
}

Failure LastFailure() {
    return SystemFailure(static_cast<int>(::GetLastError()));
}

bool EntryExists(const std::string& path) {
    return ::GetFileAttributesW(SystemPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

Kind KindOf(const std::string& path) {
    DWORD attributes = ::GetFileAttributesW(SystemPath(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return Kind::Nothing;
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        const auto target = InformationAt(path);
        if (!target) return Kind::Nothing;
        attributes = target->dwFileAttributes;
    }
    return IsFolder(attributes) ? Kind::Folder : Kind::File;
}

bool IsSameFolder(const std::string& a, const std::string& b) {
    const auto infoA = InformationAt(a);
    const auto infoB = InformationAt(b);
    return infoA && infoB && IsFolder(infoA->dwFileAttributes) &&
           infoA->dwVolumeSerialNumber == infoB->dwVolumeSerialNumber &&
           infoA->nFileIndexHigh == infoB->nFileIndexHigh && infoA->nFileIndexLow == infoB->nFileIndexLow;
}

int File::Close() noexcept {
    if (!IsOpen()) return 0;
    const HANDLE handle = HandleOf(*this);
    Release();
    return ::CloseHandle(handle) != 0 ? 0 : static_cast<int>(::GetLastError());
}

std::uint64_t File::Size() const {
    LARGE_INTEGER size{};
    if (::GetFileSizeEx(HandleOf(*this), &size) == 0) throw LastFailure();
    return static_cast<std::uint64_t>(size.QuadPart);
}

// More than this at once is left to the next call.
constexpr std::size_t kMaxBytes = 1 << 30;

std::size_t File::Read(std::span<char> buffer) const {
    const auto size = static_cast<DWORD>(std::min(buffer.size(), kMaxBytes));
    DWORD count = 0;
    if (::ReadFile(HandleOf(*this), buffer.data(), size, &count, nullptr) == 0) throw LastFailure();
    return count;
}

File::Written File::Write(std::string_view bytes) const noexcept {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const auto size = static_cast<DWORD>(std::min(bytes.size() - done, kMaxBytes));
        DWORD count = 0;
        if (::WriteFile(HandleOf(*this), bytes.data() + done, size, &count, nullptr) == 0)
            return {done + count, static_cast<int>(::GetLastError())};
        if (count == 0) return {done, ERROR_DISK_FULL};
        done += count;
    }
    return {done, 0};
}

void File::CutTo(std::uint64_t size) const noexcept {
    LARGE_INTEGER present{};
    const bool isLonger = ::GetFileSizeEx(HandleOf(*this), &present) != 0 &&
                          static_cast<std::uint64_t>(present.QuadPart) > size;
    if (isLonger && MoveTo(*this, size)) ::SetEndOfFile(HandleOf(*this));
}

void File::Sync() const {
    if (::FlushFileBuffers(HandleOf(*this)) != 0) return;
    const DWORD error = ::GetLastError();
    const bool isSupported = error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED;
    if (isSupported) throw SystemFailure(static_cast<int>(error));
}

File OpenForReading(const std::string& path) {
    return Open(path, GENERIC_READ, kShareAll, OPEN_EXISTING, ERROR_FILE_NOT_FOUND);
}

// That no other may write is the lock. A file that is hidden cannot be made anew, so it is opened and
// emptied.
File OpenForWriting(const std::string& path, WriteMode mode) {
    const bool isReplaced = mode == WriteMode::Replace;
    File file = isReplaced ? Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS, ERROR_PATH_NOT_FOUND)
                           : Open(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, ERROR_FILE_NOT_FOUND);
    if (!MoveTo(file, isReplaced ? 0 : file.Size())) throw LastFailure();
    if (isReplaced && ::SetEndOfFile(HandleOf(file)) == 0) throw LastFailure();
    return file;
}

void SyncEntry(const std::string&) {
    // Windows brings it to the medium with the file.
}

void Rename(const std::string& oldPath, const std::string& newPath) {
    if (::MoveFileExW(SystemPath(oldPath).c_str(), SystemPath(newPath).c_str(), 0) == 0) throw LastFailure();
}

}  // namespace halvenmoor::system
