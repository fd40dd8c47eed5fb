#include "platform/system/program_folder.h"

#include "platform/system/user_folder.h"
#include "platform/windows/paths.h"
#include "platform/windows/system_calls.h"

#include <utility>

namespace halvenmoor::system {

std::string ExecutableFolder() {
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

std::string ProgramFolder(const std::string& executableFolder) {
    // To add a file is what the system lets a user do or not, whatever the attributes of the folder say.
    const File folder = MakeFile(::CreateFileW(SystemPath(executableFolder).c_str(), FILE_ADD_FILE, kShareAll,
                                               nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (folder.IsOpen()) return executableFolder;
    const DWORD error = ::GetLastError();
    if (error != ERROR_ACCESS_DENIED && error != ERROR_WRITE_PROTECT) return executableFolder;
    std::string own = UserFolder();
    CompleteUserFolder(own, executableFolder);
    return own;
}

}  // namespace halvenmoor::system
