#include "catalogue/camera_list.h"

#include "base/failure.h"

#include <algorithm>
#include <exception>

namespace halvenmoor {

std::vector<std::string> FindCameraFiles(platform::HostFiles& files, std::string_view folder) {
    constexpr std::string_view kExtension = ".asc";
    std::vector<std::string> entries;
    try {
        files.Search(folder, kExtension, [&](std::string_view name) {
            entries.emplace_back(name.substr(0, name.size() - kExtension.size()));
        });
    } catch (const std::exception&) {
        TraceFailure("list the camera files", folder);
        // What was found so far is shown.
    }
    // Names that differ only in the case of the extension are one entry.
    std::sort(entries.begin(), entries.end());
    entries.erase(std::unique(entries.begin(), entries.end()), entries.end());
    return entries;
}

}  // namespace halvenmoor
