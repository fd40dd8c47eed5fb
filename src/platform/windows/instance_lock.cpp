#include "platform/system/instance_lock.h"

#include "platform/windows/known_folder.h"
#include "platform/windows/paths.h"
#include "platform/windows/system_calls.h"

#include <algorithm>
#include <shlobj.h>
#include <utility>

namespace halvenmoor::system {

SystemInstanceLock::SystemInstanceLock(std::string folder) : folder_(std::move(folder)) {
}

bool SystemInstanceLock::IsFirst() {
    if (state_ == State::Unasked) state_ = Lock();
    return state_ != State::HeldByOther;
}

std::string SystemInstanceLock::SocketPath() const {
    if (state_ == State::Impossible) return {};
    std::string name = folder_ + "/halvenmoor.socket";  // of a pipe: all but "\\" is allowed in it
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

SystemInstanceLock::State SystemInstanceLock::Lock() {
    // Nobody else can open a file that is shared for nothing; it goes with the process.
    const std::wstring path = SystemPath(folder_ + R"(\halvenmoor.lock)");
    ::CreateDirectoryW(SystemPath(folder_).c_str(), nullptr);
    file_.emplace(MakeFile(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr)));
    if (file_->IsOpen()) return State::Held;
    if (::GetLastError() != ERROR_SHARING_VIOLATION) return State::Impossible;
    ::AllowSetForegroundWindow(ASFW_ANY);  // else only this process could bring a window to the front
    return State::HeldByOther;
}

std::string SystemInstanceLock::UserFolder() {
    return FolderIn(FOLDERID_LocalAppData);
}

}  // namespace halvenmoor::system
