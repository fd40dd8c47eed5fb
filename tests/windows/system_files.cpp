#include "tests/support/system_files.h"

#include "platform/windows/paths.h"

#include <windows.h>

namespace halvenmoor {

std::string Hide(const std::string& path) {
    ::SetFileAttributesW(system::SystemPath(path).c_str(), FILE_ATTRIBUTE_HIDDEN);
    return path;
}

void MakeReadOnly(const std::string& path) {
    ::SetFileAttributesW(system::SystemPath(path).c_str(), FILE_ATTRIBUTE_READONLY);
}

}  // namespace halvenmoor
