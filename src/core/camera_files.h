#pragma once

#include "platform/files.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace halvenmoor {

/// The camera files that a folder holds, by the entries of the lists: their names without ".asc". The letter
/// case of an entry counts; only the extension may be written in any.
class CameraFiles {
public:
    /// Looks through the folder, a path with a separator at its end. Throws Failure.
    CameraFiles(platform::HostFiles& files, std::string path);

    /// The path of the entry's file; nothing when it has gone.
    std::optional<std::string> FileOf(const std::string& entry) const;

private:
    std::string path_;
    std::unordered_map<std::string, std::string> extensions_;  // by entry
};

/// The camera files of a folder as entries, each once, sorted by their bytes. A failure ends the search
/// silently; what was found before it counts. The folder ends with a separator.
std::vector<std::string> FindCameraFiles(platform::HostFiles& files, std::string_view folder);

}  // namespace halvenmoor
