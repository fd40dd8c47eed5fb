#pragma once

#include <filesystem>
#include <string>

// What tests do with files by means of the system they run on.

namespace halvenmoor {

/// A path of the program for the standard library, and back.
std::filesystem::path ToStandard(const std::string& path);
std::string FromStandard(const std::filesystem::path& path);

/// Gives a file what makes searches leave it out. Returns its path then.
std::string Hide(const std::string& path);

void MakeReadOnly(const std::string& path);

}  // namespace halvenmoor
