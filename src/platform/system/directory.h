#pragma once

#include "platform/system/file.h"

#include <dirent.h>
#include <memory>

namespace halvenmoor::system {

/// A walk over the entries of a folder.
class Directory {
public:
    /// Throws Failure.
    explicit Directory(FileDescriptor folder);

    /// The next entry, hidden ones too but neither "." nor "..", valid until the next call; null at the end.
    /// Throws Failure.
    const dirent* Next();
    /// What the entry leads to, through links.
    Kind KindOf(const dirent& entry) const;

private:
    struct Closer {
        void operator()(DIR* stream) const noexcept { ::closedir(stream); }
    };

    std::unique_ptr<DIR, Closer> stream_;
};

}  // namespace halvenmoor::system
