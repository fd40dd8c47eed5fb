#pragma once

#include "base/failure.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <utility>

namespace halvenmoor::system {

/// The failure that an error number of the system stands for.
Failure SystemFailure(int error);

/// The path as system calls take it. One with a NUL would name another file and becomes empty, which every
/// call refuses.
inline const char* SystemPath(const std::string& path) {
    return path.find('\0') == std::string::npos ? path.c_str() : "";
}

/// Whether there is an entry of this path; a link is not followed at the end.
bool EntryExists(const std::string& path);

/// Only a regular file counts as a file.
enum class Kind { Nothing, File, Folder, Other };

Kind KindOf(mode_t mode);
/// What the path leads to, through links.
Kind KindOf(const std::string& path);

/// Whether both paths lead to one folder; links are followed.
bool IsSameFolder(const std::string& a, const std::string& b);

/// An open file or folder.
class FileDescriptor {
public:
    /// Takes over the descriptor.
    explicit FileDescriptor(int descriptor) noexcept : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    ~FileDescriptor() { Close(); }

    int Get() const noexcept { return descriptor_; }
    int Release() noexcept { return std::exchange(descriptor_, -1); }
    bool IsOpen() const noexcept { return descriptor_ >= 0; }

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
    /// The same for all files of the file system that this file or folder is on.
    void SyncFileSystem() const;

private:
    int descriptor_;
};

// Only regular files are opened, links to them too. To open anything else fails at once, without waiting.

/// Throws Failure.
FileDescriptor OpenForReading(const std::string& path);

enum class WriteMode { Replace, Append };

/// Replace makes or empties the file, Append needs one. The file is locked before it is changed, where its
/// file system has locks; one that is locked already is refused. Throws Failure.
FileDescriptor OpenForWriting(const std::string& path, WriteMode mode);
/// The same in an open folder, in the mode Replace.
FileDescriptor OpenForWriting(const FileDescriptor& folder, const std::string& name);

/// The bytes of a file, none for one that does not exist. Nothing for what cannot be read, is no regular file
/// or has more than 1 MiB.
std::optional<std::string> ReadSmallFile(const std::string& path);

/// Brings the entry of a file in its folder to the medium. A folder that may not be listed is passed over.
/// Throws Failure.
void SyncEntry(const std::string& path);

/// Opens a folder, also through a link. Throws Failure.
FileDescriptor OpenFolder(const std::string& path);
/// Opens an open folder once more, for a walk of its own. Throws Failure.
FileDescriptor OpenFolder(const FileDescriptor& folder);

}  // namespace halvenmoor::system
