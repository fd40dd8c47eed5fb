#include "platform/system/program_folder.h"

#include "platform/windows/paths.h"

#include <windows.h>

namespace halvenmoor::system {

std::string ProgramFolder() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD size = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (size == path.size()) {  // it is longer
        path.resize(2 * path.size());
        size = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(size);
    const std::string program = FromSystemPath(path);
    return program.substr(0, program.rfind('\\'));
}

}  // namespace halvenmoor::system
