#include "platform/system/directory.h"

#include "platform/windows/paths.h"
#include "platform/windows/system_calls.h"

#include <utility>

namespace halvenmoor::system {
namespace {

/// What finds the entries of a folder.
using Search = std::unique_ptr<void, decltype([](HANDLE search) { ::FindClose(search); })>;

/// Without the right to delete it, for others too: the folder keeps its path while it is open.
File Open(const std::string& path) {
    File folder = MakeFile(::CreateFileW(SystemPath(path).c_str(), FILE_LIST_DIRECTORY,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                         FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!folder.IsOpen()) {
        const DWORD error = ::GetLastError();
        throw SystemFailure(static_cast<int>(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error));
    }
    BY_HANDLE_FILE_INFORMATION info{};
    if (::GetFileInformationByHandle(HandleOf(folder), &info) == 0) throw LastFailure();
    if ((info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) throw SystemFailure(ERROR_DIRECTORY);
    return folder;
}

/// The path of an entry; the name must not lead out of the folder.
std::string PathIn(const OpenFolder& folder, std::string_view name) {
    const bool isName =
        !name.empty() && name != "." && name != ".." && name.find_first_of("/\\:") == std::string_view::npos;
    if (!isName) throw SystemFailure(ERROR_FILE_NOT_FOUND);
    return (folder.Path() + '\\').append(name);
}

/// A link to a folder is deleted like a folder, what it leads to stays.
bool DeleteEntry(const std::wstring& path, DWORD attributes) {
    const bool isFolderLink =
        (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return (isFolderLink ? ::RemoveDirectoryW(path.c_str()) : ::DeleteFileW(path.c_str())) != 0;
}

}  // namespace

OpenFolder::OpenFolder(std::string path) : path_(std::move(path)), handle_(Open(path_)) {
}

File OpenFolder::Create(std::string_view name) const {
    return OpenForWriting(PathIn(*this, name), WriteMode::Replace);
}

void OpenFolder::Delete(std::string_view name) const {
    const std::wstring path = SystemPath(PathIn(*this, name));
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) throw LastFailure();
    const bool isReadOnly = (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    if (isReadOnly) ::SetFileAttributesW(path.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    if (DeleteEntry(path, attributes)) return;
    const Failure failure = LastFailure();
    if (isReadOnly) ::SetFileAttributesW(path.c_str(), attributes);
    throw failure;
}

// Folders take no locks, so a file that is shared for nothing stands for it. It stays: one that is about to
// be deleted could not be opened.
File OpenFolder::WaitForLock() const {
    const std::wstring path = SystemPath(PathIn(*this, ".halvenmoor-lock"));
    while (true) {
        File lock = MakeFile(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                           FILE_ATTRIBUTE_HIDDEN, nullptr));
        if (lock.IsOpen()) return lock;
        if (::GetLastError() != ERROR_SHARING_VIOLATION) throw LastFailure();
        constexpr DWORD kMilliseconds = 20;
        ::Sleep(kMilliseconds);
    }
}

void OpenFolder::SyncFiles() const {
    Directory directory(*this);
    while (directory.Next()) {
        if (directory.KindOfEntry() != Kind::File) continue;
        const std::wstring path = SystemPath(PathIn(*this, directory.Name()));
        const File file = MakeFile(::CreateFileW(path.c_str(), GENERIC_WRITE, kShareAll, nullptr,
                                                 OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file.IsOpen()) file.Sync();  // others are closed to writing, so they have not been written here
    }
}

struct Directory::Walk {
    std::string folder;
    WIN32_FIND_DATAW entry{};
    Search search;
    bool isStarted = false;
    std::string name;
};

Directory::Directory(const OpenFolder& folder) : walk_(std::make_unique<Walk>()) {
    walk_->folder = folder.Path() + '\\';
    const std::wstring all = SystemPath(folder.Path()) + LR"(\*)";
    const HANDLE search = ::FindFirstFileExW(all.c_str(), FindExInfoBasic, &walk_->entry,
                                             FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search != INVALID_HANDLE_VALUE) {
        walk_->search.reset(search);
    } else if (::GetLastError() != ERROR_FILE_NOT_FOUND) {  // an empty drive has not even a "."
        throw LastFailure();
    }
}

Directory::~Directory() = default;

bool Directory::Next() {
    if (!walk_->search) return false;
    do {
        if (std::exchange(walk_->isStarted, true) &&
            ::FindNextFileW(walk_->search.get(), &walk_->entry) == 0) {
            if (::GetLastError() != ERROR_NO_MORE_FILES) throw LastFailure();
            return false;
        }
        walk_->name = FromWide(walk_->entry.cFileName);
    } while (walk_->name == "." || walk_->name == "..");
    return true;
}

std::string_view Directory::Name() const {
    return walk_->name;
}

bool Directory::IsHidden() const {
    return (walk_->entry.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

Kind Directory::KindOfEntry() const {
    const DWORD attributes = walk_->entry.dwFileAttributes;
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return KindOf(walk_->folder + walk_->name);
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::Folder : Kind::File;
}

}  // namespace halvenmoor::system
