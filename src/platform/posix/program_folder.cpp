#include "platform/system/program_folder.h"

#include "platform/posix/system_calls.h"
#include "platform/system/file.h"
#include "platform/system/user_folder.h"

#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace halvenmoor::system {

std::string ExecutableFolder() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

std::string ProgramFolder(const std::string& executableFolder) {
    const std::string packageData = executableFolder + "/data";
    const bool isInPackage = KindOf(packageData) == Kind::Folder;
    const bool isWritable = ::access(SystemPath(executableFolder), W_OK) == 0;
    if (executableFolder.empty() || (isWritable && !isInPackage)) return executableFolder;
    const std::string folder = UserFolder();
    CompleteUserFolder(folder, isInPackage ? packageData : executableFolder);
    return folder;
}

}  // namespace halvenmoor::system
