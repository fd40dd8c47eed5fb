#include "platform/system/file_system.h"

#include "platform/system/directory.h"
#include "platform/system/file.h"
#include "platform/system/streams.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace halvenmoor::system {
namespace {

class DiskFolder : public platform::Folder {
public:
    explicit DiskFolder(std::string path) : folder_(std::move(path)) {}

    std::vector<std::string> Files() const override {
        Directory directory(folder_);
        std::vector<std::string> names;
        while (directory.Next()) {
            if (directory.KindOfEntry() != Kind::Folder) names.emplace_back(directory.Name());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    void Delete(std::string_view name) override { folder_.Delete(name); }

    std::unique_ptr<platform::TextWriter> CreateTextFile(std::string_view name) override {
        return std::make_unique<DiskTextWriter>(folder_.Create(name));
    }

    void Sync() const override { folder_.SyncFiles(); }

private:
    OpenFolder folder_;
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
        return std::make_unique<DiskFolder>(finder_.Find(path));
    }

    std::unique_ptr<platform::TextWriter> CreateTextFile(std::string_view path) override {
        return Writer(finder_.FindForWriting(path), WriteMode::Replace);
    }

    std::unique_ptr<platform::TextReader> OpenTextFile(std::string_view path) override {
        File file = OpenForReading(finder_.Find(path));
        const std::uint64_t size = file.Size();
        return std::make_unique<DiskTextReader>(std::move(file), size);
    }

    std::unique_ptr<platform::TextWriter> OpenForAppending(std::string_view path) override {
        return Writer(finder_.Find(path), WriteMode::Append);
    }

private:
    static std::unique_ptr<platform::TextWriter> Writer(std::string path, WriteMode mode) {
        File file = OpenForWriting(path, mode);
        return std::make_unique<DiskTextWriter>(std::move(file), std::move(path));
    }

    PathFinder& finder_;
};

}  // namespace

std::unique_ptr<platform::FileSystemObject> DiskFileSystem::CreateFileSystemObject() {
    return std::make_unique<DiskFileSystemObject>(finder_);
}

}  // namespace halvenmoor::system
