#include "platform/system/user_folder.h"

#include "platform/windows/known_folder.h"
#include "platform/windows/paths.h"

#include <shlobj.h>

namespace halvenmoor::system {

std::string UserFolder() {
    const wchar_t* const wanted = ::_wgetenv(L"HALVENMOOR_FOLDER");
    return wanted != nullptr && *wanted != L'\0' ? FromWide(wanted)
                                                 : KnownFolder(FOLDERID_Documents) + R"(\Halvenmoor)";
}

}  // namespace halvenmoor::system
