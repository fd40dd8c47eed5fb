#include "platform/system/user_folder.h"

#include "platform/posix/environment.h"
#include "platform/posix/user_folder.h"
#include "platform/system/file.h"

#include <cerrno>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <system_error>
#include <utility>
#include <vector>

namespace halvenmoor::system {
namespace {

namespace fs = std::filesystem;

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

}  // namespace halvenmoor::system
