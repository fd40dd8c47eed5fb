#pragma once

#include "base/text/codepage.h"

#include <memory>
#include <string>
#include <string_view>

namespace halvenmoor::system {

/// Tells where a path leads without regard to letter case, on a system that has regard to it: part by part,
/// the exact name first, then of the names that are equal ignoring case the one with the smallest bytes.
/// Where the system itself ignores the case, only the name at the end is that of the disk.
class PathFinder {
public:
    virtual ~PathFinder() = default;

    /// The path of the entry as it is on the disk. When there is none, or it cannot be reached, the path as
    /// it was given, so that the call which uses it fails for the true reason. A link is not followed at the
    /// end.
    virtual std::string Find(std::string_view path) = 0;
    /// The path to write to: that of the entry that is found or, when there is none, its folder as it is on
    /// the disk and its own name as given.
    virtual std::string FindForWriting(std::string_view path) = 0;
};

/// The code page must outlive the finder.
std::unique_ptr<PathFinder> MakePathFinder(const text::CodePage& page);

}  // namespace halvenmoor::system
