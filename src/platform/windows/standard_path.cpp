#include "platform/system/standard_path.h"

#include "platform/windows/paths.h"

namespace halvenmoor::system {

std::filesystem::path ToStandard(const std::string& path) {
    return SystemPath(path);
}

std::string FromStandard(const std::filesystem::path& path) {
    return FromSystemPath(path.native());
}

}  // namespace halvenmoor::system
