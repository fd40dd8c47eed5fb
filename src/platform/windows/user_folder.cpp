#include "platform/system/user_folder.h"

#include "platform/windows/known_folder.h"
#include "platform/windows/paths.h"

#include <shlobj.h>

namespace halvenmoor::system {

std::string UserFolder() {
    const wchar_t* const wanted = ::_wgetenv(L"HALVENMOOR_FOLDER");
    if (wanted == nullptr || *wanted == L'\0') return KnownFolder(FOLDERID_Documents) + R"(\Halvenmoor)";
    const std::string folder = FromWide(wanted);
    const std::string absolute = FromSystemPath(SystemPath(folder));
    return absolute.empty() ? folder : absolute;
}

}  // namespace halvenmoor::system
