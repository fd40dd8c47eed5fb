#include "platform/system/user_folder.h"

#include "platform/system/directory.h"
#include "platform/system/file.h"
#include "platform/system/path_finder.h"
#include "platform/system/standard_path.h"

#include <array>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

namespace halvenmoor::system {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolders[] = {
    "asc",  "txt",      "lang",          "import",      "import/ov2",      "import/txt",
    "demo", "demo/asc", "demo/txt_demo", "demo/import", "demo/import/ov2", "demo/import/txt"};
// What the user may change. The demonstration files come together, so a renamed one stays renamed.
constexpr const char* kCopies[] = {"Settings.ini", "demo/asc_demo"};
// What each version has anew, besides the languages. Copies, where links cannot be made, stay as they are.
constexpr const char* kLinks[] = {"manual.html", "manual", "translating.md"};

/// The mode is that of a new file: the data of a package may be closed to writing.
void CopyFile(const std::string& from, const std::string& to) {
    const File source = OpenForReading(from);
    File target = OpenForWriting(to, WriteMode::Replace);
    std::array<char, 65536> buffer{};
    while (const std::size_t count = source.Read(buffer)) {
        if (const int error = target.Write({buffer.data(), count}).error) throw SystemFailure(error);
    }
    if (const int error = target.Close()) throw SystemFailure(error);
}

std::string Join(const std::string& folder, std::string_view name) {
    return (folder + '/').append(name);
}

std::string ParentOf(const std::string& path) {
    return path.substr(0, path.find_last_of("/\\"));
}

void MakeFolder(const std::string& path) {
    fs::create_directory(ToStandard(path));
}

void Copy(const std::string& from, const std::string& to) {
    if (KindOf(from) != Kind::Folder) return CopyFile(from, to);
    MakeFolder(to);
    Directory directory{OpenFolder(from)};
    while (directory.Next()) Copy(Join(from, directory.Name()), Join(to, directory.Name()));
}

/// Whether it is a link as AddLink made it for an older version, which has gone since.
bool IsOutdatedLink(const std::string& path, const std::string& part) {
    const bool isLink = fs::is_symlink(fs::symlink_status(ToStandard(path)));
    return isLink && KindOf(path) == Kind::Nothing &&
           FromStandard(fs::read_symlink(ToStandard(path))).ends_with('/' + part);
}

class Completion {
public:
    Completion(std::string folder, std::string data) : folder_(std::move(folder)), data_(std::move(data)) {}

    void AddAll() {
        if (KindOf(ParentOf(folder_)) != Kind::Folder) throw Failure(failure::PathNotFound, "Path not found");
        if (!EntryExists(folder_)) MakeFolder(folder_);
        const OpenFolder opened(folder_);
        const File lock = opened.WaitForLock();  // another start may be at it as well
        for (const char* name : kFolders) AddFolder(name);
        for (const char* part : kCopies) AddCopy(part);
        for (const char* part : kLinks) AddLink(part);
        if (KindOf(Join(data_, "lang")) != Kind::Folder) return;
        Directory languages{OpenFolder(Join(data_, "lang"))};
        while (languages.Next()) AddLink(Join("lang", languages.Name()));
    }

private:
    /// The path of a part as the program will find it, without regard to letter case.
    std::string PlaceOf(const std::string& part) { return finder_->FindForWriting(Join(folder_, part)); }

    void AddFolder(const std::string& name) {
        if (const std::string place = PlaceOf(name); !EntryExists(place)) MakeFolder(place);
    }

    /// A copy gets its name only once all of it is on the disk.
    void AddCopy(const std::string& part) {
        const std::string place = PlaceOf(part);
        const std::string source = Join(data_, part);
        if (EntryExists(place) || !EntryExists(source)) return;
        const std::string unfinished = Join(ParentOf(place), ".halvenmoor-unfinished");
        if (EntryExists(unfinished))
            fs::remove_all(ToStandard(unfinished));  // of a start that did not get to its end
        Copy(source, unfinished);
        OpenFolder(ParentOf(place)).SyncFiles();
        Rename(unfinished, place);  // fails if another file took the place meanwhile
    }

    void AddLink(const std::string& part) {
        const std::string place = PlaceOf(part);
        const std::string source = Join(data_, part);
        if (!EntryExists(source)) return;
        if (IsOutdatedLink(place, part)) fs::remove(ToStandard(place));
        if (EntryExists(place)) return;
        std::error_code error;
        fs::create_symlink(ToStandard(source), ToStandard(place), error);
        if (error) AddCopy(part);  // as on a memory stick, where links are unknown, and on Windows
    }

    std::string folder_;
    std::string data_;
    std::unique_ptr<PathFinder> finder_ = MakePathFinder(text::WindowsCodePage(1252));
};

}  // namespace

Failure WithPath(const Failure& failure, const std::string& path) {
    return {failure.Number(), std::string(failure.what()) + ": " + path};
}

void CompleteUserFolder(const std::string& folder, const std::string& data) {
    try {
        Completion(folder, WithoutLinks(data)).AddAll();
    } catch (const Failure& failure) {
        throw WithPath(failure, folder);
    } catch (const fs::filesystem_error& error) {
        throw WithPath(SystemFailure(error.code().value()), folder);
    }
}

}  // namespace halvenmoor::system
