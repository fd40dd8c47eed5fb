#include "platform/system/settings_file.h"

#include "platform/posix/environment.h"
#include "platform/posix/system_calls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace halvenmoor::system {
namespace {

/// The path of the file itself, behind all links. Nothing for a link to nowhere.
std::optional<std::string> RealPath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    if (!error) return real.string();
    return EntryExists(path) ? std::nullopt : std::optional(path);
}

bool Sync(const File& file) {
    return ::fsync(DescriptorOf(file)) == 0 || errno == EINVAL || errno == ENOTSUP;
}

/// Puts a new file of this text into the place of the old one. If that fails, the old one stays as it was.
void Replace(const std::string& path, std::string_view text) {
    struct stat old {};
    const bool exists = ::stat(path.c_str(), &old) == 0;
    if (exists && ::access(path.c_str(), W_OK) != 0) return;
    constexpr mode_t kReadableAndWritable = 0666;  // less what the user's mask takes away
    const mode_t mode = exists ? old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO) : kReadableAndWritable;

    const std::string newPath = path.substr(0, path.rfind('/') + 1) + ".halvenmoor.ini.new~";
    ::unlink(newPath.c_str());  // of a run that was killed
    File file(::open(newPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!file.IsOpen()) return;
    const bool isStored = (!exists || ::fchmod(DescriptorOf(file), mode) == 0) &&
                          file.Write(text).error == 0 && Sync(file) && file.Close() == 0 &&
                          std::rename(newPath.c_str(), path.c_str()) == 0;
    if (!isStored) ::unlink(newPath.c_str());
}

}  // namespace

void SettingsFile::Store(const std::string& path, std::string_view text) {
    const std::optional<std::string> realPath = RealPath(path);
    if (!realPath) return;
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
    Replace(*realPath, text);
}

std::string SettingsFile::UserFolder() {
    return ConfigFolder() + "/halvenmoor";
}

}  // namespace halvenmoor::system
