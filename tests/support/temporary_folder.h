#pragma once

#include "platform/system/file_system.h"
#include "platform/system/host_files.h"
#include "platform/system/path_finder.h"
#include "tests/support/system_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace halvenmoor {

inline std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A fresh folder on the disk, deleted with all that is in it at the end.
class TemporaryFolder {
public:
    TemporaryFolder() {
        const std::string prefix = FromStandard(std::filesystem::temp_directory_path() / "halvenmoor-test-");
        std::random_device random;
        do {
            path_ = prefix + std::to_string(random());
        } while (!std::filesystem::create_directory(ToStandard(path_)));
        std::filesystem::permissions(ToStandard(path_), std::filesystem::perms::owner_all);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(ToStandard(path_), ignored);
    }

    /// Without a separator at its end.
    const std::string& Path() const { return path_; }

    /// The full path of something in the folder.
    std::string operator/(const std::string& name) const { return path_ + kSeparator + name; }

    void AddFolder(const std::string& name) const {
        std::filesystem::create_directories(ToStandard(*this / name));
    }

    /// Makes or replaces a file, and makes the folders above it.
    void Put(const std::string& name, const std::string& bytes) const {
        const std::filesystem::path path = ToStandard(*this / name);
        std::filesystem::create_directories(path.parent_path());
        std::ofstream file(path, std::ios::binary);
        if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
            throw std::runtime_error("cannot write " + path.string());
        }
    }

    /// The names of what is directly in it, sorted.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(ToStandard(path_)))
            names.push_back(FromStandard(entry.path().filename()));
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string Text(const std::string& name) const { return BytesOf(ToStandard(*this / name)); }

private:
    static constexpr auto kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

    std::string path_;
};

/// The real disk, with a folder on it.
struct FilesOnDisk {
    TemporaryFolder folder;
    std::unique_ptr<system::PathFinder> finder = system::MakePathFinder(text::WindowsCodePage(1252));
    system::DiskFileSystem fileSystem{*finder};
    system::DiskHostFiles hostFiles{*finder};
};

}  // namespace halvenmoor
