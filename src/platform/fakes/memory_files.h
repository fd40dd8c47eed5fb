#pragma once

#include "base/text/codepage.h"
#include "platform/files.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor::fakes {

/// A disk in memory, under the rules of the real one. Paths are absolute, with '/' between folders. It must
/// outlive the objects and streams that it hands out.
class MemoryFiles : public platform::FileSystem, public platform::HostFiles {
public:
    /// Only the root folder.
    explicit MemoryFiles(const text::CodePage& page = text::WindowsCodePage(1252)) : page_(page) {}

    // For the test itself. Paths are taken exactly, and nothing here counts as a call.

    /// Makes a folder and those above it.
    void AddFolder(std::string_view path);
    /// Makes or replaces a file, and makes the folders above it.
    void Put(std::string_view path, std::string_view bytes);
    /// Takes a file or a folder away, with all that is in it.
    void Remove(std::string_view path);
    bool Has(std::string_view path) const;
    /// The bytes of a file. Throws Failure(FileNotFound) when there is none.
    std::string Text(std::string_view path) const;
    /// The bytes of all files by their paths.
    std::map<std::string, std::string> Everything() const;

    /// What the program asked for, in order and with its own paths: "open P", "create P", "append P",
    /// "delete P", "bytes P", "search P", "rename P > Q". Tests for existence are left out.
    const std::vector<std::string>& Calls() const { return calls_; }
    void ForgetCalls() { calls_.clear(); }

    std::unique_ptr<platform::FileSystemObject> CreateFileSystemObject() override;

    void Search(std::string_view folder, std::string_view extension,
                const std::function<void(std::string_view)>& found) override;
    std::optional<std::string> FindFile(std::string_view path) override;
    std::unique_ptr<platform::ByteReader> OpenBytes(std::string_view path) override;
    void Rename(std::string_view oldPath, std::string_view newPath) override;

private:
    class Object;
    class FilesOfFolder;
    using Bytes = std::shared_ptr<std::string>;  // an open stream keeps a deleted file's bytes

    void Record(std::string_view call, std::string_view path);
    std::string Find(std::string_view path) const;
    /// As system::PathFinder has it. Throws Failure(PathNotFound) when there is no folder for a new file.
    std::string FindForWriting(std::string_view path) const;
    bool IsFile(std::string_view path) const;
    bool IsFolder(std::string_view path) const;
    Bytes RequireFile(std::string_view path) const;
    std::string RequireFolder(std::string_view path) const;
    void Delete(const std::string& path);
    std::unique_ptr<platform::TextWriter> Create(const std::string& path);
    std::vector<std::string> NamesIn(std::string_view folder) const;

    const text::CodePage& page_;
    std::map<std::string, Bytes, std::less<>> entries_;  // by path; a folder has no bytes
    std::vector<std::string> calls_;
};

}  // namespace halvenmoor::fakes
