#pragma once

#include "platform/files.h"

#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// The camera files of a folder as entries: their names without ".asc", each once, sorted by their bytes. A
/// failure ends the search silently; what was found before it counts. The folder ends with a separator.
std::vector<std::string> FindCameraFiles(platform::HostFiles& files, std::string_view folder);

}  // namespace halvenmoor
