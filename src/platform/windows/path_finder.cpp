#include "platform/system/path_finder.h"

#include "platform/windows/paths.h"

#include <windows.h>

namespace halvenmoor::system {
namespace {

/// The system itself finds names without regard to letter case; this one only tells how they are written.
class TrueNameFinder : public PathFinder {
public:
    std::string Find(std::string_view path) override {
        const std::string_view given = path;
        while (path.ends_with('/') || path.ends_with('\\')) path.remove_suffix(1);
        const std::string_view name = path.substr(path.find_last_of("/\\") + 1);
        if (name.empty() || name == "." || name == ".." || name.ends_with(':')) return std::string(given);
        WIN32_FIND_DATAW entry{};
        const HANDLE search = ::FindFirstFileExW(SystemPath(path).c_str(), FindExInfoBasic, &entry,
                                                 FindExSearchNameMatch, nullptr, 0);
        if (search == INVALID_HANDLE_VALUE) return std::string(path);
        ::FindClose(search);
        const std::size_t beforeName = path.find_last_of("/\\") + 1;
        return std::string(path.substr(0, beforeName)).append(FromWide(entry.cFileName));
    }
    std::string FindForWriting(std::string_view path) override { return std::string(path); }
};

}  // namespace

std::unique_ptr<PathFinder> MakePathFinder(const text::CodePage&) {
    return std::make_unique<TrueNameFinder>();
}

}  // namespace halvenmoor::system
