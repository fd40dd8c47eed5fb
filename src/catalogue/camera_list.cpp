#include "catalogue/camera_list.h"

#include "catalogue/frmMain.h"

#include <algorithm>
#include <exception>

namespace halvenmoor {

namespace {

constexpr std::string_view kExtension = ".asc";

std::vector<std::string> FindEntries(platform::HostFiles& files, const std::string& folder) {
    std::vector<std::string> entries;
    try {
        files.Search(folder, kExtension, [&entries](std::string_view name) {
            entries.emplace_back(name.substr(0, name.size() - kExtension.size()));
        });
    } catch (const std::exception&) {
        // What was found so far is shown.
    }
    return entries;
}

}  // namespace

void LoadCameraFiles(frmMain& window) {
    window.ClearListBoxes();
    std::vector<std::string> entries =
        FindEntries(window.Core().Services().hostFiles, window.Core().CameraFolder());
    // Names that differ only in the case of the extension are one entry.
    std::sort(entries.begin(), entries.end());
    entries.erase(std::unique(entries.begin(), entries.end()), entries.end());
    try {
        window.MainList.AddItems(std::move(entries));
    } catch (const std::exception&) {
        // A folder with more files than a list can hold shows the first ones.
    }
}

}  // namespace halvenmoor
