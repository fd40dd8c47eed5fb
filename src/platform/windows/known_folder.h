#pragma once

#include <string>
#include <windows.h>

namespace halvenmoor::system {

/// The path of one of the folders that Windows has for the user, empty if it does not tell.
std::string KnownFolder(const GUID& knownFolder);

}  // namespace halvenmoor::system
