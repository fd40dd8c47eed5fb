#include "platform/system/path_finder.h"

namespace halvenmoor::system {
namespace {

/// The system itself finds names without regard to letter case.
class PlainPathFinder : public PathFinder {
public:
    std::string Find(std::string_view path) override { return std::string(path); }
    std::string FindForWriting(std::string_view path) override { return std::string(path); }
};

}  // namespace

std::unique_ptr<PathFinder> MakePathFinder(const text::CodePage&) {
    return std::make_unique<PlainPathFinder>();
}

}  // namespace halvenmoor::system
