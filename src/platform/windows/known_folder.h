#pragma once

#include <string>
#include <windows.h>

namespace halvenmoor::system {

/// The program's own folder in one of the known folders of the user; it need not exist.
std::string FolderIn(const GUID& knownFolder);

}  // namespace halvenmoor::system
