#pragma once

#include <string>

namespace halvenmoor::system {

/// The folder for documents that the text of a user-dirs.dirs names, empty if it names none.
std::string DocumentsFolder(const std::string& userDirs, const std::string& home);

}  // namespace halvenmoor::system
