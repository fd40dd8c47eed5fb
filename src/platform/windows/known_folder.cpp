#include "platform/windows/known_folder.h"

#include "platform/windows/paths.h"

#include <memory>
#include <shlobj.h>

namespace halvenmoor::system {

std::string KnownFolder(const GUID& knownFolder) {
    wchar_t* found = nullptr;
    const bool isKnown = SUCCEEDED(::SHGetKnownFolderPath(knownFolder, KF_FLAG_DONT_VERIFY, nullptr, &found));
    const std::unique_ptr<wchar_t, decltype([](wchar_t* text) { ::CoTaskMemFree(text); })> path(found);
    return isKnown ? FromSystemPath(path.get()) : std::string();
}

}  // namespace halvenmoor::system
