#include "platform/system/standard_path.h"

#include "platform/system/file.h"

#include <system_error>

namespace halvenmoor::system {

std::string WithoutLinks(const std::string& path) {
    if (!EntryExists(path)) throw Failure(failure::FileNotFound, "File not found");
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(ToStandard(path), error);
    return error ? path : FromStandard(real);
}

}  // namespace halvenmoor::system
