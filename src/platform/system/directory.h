#pragma once

#include "platform/system/file.h"

#include <memory>
#include <string>
#include <string_view>

namespace halvenmoor::system {

/// A folder that is open: it stays the same one whatever happens to its path. Names are those of its entries
/// and must not lead out of it.
class OpenFolder {
public:
    /// Opens it, also through a link. Throws Failure.
    explicit OpenFolder(std::string path);

    const File& Handle() const { return handle_; }
    /// As it was given. Windows keeps it from changing while the folder is open.
    const std::string& Path() const { return path_; }

    /// As OpenForWriting in the mode Replace. Throws Failure.
    File Create(std::string_view name) const;
    /// Deletes a file, even if it is read-only; a link is deleted as a link. Throws Failure.
    void Delete(std::string_view name) const;
    /// Waits until no other process has locked it, and locks it for as long as the result lives.
    File WaitForLock() const;
    /// Returns when its files are on the medium. Throws Failure.
    void SyncFiles() const;

private:
    std::string path_;
    File handle_;
};

/// A walk over the entries of a folder, hidden ones too but neither "." nor "..".
class Directory {
public:
    /// Throws Failure.
    explicit Directory(const OpenFolder& folder);
    ~Directory();

    /// Goes on to the next entry, the first one at first. False at the end. Throws Failure.
    bool Next();

    // Of the entry in hand:
    std::string_view Name() const;  // valid until Next
    /// Whether searches leave it out.
    bool IsHidden() const;
    /// What it leads to, through links.
    Kind KindOfEntry() const;

private:
    struct Walk;

    std::unique_ptr<Walk> walk_;
};

}  // namespace halvenmoor::system
