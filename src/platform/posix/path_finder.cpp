#include "platform/system/path_finder.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "platform/system/directory.h"
#include "platform/system/file.h"

#include <climits>
#include <ctime>
#include <sys/stat.h>

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

}  // namespace

std::string PathFinder::Find(std::string_view path) {
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

std::string PathFinder::FindForWriting(std::string_view path) {
    std::string found = Find(path);
    if (EntryExists(found)) return found;
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos || slash == 0) return std::string(path);
    return Join(Find(path.substr(0, slash)), path.substr(slash + 1));
}

std::string PathFinder::FindName(const std::string& folder, std::string_view name) {
    Index& index = indexes_[folder];
    const std::string key = text::FoldedKey(name, page_);
    const auto found = index.names.find(key);
    if (found != index.names.end() && EntryExists(Join(folder, found->second))) return found->second;
    if (index.isTrusted && index.stamp == StampOf(folder)) return {};
    Scan(folder, index);
    const auto foundNow = index.names.find(key);
    return foundNow == index.names.end() ? std::string() : foundNow->second;
}

PathFinder::Stamp PathFinder::StampOf(const std::string& folder) {
    struct stat info {};
    if (::stat(SystemPath(folder), &info) != 0) return {};
    return {info.st_dev, info.st_ino, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

void PathFinder::Scan(const std::string& folder, Index& index) const {
    index = {};
    index.stamp = StampOf(folder);
    const std::int64_t now = std::time(nullptr);
    try {
        Directory directory(OpenFolder(folder));
        while (const dirent* entry = directory.Next()) {
            const auto [known, isNew] =
                index.names.try_emplace(text::FoldedKey(entry->d_name, page_), entry->d_name);
            if (!isNew && entry->d_name < known->second) known->second = entry->d_name;
        }
        index.isTrusted = now - index.stamp.seconds >= kMaxTimeStep;
    } catch (const Failure&) {
        TraceFailure("list a folder", folder);
        // A folder that cannot be listed still has the entries whose exact names are known.
    }
}

}  // namespace halvenmoor::system
