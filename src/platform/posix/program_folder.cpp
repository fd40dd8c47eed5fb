#include "platform/posix/program_folder.h"

#include <filesystem>
#include <system_error>

namespace halvenmoor::posix {

std::string ProgramFolder() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

}  // namespace halvenmoor::posix
