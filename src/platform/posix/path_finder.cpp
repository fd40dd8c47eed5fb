#include "platform/system/path_finder.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "platform/posix/system_calls.h"
#include "platform/system/directory.h"
#include "platform/system/file.h"

#include <climits>
#include <cstdint>
#include <ctime>
#include <sys/stat.h>
#include <unordered_map>

namespace halvenmoor::system {
namespace {

// File systems keep times in steps of up to this many seconds: a folder that was changed so shortly before
// its scan may change again without a new time.
constexpr std::int64_t kMaxTimeStep = 2;

std::string Join(const std::string& folder, std::string_view name) {
    std::string path = folder;
    if (!path.ends_with('/')) path += '/';
    return path.append(name);
}

/// Keeps the names of each folder in an index, so that many look-ups in one folder cost one scan of it.
class IndexedPathFinder : public PathFinder {
public:
    explicit IndexedPathFinder(const text::CodePage& page) : page_(page) {}

    std::string Find(std::string_view path) override;
    std::string FindForWriting(std::string_view path) override;

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

std::string IndexedPathFinder::Find(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/')) path.remove_suffix(1);
    const std::string given(path);
    if (given.empty() || given.size() >= PATH_MAX || EntryExists(given)) return given;

    const std::size_t slash = given.rfind('/');
    const std::string folder = slash == std::string::npos ? "."
                               : slash == 0               ? "/"
                                                          : Find(path.substr(0, slash));
    const std::string_view name = path.substr(slash + 1);  // the whole path when there is no slash
    if (const std::string exact = Join(folder, name); exact != given && EntryExists(exact)) return exact;
    const std::string found = FindName(folder, name);
    return found.empty() ? given : Join(folder, found);
}

std::string IndexedPathFinder::FindForWriting(std::string_view path) {
    std::string found = Find(path);
    if (EntryExists(found)) return found;
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos || slash == 0) return std::string(path);
    return Join(Find(path.substr(0, slash)), path.substr(slash + 1));
}

std::string IndexedPathFinder::FindName(const std::string& folder, std::string_view name) {
    Index& index = indexes_[folder];
    const std::string key = text::FoldedKey(name, page_);
    const auto found = index.names.find(key);
    if (found != index.names.end() && EntryExists(Join(folder, found->second))) return found->second;
    if (index.isTrusted && index.stamp == StampOf(folder)) return {};
    Scan(folder, index);
    const auto foundNow = index.names.find(key);
    return foundNow == index.names.end() ? std::string() : foundNow->second;
}

IndexedPathFinder::Stamp IndexedPathFinder::StampOf(const std::string& folder) {
    struct stat info {};
    if (::stat(SystemPath(folder), &info) != 0) return {};
    return {info.st_dev, info.st_ino, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

void IndexedPathFinder::Scan(const std::string& folder, Index& index) const {
    index = {};
    index.stamp = StampOf(folder);
    const std::int64_t now = std::time(nullptr);
    try {
        Directory directory{OpenFolder(folder)};
        while (directory.Next()) {
            const std::string_view name = directory.Name();
            const auto [known, isNew] = index.names.try_emplace(text::FoldedKey(name, page_), name);
            if (!isNew && name < known->second) known->second = name;
        }
        index.isTrusted = now - index.stamp.seconds >= kMaxTimeStep;
    } catch (const Failure&) {
        TraceFailure("list a folder", folder);
        // A folder that cannot be listed still has the entries whose exact names are known.
    }
}

}  // namespace

std::unique_ptr<PathFinder> MakePathFinder(const text::CodePage& page) {
    return std::make_unique<IndexedPathFinder>(page);
}

}  // namespace halvenmoor::system
