#pragma once

#include "base/text/codepage.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace halvenmoor::system {

/// Finds files and folders without regard to the letter case of their paths: part by part, the exact name
/// first, then of the names that are equal ignoring case the one with the smallest bytes. The names of each
/// folder are kept in an index, so that many look-ups in one folder cost one scan of it.
class PathFinder {
public:
    /// The code page must outlive the finder.
    explicit PathFinder(const text::CodePage& page) : page_(page) {}
    PathFinder(const PathFinder&) = delete;
    PathFinder& operator=(const PathFinder&) = delete;

    /// The path of the entry as it is on the disk. When there is none, or it cannot be reached, the path as
    /// it was given, so that the call which uses it fails for the true reason. A link is not followed at the
    /// end.
    std::string Find(std::string_view path);
    /// The path to write to: that of the entry that is found or, when there is none, its folder as it is on
    /// the disk and its own name as given.
    std::string FindForWriting(std::string_view path);

private:
    /// What tells whether a folder has changed.
    struct Stamp {
        std::uint64_t device = 0;
        std::uint64_t node = 0;
        std::int64_t seconds = 0;  // of the last modification
        std::int64_t nanoseconds = 0;

        bool operator==(const Stamp&) const = default;
    };

    struct Index {
        std::unordered_map<std::string, std::string> names;  // folded name -> name on the disk
        Stamp stamp;
        bool isTrusted = false;
    };

    static Stamp StampOf(const std::string& folder);
    /// The name on the disk, empty when there is none.
    std::string FindName(const std::string& folder, std::string_view name);
    void Scan(const std::string& folder, Index& index) const;

    const text::CodePage& page_;
    std::unordered_map<std::string, Index> indexes_;
};

}  // namespace halvenmoor::system
