#include "platform/system/user_folder.h"

#include "platform/posix/environment.h"
#include "platform/posix/system_calls.h"
#include "platform/system/directory.h"
#include "platform/system/file.h"
#include "platform/system/path_finder.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <iomanip>
#include <memory>
#include <sstream>
#include <sys/file.h>
#include <system_error>
#include <utility>
#include <vector>

namespace halvenmoor::system {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolders[] = {
    "asc",  "txt",      "lang",          "import",      "import/ov2",      "import/txt",
    "demo", "demo/asc", "demo/txt_demo", "demo/import", "demo/import/ov2", "demo/import/txt"};
// What the user may change. The demonstration files come together, so a renamed one stays renamed.
constexpr const char* kCopies[] = {"Settings.ini", "demo/asc_demo"};
// What comes anew with each version, besides the languages.
constexpr const char* kLinks[] = {"manual.html", "manual", "translating.md"};

Failure WithPath(const Failure& failure, const std::string& path) {
    return {failure.Number(), std::string(failure.what()) + ": " + path};
}

/// The mode is that of a new file: the data of a package may be closed to writing.
void CopyFile(const fs::path& from, const fs::path& to) {
    const File source = OpenForReading(from);
    File target = OpenForWriting(to, WriteMode::Replace);
    std::array<char, 65536> buffer{};
    while (const std::size_t count = source.Read(buffer)) {
        if (const int error = target.Write({buffer.data(), count}).error) throw SystemFailure(error);
    }
    if (const int error = target.Close()) throw SystemFailure(error);
}

void Copy(const fs::path& from, const fs::path& to) {
    if (!fs::is_directory(from)) return CopyFile(from, to);
    fs::create_directory(to);
    for (const fs::directory_entry& entry : fs::directory_iterator(from))
        Copy(entry.path(), to / entry.path().filename());
}

/// Whether it is a link as AddLink made it for an older version, which has gone since.
bool IsOutdatedLink(const fs::path& path, const std::string& part) {
    const bool leadsNowhere = fs::is_symlink(fs::symlink_status(path)) && KindOf(path) == Kind::Nothing;
    return leadsNowhere && fs::read_symlink(path).string().ends_with('/' + part);
}

class Completion {
public:
    Completion(fs::path folder, fs::path data) : folder_(std::move(folder)), data_(std::move(data)) {}

    void AddAll() {
        if (KindOf(folder_.parent_path()) != Kind::Folder) throw SystemFailure(ENOTDIR);
        if (!EntryExists(folder_)) fs::create_directory(folder_);
        const OpenFolder opened(folder_);
        ::flock(DescriptorOf(opened.Handle()), LOCK_EX);  // another start may be at it as well
        for (const char* name : kFolders) AddFolder(name);
        for (const char* part : kCopies) AddCopy(part);
        for (const char* part : kLinks) AddLink(part);
        std::error_code noLanguages;
        for (const fs::directory_entry& language : fs::directory_iterator(data_ / "lang", noLanguages))
            AddLink("lang/" + language.path().filename().string());
    }

private:
    /// The path of a part as the program will find it, without regard to letter case.
    fs::path PlaceOf(const std::string& part) { return finder_->FindForWriting((folder_ / part).string()); }

    void AddFolder(const std::string& name) {
        if (const fs::path place = PlaceOf(name); !EntryExists(place)) fs::create_directory(place);
    }

    /// A copy gets its name only once all of it is on the disk.
    void AddCopy(const std::string& part) {
        const fs::path place = PlaceOf(part);
        if (EntryExists(place) || !EntryExists(data_ / part)) return;
        const fs::path unfinished = place.parent_path() / ".halvenmoor-unfinished";
        fs::remove_all(unfinished);  // of a start that did not get to its end
        Copy(data_ / part, unfinished);
        OpenFolder(place.parent_path()).SyncFiles();
        fs::rename(unfinished, place);
    }

    void AddLink(const std::string& part) {
        const fs::path place = PlaceOf(part);
        if (!EntryExists(data_ / part)) return;
        if (IsOutdatedLink(place, part)) fs::remove(place);
        if (EntryExists(place)) return;
        std::error_code error;
        fs::create_symlink(data_ / part, place, error);
        if (error) AddCopy(part);  // as on a memory stick, where links are unknown
    }

    fs::path folder_;
    fs::path data_;
    std::unique_ptr<PathFinder> finder_ = MakePathFinder(text::WindowsCodePage(1252));
};

/// Absolute, and without a separator at its end.
std::string Normal(const std::string& path) {
    std::error_code ignored;
    const fs::path normal = fs::absolute(path, ignored).lexically_normal();
    return normal.has_filename() ? normal : normal.parent_path();
}

}  // namespace

std::string DocumentsFolder(const std::string& userDirs, const std::string& home) {
    constexpr std::string_view kHome = "$HOME";
    std::string folder;
    std::istringstream lines(userDirs);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name;
        std::string value;
        std::getline(words >> std::ws, name, '=');
        words >> std::quoted(value);
        if (name != "XDG_DOCUMENTS_DIR") continue;
        if (value.starts_with('/')) folder = value;
        if (value.starts_with("$HOME/")) folder = home + value.substr(kHome.size());
    }
    return folder;
}

std::string UserFolder() {
    const std::string wanted = Variable("HALVENMOOR_FOLDER");
    if (!wanted.empty()) return Normal(wanted);

    const std::string home = Variable("HOME");
    const std::string userDirs = ReadSmallFile(ConfigFolder() + "/user-dirs.dirs").value_or("");
    std::vector<std::string> folders;
    for (const std::string& place : {DocumentsFolder(userDirs, home), home}) {
        if (KindOf(place) != Kind::Folder) continue;
        folders.push_back(Normal(place + "/Halvenmoor"));
        if (KindOf(folders.back()) == Kind::Folder) return folders.back();
    }
    if (folders.empty()) throw WithPath(SystemFailure(ENOTDIR), home + "/Halvenmoor");
    return folders.front();
}

void CompleteUserFolder(const std::string& folder, const std::string& data) {
    try {
        Completion(folder, fs::canonical(data)).AddAll();
    } catch (const Failure& failure) {
        throw WithPath(failure, folder);
    } catch (const fs::filesystem_error& error) {
        throw WithPath(SystemFailure(error.code().value()), folder);
    }
}

}  // namespace halvenmoor::system
