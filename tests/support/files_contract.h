#pragma once

#include "platform/fakes/memory_files.h"
#include "tests/support/temporary_folder.h"
#include "tools/file_helpers.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace halvenmoor {

struct RealFiles : FilesOnDisk {
    std::string Root() const { return folder.Path(); }
    void AddFolder(const std::string& name) { folder.AddFolder(name); }
    void Put(const std::string& name, const std::string& bytes) { folder.Put(name, bytes); }
    std::string Text(const std::string& name) const { return folder.Text(name); }
    std::string Hide(const std::string& name) const { return halvenmoor::Hide(folder / name); }
    void MakeReadOnly(const std::string& name) const { halvenmoor::MakeReadOnly(folder / name); }
};

struct FilesInMemory {
    fakes::MemoryFiles files;
    platform::FileSystem& fileSystem = files;
    platform::HostFiles& hostFiles = files;

    std::string Root() const { return "/program"; }
    std::string At(const std::string& name) const { return Root() + '/' + name; }
    void AddFolder(const std::string& name) { files.AddFolder(At(name)); }
    void Put(const std::string& name, const std::string& bytes) { files.Put(At(name), bytes); }
    std::string Text(const std::string& name) const { return files.Text(At(name)); }
    std::string Hide(const std::string& name) {
        const std::size_t slash = name.rfind('/');
        const std::string hidden = At(name.substr(0, slash + 1) + '.' + name.substr(slash + 1));
        files.Rename(At(name), hidden);
        return hidden;
    }
    void MakeReadOnly(const std::string&) {}
};

template <class Files>
class FilesContract : public testing::Test {
protected:
    std::string At(const std::string& name) const { return disk.Root() + '/' + name; }
    Strings LinesOf(const std::string& name) { return ReadLines(disk.fileSystem, At(name)); }

    Files disk;
    std::unique_ptr<platform::FileSystemObject> object = disk.fileSystem.CreateFileSystemObject();
    platform::HostFiles& host = disk.hostFiles;
};

/// The disk and its fake.
using Implementations = testing::Types<RealFiles, FilesInMemory>;
}  // namespace halvenmoor
