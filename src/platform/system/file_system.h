#pragma once

#include "platform/files.h"
#include "platform/system/path_finder.h"

#include <memory>

namespace halvenmoor::system {

/// The file-system objects of the real disk. The finder must outlive them.
class DiskFileSystem : public platform::FileSystem {
public:
    explicit DiskFileSystem(PathFinder& finder) : finder_(finder) {}

    std::unique_ptr<platform::FileSystemObject> CreateFileSystemObject() override;

private:
    PathFinder& finder_;
};

}  // namespace halvenmoor::system
