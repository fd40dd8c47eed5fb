#include "platform/fakes/memory_files.h"

#include "base/failure.h"
#include "base/text/compare.h"

#include <algorithm>
#include <span>
#include <utility>

namespace halvenmoor::fakes {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view WithoutTrailingSeparators(std::string_view path) {
    while (path.ends_with('/')) path.remove_suffix(1);
    return path;
}

/// Empty for the root.
std::string_view FolderOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

std::string_view NameOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

std::string Join(std::string_view folder, std::string_view name) {
    return std::string(folder).append("/").append(name);
}

[[noreturn]] void ThrowFileNotFound() {
    throw Failure(failure::FileNotFound, "File not found");
}
[[noreturn]] void ThrowPathNotFound() {
    throw Failure(failure::PathNotFound, "Path not found");
}
[[noreturn]] void ThrowPermissionDenied() {
    throw Failure(failure::PermissionDenied, "Permission denied");
}

class MemoryReader : public platform::TextReader {
public:
    explicit MemoryReader(std::shared_ptr<const std::string> bytes) : bytes_(std::move(bytes)) {
        if (bytes_->starts_with(kByteOrderMark)) position_ = kByteOrderMark.size();
    }

    bool AtEndOfStream() override { return position_ >= Bytes().size(); }

    std::string_view ReadLine() override {
        if (AtEndOfStream()) throw Failure(failure::InputPastEnd, "Input past end of file");
        const std::size_t end = std::min(Bytes().find('\n', position_), Bytes().size());
        line_ = Bytes().substr(position_, end - position_);
        position_ = end + 1;
        if (end < Bytes().size() && line_.ends_with('\r')) line_.pop_back();
        return line_;
    }

    void Close() override { bytes_ = nullptr; }

private:
    const std::string& Bytes() const {
        if (!bytes_) throw Failure(failure::FileAccess, "Device I/O error");
        return *bytes_;
    }

    std::shared_ptr<const std::string> bytes_;
    std::size_t position_ = 0;
    std::string line_;
};

class MemoryWriter : public platform::TextWriter {
public:
    explicit MemoryWriter(std::shared_ptr<std::string> bytes) : bytes_(std::move(bytes)) {}

    void WriteLine(std::initializer_list<std::string_view> parts) override {
        if (!bytes_) throw Failure(failure::FileAccess, "Device I/O error");
        for (const std::string_view part : parts) bytes_->append(part);
        bytes_->append("\r\n");
    }

    void Sync() override {}

    void Close() override { bytes_ = nullptr; }

private:
    std::shared_ptr<std::string> bytes_;
};

class MemoryByteReader : public platform::ByteReader {
public:
    explicit MemoryByteReader(std::string bytes) : bytes_(std::move(bytes)) {}

    std::size_t Read(std::span<char> buffer) override {
        const std::size_t count = bytes_.copy(buffer.data(), buffer.size(), position_);
        position_ += count;
        return count;
    }

    std::uint64_t Remaining() const override { return bytes_.size() - position_; }

private:
    std::string bytes_;
    std::size_t position_ = 0;
};

}  // namespace

class MemoryFiles::FilesOfFolder : public platform::Folder {
public:
    FilesOfFolder(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) {}

    std::vector<std::string> Files() const override {
        std::vector<std::string> names = files_.NamesIn(path_);
        std::erase_if(names, [this](const std::string& name) { return !files_.IsFile(Join(path_, name)); });
        return names;
    }

    void Delete(std::string_view name) override {
        files_.Record("delete", Join(path_, name));
        files_.Delete(PathOf(name));
    }

    std::unique_ptr<platform::TextWriter> CreateTextFile(std::string_view name) override {
        files_.Record("create", Join(path_, name));
        return files_.Create(PathOf(name));
    }

    void Sync() const override {}

private:
    std::string PathOf(std::string_view name) const {
        if (name.find('/') != std::string_view::npos) ThrowFileNotFound();
        return Join(path_, name);
    }

    MemoryFiles& files_;
    std::string path_;
};

class MemoryFiles::Object : public platform::FileSystemObject {
public:
    explicit Object(MemoryFiles& files) : files_(files) {}

    bool FileExists(std::string_view path) override { return files_.IsFile(files_.Find(path)); }

    bool FolderExists(std::string_view path) override { return files_.IsFolder(files_.Find(path)); }

    bool IsSameFolder(std::string_view a, std::string_view b) override {
        return FolderExists(a) && files_.Find(a) == files_.Find(b);
    }

    std::unique_ptr<platform::Folder> GetFolder(std::string_view path) override {
        return std::make_unique<FilesOfFolder>(files_, files_.RequireFolder(path));
    }

    std::unique_ptr<platform::TextWriter> CreateTextFile(std::string_view path) override {
        files_.Record("create", path);
        return files_.Create(files_.FindForWriting(path));
    }

    std::unique_ptr<platform::TextReader> OpenTextFile(std::string_view path) override {
        files_.Record("open", path);
        return std::make_unique<MemoryReader>(files_.RequireFile(path));
    }

    std::unique_ptr<platform::TextWriter> OpenForAppending(std::string_view path) override {
        files_.Record("append", path);
        return std::make_unique<MemoryWriter>(files_.RequireFile(path));
    }

private:
    MemoryFiles& files_;
};

void MemoryFiles::AddFolder(std::string_view path) {
    path = WithoutTrailingSeparators(path);
    if (path.empty()) return;
    AddFolder(FolderOf(path));
    entries_.try_emplace(std::string(path), nullptr);
}

void MemoryFiles::Put(std::string_view path, std::string_view bytes) {
    AddFolder(FolderOf(path));
    entries_.insert_or_assign(std::string(path), std::make_shared<std::string>(bytes));
}

void MemoryFiles::Remove(std::string_view path) {
    const std::string below = Join(path, "");
    std::erase_if(entries_,
                  [&](const auto& entry) { return entry.first == path || entry.first.starts_with(below); });
}

bool MemoryFiles::Has(std::string_view path) const {
    return IsFile(path) || IsFolder(path);
}

std::string MemoryFiles::Text(std::string_view path) const {
    if (!IsFile(path)) ThrowFileNotFound();
    return *entries_.find(path)->second;
}

std::map<std::string, std::string> MemoryFiles::Everything() const {
    std::map<std::string, std::string> files;
    for (const auto& [path, bytes] : entries_) {
        if (bytes) files.emplace(path, *bytes);
    }
    return files;
}

std::unique_ptr<platform::FileSystemObject> MemoryFiles::CreateFileSystemObject() {
    return std::make_unique<Object>(*this);
}

void MemoryFiles::Search(std::string_view folder, std::string_view extension,
                         const std::function<void(std::string_view)>& found) {
    Record("search", folder);
    const std::string real = RequireFolder(folder);
    for (const std::string& name : NamesIn(real)) {
        if (name.starts_with('.') || !text::EndsWithIgnoringAsciiCase(name, extension) ||
            !IsFile(Join(real, name)))
            continue;
        found(name);
    }
}

std::optional<std::string> MemoryFiles::FindFile(std::string_view path) {
    std::string found = Find(path);
    if (!IsFile(found)) return std::nullopt;
    return found;
}

std::unique_ptr<platform::ByteReader> MemoryFiles::OpenBytes(std::string_view path) {
    Record("bytes", path);
    return std::make_unique<MemoryByteReader>(*RequireFile(path));
}

void MemoryFiles::Rename(std::string_view oldPath, std::string_view newPath) {
    Record("rename", std::string(oldPath).append(" > ").append(newPath));
    const std::string real = Find(oldPath);
    const Bytes bytes = RequireFile(oldPath);
    const std::string target = FindForWriting(newPath);
    if (Has(target)) throw Failure(failure::FileExists, "File already exists");
    entries_.erase(real);
    entries_.emplace(target, bytes);
}

void MemoryFiles::Record(std::string_view call, std::string_view path) {
    calls_.push_back(std::string(call).append(" ").append(path));
}

/// The path as it stands here, part by part, the exact name first; as it was given if there is no such entry.
std::string MemoryFiles::Find(std::string_view path) const {
    path = WithoutTrailingSeparators(path);
    if (path.empty() || Has(path)) return std::string(path);
    const std::string folder = Find(FolderOf(path));
    if (const std::string exact = Join(folder, NameOf(path)); Has(exact)) return exact;
    for (const std::string& name : NamesIn(folder)) {
        if (text::EqualIgnoringCase(name, NameOf(path), page_)) return Join(folder, name);
    }
    return std::string(path);
}

std::string MemoryFiles::FindForWriting(std::string_view path) const {
    std::string found = Find(path);
    if (Has(found)) return found;
    const std::string folder = Find(FolderOf(path));
    if (!IsFolder(folder)) ThrowPathNotFound();
    return Join(folder, NameOf(path));
}

bool MemoryFiles::IsFile(std::string_view path) const {
    const auto entry = entries_.find(path);
    return entry != entries_.end() && entry->second;
}

bool MemoryFiles::IsFolder(std::string_view path) const {
    if (path.empty()) return true;
    const auto entry = entries_.find(path);
    return entry != entries_.end() && !entry->second;
}

MemoryFiles::Bytes MemoryFiles::RequireFile(std::string_view path) const {
    const std::string real = Find(path);
    if (IsFolder(real)) ThrowPermissionDenied();
    if (!IsFile(real)) ThrowFileNotFound();
    return entries_.find(real)->second;
}

std::string MemoryFiles::RequireFolder(std::string_view path) const {
    std::string real = Find(path);
    if (!IsFolder(real)) ThrowPathNotFound();
    return real;
}

void MemoryFiles::Delete(const std::string& path) {
    if (IsFolder(path)) ThrowPermissionDenied();
    if (!IsFile(path)) ThrowFileNotFound();
    entries_.erase(path);
}

std::unique_ptr<platform::TextWriter> MemoryFiles::Create(const std::string& path) {
    if (IsFolder(path)) ThrowPermissionDenied();
    if (!IsFolder(FolderOf(path))) ThrowPathNotFound();
    Bytes& bytes = entries_[path];
    if (!bytes) bytes = std::make_shared<std::string>();
    bytes->clear();
    return std::make_unique<MemoryWriter>(bytes);
}

/// Files and folders, in the order of their bytes.
std::vector<std::string> MemoryFiles::NamesIn(std::string_view folder) const {
    std::vector<std::string> names;
    const std::string start = Join(folder, "");
    for (auto entry = entries_.lower_bound(start); entry != entries_.end() && entry->first.starts_with(start);
         ++entry) {
        const std::string_view rest = std::string_view(entry->first).substr(start.size());
        if (rest.find('/') == std::string_view::npos) names.emplace_back(rest);
    }
    return names;
}

}  // namespace halvenmoor::fakes
