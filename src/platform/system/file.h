#pragma once

#include "base/failure.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace halvenmoor::system {

/// The failure that an error number of the system stands for.
Failure SystemFailure(int error);

/// The failure of a file that cannot be read or written, where the system has no number for why.
inline Failure AccessFailure() {
    return {failure::FileAccess, "Device I/O error"};
}

/// Whether there is an entry of this path; a link is not followed at the end.
bool EntryExists(const std::string& path);

/// Only a regular file counts as a file.
enum class Kind { Nothing, File, Folder, Other };

/// What the path leads to, through links.
Kind KindOf(const std::string& path);

/// Whether both paths lead to one folder; links are followed.
bool IsSameFolder(const std::string& a, const std::string& b);

/// An open file or folder.
class File {
public:
    /// What the system knows it by: the descriptor, or on Windows the handle.
    using Handle = std::intptr_t;
    static constexpr Handle kNone = -1;

    /// Takes over the handle.
    explicit File(Handle handle) noexcept : handle_(handle) {}
    File(File&& other) noexcept : handle_(other.Release()) {}
    File& operator=(File&&) = delete;
    ~File() { Close(); }

    Handle Get() const noexcept { return handle_; }
    Handle Release() noexcept { return std::exchange(handle_, kNone); }
    bool IsOpen() const noexcept { return handle_ != kNone; }

    /// Returns the error number, 0 for success and for what is closed already.
    int Close() noexcept;
    /// Bytes of a regular file. Throws Failure.
    std::uint64_t Size() const;
    /// Returns how many bytes came, 0 at the end of the file. Throws Failure.
    std::size_t Read(std::span<char> buffer) const;
    struct Written {
        std::size_t count;
        int error;
    };
    /// Writes all the bytes. Returns how many were written, and the error number if they are not all.
    Written Write(std::string_view bytes) const noexcept;
    /// Cuts the file off behind so many bytes; a shorter one stays. Failures are ignored.
    void CutTo(std::uint64_t size) const noexcept;
    /// Returns when the file is on the medium, or at once where the file system knows no such call. Throws
    /// Failure.
    void Sync() const;

private:
    Handle handle_;
};

// Only regular files are opened, links to them too. To open anything else fails at once, without waiting.

/// Throws Failure.
File OpenForReading(const std::string& path);

enum class WriteMode { Replace, Append };

/// Replace makes or empties the file, Append needs one. The file is locked before it is changed, where its
/// file system has locks; one that is locked already is refused. Throws Failure.
File OpenForWriting(const std::string& path, WriteMode mode);

/// The bytes of a file, none for one that does not exist. Nothing for what cannot be read, is no regular file
/// or has more than 1 MiB.
std::optional<std::string> ReadSmallFile(const std::string& path);

/// Brings the entry of a file in its folder to the medium. A folder that may not be listed is passed over.
/// Throws Failure.
void SyncEntry(const std::string& path);

/// Gives an entry another path; fails where that is taken. Throws Failure.
void Rename(const std::string& oldPath, const std::string& newPath);

}  // namespace halvenmoor::system
