#include "platform/system/file_system.h"

#include "platform/system/directory.h"
#include "platform/system/file.h"
#include "platform/system/streams.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace halvenmoor::system {
namespace {

/// A folder by its descriptor, so that it stays the same one whatever happens to its path.
class DiskFolder : public platform::Folder {
public:
    explicit DiskFolder(FileDescriptor folder) : folder_(std::move(folder)) {}

    std::vector<std::string> Files() const override {
        Directory directory(OpenFolder(folder_));
        std::vector<std::string> names;
        while (const dirent* entry = directory.Next()) {
            if (directory.KindOf(*entry) != Kind::Folder) names.emplace_back(entry->d_name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    void Delete(std::string_view name) override {
        if (::unlinkat(folder_.Get(), SystemPath(OwnName(name)), 0) != 0) throw SystemFailure(errno);
    }

    std::unique_ptr<platform::TextWriter> CreateTextFile(std::string_view name) override {
        return std::make_unique<DiskTextWriter>(OpenForWriting(folder_, OwnName(name)));
    }

    void Sync() const override { folder_.SyncFileSystem(); }

private:
    /// The name, which must not lead out of the folder.
    static std::string OwnName(std::string_view name) {
        if (name.find('/') != std::string_view::npos) throw SystemFailure(ENOENT);
        return std::string(name);
    }

    FileDescriptor folder_;
};

class DiskFileSystemObject : public platform::FileSystemObject {
public:
    explicit DiskFileSystemObject(PathFinder& finder) : finder_(finder) {}

    bool FileExists(std::string_view path) override { return KindOf(finder_.Find(path)) == Kind::File; }

    bool FolderExists(std::string_view path) override { return KindOf(finder_.Find(path)) == Kind::Folder; }

    bool IsSameFolder(std::string_view a, std::string_view b) override {
        return system::IsSameFolder(finder_.Find(a), finder_.Find(b));
    }

    std::unique_ptr<platform::Folder> GetFolder(std::string_view path) override {
        return std::make_unique<DiskFolder>(OpenFolder(finder_.Find(path)));
    }

    std::unique_ptr<platform::TextWriter> CreateTextFile(std::string_view path) override {
        return Writer(finder_.FindForWriting(path), WriteMode::Replace);
    }

    std::unique_ptr<platform::TextReader> OpenTextFile(std::string_view path) override {
        FileDescriptor file = OpenForReading(finder_.Find(path));
        const std::uint64_t size = file.Size();
        return std::make_unique<DiskTextReader>(std::move(file), size);
    }

    std::unique_ptr<platform::TextWriter> OpenForAppending(std::string_view path) override {
        return Writer(finder_.Find(path), WriteMode::Append);
    }

private:
    static std::unique_ptr<platform::TextWriter> Writer(std::string path, WriteMode mode) {
        FileDescriptor file = OpenForWriting(path, mode);
        return std::make_unique<DiskTextWriter>(std::move(file), std::move(path));
    }

    PathFinder& finder_;
};

}  // namespace

std::unique_ptr<platform::FileSystemObject> DiskFileSystem::CreateFileSystemObject() {
    return std::make_unique<DiskFileSystemObject>(finder_);
}

}  // namespace halvenmoor::system
