#include "platform/system/settings_file.h"

#include "platform/windows/known_folder.h"
#include "platform/windows/paths.h"
#include "platform/windows/system_calls.h"

#include <array>
#include <optional>
#include <shlobj.h>

namespace halvenmoor::system {
namespace {

/// The path of the file itself, behind all links, as system calls take it. Nothing for a link to nowhere.
std::optional<std::wstring> RealPath(const std::string& path) {
    const File file = MakeFile(::CreateFileW(SystemPath(path).c_str(), FILE_READ_ATTRIBUTES, kShareAll,
                                             nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file.IsOpen()) return EntryExists(path) ? std::nullopt : std::optional(SystemPath(path));
    std::array<wchar_t, 32768> real{};  // as long as paths can be
    const DWORD size = ::GetFinalPathNameByHandleW(HandleOf(file), real.data(), real.size(), 0);
    return size > 0 && size < real.size() ? std::wstring(real.data(), size) : SystemPath(path);
}

/// Puts a new file of this text into the place of the old one. If that fails, the old one stays as it was.
void Replace(const std::wstring& path, std::string_view text) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & FILE_ATTRIBUTE_READONLY) != 0) return;

    const std::wstring newPath = path.substr(0, path.rfind(L'\\') + 1) + L".halvenmoor.ini.new~";
    ::DeleteFileW(newPath.c_str());  // of a run that was killed
    File file = MakeFile(::CreateFileW(newPath.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) return;
    constexpr DWORD kAtOnce = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const bool isStored = file.Write(text).error == 0 && ::FlushFileBuffers(HandleOf(file)) != 0 &&
                          file.Close() == 0 && ::MoveFileExW(newPath.c_str(), path.c_str(), kAtOnce) != 0;
    if (isStored) return;
    file.Close();
    ::DeleteFileW(newPath.c_str());
}

}  // namespace

void SettingsFile::Store(const std::string& path, std::string_view text) {
    const std::optional<std::wstring> realPath = RealPath(path);
    if (!realPath) return;
    const std::wstring folder = realPath->substr(0, realPath->rfind(L'\\'));
    ::CreateDirectoryW(folder.c_str(), nullptr);  // it is there at most starts
    Replace(*realPath, text);
}

std::string SettingsFile::UserFolder() {
    return KnownFolder(FOLDERID_RoamingAppData) + R"(\halvenmoor)";
}

}  // namespace halvenmoor::system
