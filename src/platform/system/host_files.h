#pragma once

#include "platform/files.h"
#include "platform/system/path_finder.h"

#include <functional>
#include <memory>
#include <string_view>

namespace halvenmoor::system {

/// Search, reading by bytes and rename on the real disk. The finder must outlive it.
class DiskHostFiles : public platform::HostFiles {
public:
    explicit DiskHostFiles(PathFinder& finder) : finder_(finder) {}

    void Search(std::string_view folder, std::string_view extension,
                const std::function<void(std::string_view)>& found) override;
    std::optional<std::string> FindFile(std::string_view path) override;
    std::unique_ptr<platform::ByteReader> OpenBytes(std::string_view path) override;
    void Rename(std::string_view oldPath, std::string_view newPath) override;

private:
    PathFinder& finder_;
};

}  // namespace halvenmoor::system
