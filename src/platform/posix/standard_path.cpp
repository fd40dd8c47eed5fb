#include "platform/system/standard_path.h"

namespace halvenmoor::system {

std::filesystem::path ToStandard(const std::string& path) {
    return path;
}

std::string FromStandard(const std::filesystem::path& path) {
    return path.native();
}

}  // namespace halvenmoor::system
