#include "tests/support/system_files.h"

#include "platform/windows/paths.h"

#include <windows.h>

namespace halvenmoor {

std::filesystem::path ToStandard(const std::string& path) {
    return system::SystemPath(path);
}

std::string FromStandard(const std::filesystem::path& path) {
    return system::FromSystemPath(path.native());
}

std::string Hide(const std::string& path) {
    ::SetFileAttributesW(system::SystemPath(path).c_str(), FILE_ATTRIBUTE_HIDDEN);
    return path;
}

void MakeReadOnly(const std::string& path) {
    ::SetFileAttributesW(system::SystemPath(path).c_str(), FILE_ATTRIBUTE_READONLY);
}

}  // namespace halvenmoor
