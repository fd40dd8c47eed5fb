#pragma once

#include <filesystem>
#include <string>

namespace halvenmoor::system {

/// A path of the program for the standard library, and back.
std::filesystem::path ToStandard(const std::string& path);
std::string FromStandard(const std::filesystem::path& path);

/// The path without links, or as it is where the standard library does not manage that, as on Windows. Throws
/// Failure if there is no such file or folder.
std::string WithoutLinks(const std::string& path);

}  // namespace halvenmoor::system
