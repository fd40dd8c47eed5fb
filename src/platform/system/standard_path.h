#pragma once

#include <filesystem>
#include <string>

namespace halvenmoor::system {

/// A path of the program for the standard library, and back.
std::filesystem::path ToStandard(const std::string& path);
std::string FromStandard(const std::filesystem::path& path);

}  // namespace halvenmoor::system
