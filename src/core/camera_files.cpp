#include "core/camera_files.h"

#include "base/failure.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace halvenmoor {

namespace {

constexpr std::string_view kExtension = ".asc";

}  // namespace

CameraFiles::CameraFiles(platform::HostFiles& files, std::string path) : path_(std::move(path)) {
    files.Search(path_, kExtension, [this](std::string_view name) {
        const std::size_t length = name.size() - kExtension.size();
        std::string& extension = extensions_[std::string(name.substr(0, length))];
        // Small letters sort last, so that of "x.asc" and "x.ASC" the first one is the entry's.
        extension = std::max<std::string_view>(extension, name.substr(length));
    });
}

std::optional<std::string> CameraFiles::FileOf(const std::string& entry) const {
    const auto found = extensions_.find(entry);
    if (found == extensions_.end()) return std::nullopt;
    return path_ + entry + found->second;
}

std::vector<std::string> FindCameraFiles(platform::HostFiles& files, std::string_view folder) {
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
