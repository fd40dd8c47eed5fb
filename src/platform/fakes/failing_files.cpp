#include "platform/fakes/failing_files.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace halvenmoor::fakes {
namespace {

class FailingReader : public platform::TextReader {
public:
    FailingReader(CallCounter& counter, std::unique_ptr<platform::TextReader> reader)
        : counter_(counter), reader_(std::move(reader)) {}

    bool AtEndOfStream() override { return counter_.Counted(*reader_).AtEndOfStream(); }
    std::string_view ReadLine() override { return counter_.Counted(*reader_).ReadLine(); }
    void Close() override { counter_.Counted(*reader_).Close(); }

private:
    CallCounter& counter_;
    std::unique_ptr<platform::TextReader> reader_;
};

class FailingWriter : public platform::TextWriter {
public:
    FailingWriter(CallCounter& counter, std::unique_ptr<platform::TextWriter> writer)
        : counter_(counter), writer_(std::move(writer)) {}

    void WriteLine(std::initializer_list<std::string_view> parts) override {
        counter_.Counted(*writer_).WriteLine(parts);
    }
    void Sync() override { counter_.Counted(*writer_).Sync(); }
    void Close() override { counter_.Counted(*writer_).Close(); }

private:
    CallCounter& counter_;
    std::unique_ptr<platform::TextWriter> writer_;
};

class FailingByteReader : public platform::ByteReader {
public:
    FailingByteReader(CallCounter& counter, std::unique_ptr<platform::ByteReader> reader)
        : counter_(counter), reader_(std::move(reader)) {}

    std::size_t Read(std::span<char> buffer) override { return counter_.Counted(*reader_).Read(buffer); }
    std::uint64_t Remaining() const override { return counter_.Counted(*reader_).Remaining(); }

private:
    CallCounter& counter_;
    std::unique_ptr<platform::ByteReader> reader_;
};

class FailingFolder : public platform::Folder {
public:
    FailingFolder(CallCounter& counter, std::unique_ptr<platform::Folder> folder)
        : counter_(counter), folder_(std::move(folder)) {}

    std::vector<std::string> Files() const override { return counter_.Counted(*folder_).Files(); }
    void Delete(std::string_view name) override { counter_.Counted(*folder_).Delete(name); }
    std::unique_ptr<platform::TextWriter> CreateTextFile(std::string_view name) override {
        return std::make_unique<FailingWriter>(counter_, counter_.Counted(*folder_).CreateTextFile(name));
    }
    void Sync() const override { counter_.Counted(*folder_).Sync(); }

private:
    CallCounter& counter_;
    std::unique_ptr<platform::Folder> folder_;
};

class FailingObject : public platform::FileSystemObject {
public:
    FailingObject(CallCounter& counter, std::unique_ptr<platform::FileSystemObject> object)
        : counter_(counter), object_(std::move(object)) {}

    bool FileExists(std::string_view path) override { return Object().FileExists(path); }
    bool FolderExists(std::string_view path) override { return Object().FolderExists(path); }
    bool IsSameFolder(std::string_view a, std::string_view b) override { return Object().IsSameFolder(a, b); }

    std::unique_ptr<platform::Folder> GetFolder(std::string_view path) override {
        return std::make_unique<FailingFolder>(counter_, Object().GetFolder(path));
    }
    std::unique_ptr<platform::TextWriter> CreateTextFile(std::string_view path) override {
        return std::make_unique<FailingWriter>(counter_, Object().CreateTextFile(path));
    }
    std::unique_ptr<platform::TextReader> OpenTextFile(std::string_view path) override {
        return std::make_unique<FailingReader>(counter_, Object().OpenTextFile(path));
    }
    std::unique_ptr<platform::TextWriter> OpenForAppending(std::string_view path) override {
        return std::make_unique<FailingWriter>(counter_, Object().OpenForAppending(path));
    }

private:
    platform::FileSystemObject& Object() { return counter_.Counted(*object_); }

    CallCounter& counter_;
    std::unique_ptr<platform::FileSystemObject> object_;
};

}  // namespace

std::unique_ptr<platform::FileSystemObject> FailingFiles::CreateFileSystemObject() {
    return std::make_unique<FailingObject>(counter_, counter_.Counted(fileSystem_).CreateFileSystemObject());
}

void FailingFiles::Search(std::string_view folder, std::string_view extension,
                          const std::function<void(std::string_view)>& found) {
    counter_.Counted(hostFiles_).Search(folder, extension, [&](std::string_view name) {
        counter_.Count();
        found(name);
    });
}

std::optional<std::string> FailingFiles::FindFile(std::string_view path) {
    return counter_.Counted(hostFiles_).FindFile(path);
}

std::unique_ptr<platform::ByteReader> FailingFiles::OpenBytes(std::string_view path) {
    return std::make_unique<FailingByteReader>(counter_, counter_.Counted(hostFiles_).OpenBytes(path));
}

void FailingFiles::Rename(std::string_view oldPath, std::string_view newPath) {
    counter_.Counted(hostFiles_).Rename(oldPath, newPath);
}

}  // namespace halvenmoor::fakes
