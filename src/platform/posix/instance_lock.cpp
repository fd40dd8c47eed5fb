#include "platform/posix/instance_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <iostream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace halvenmoor::posix {
namespace {

/// Whether the path is a folder, and no link, that belongs to this user and that nobody else can enter.
bool IsPrivateFolder(const std::string& path) {
    struct stat info {};
    return ::lstat(SystemPath(path), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == ::geteuid() &&
           (info.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

}  // namespace

SystemInstanceLock::SystemInstanceLock(std::string folder) : folder_(std::move(folder)) {
}

bool SystemInstanceLock::IsFirst() {
    if (state_ != State::Unasked) return state_ != State::HeldByOther;
    state_ = Lock();
    if (state_ == State::Impossible)
        std::cerr << "halvenmoor: no lock in " << folder_ << ", a second start will not find this one\n";
    return state_ != State::HeldByOther;
}

std::string SystemInstanceLock::SocketPath() const {
    return state_ == State::Impossible ? "" : folder_ + "/halvenmoor.socket";
}

SystemInstanceLock::State SystemInstanceLock::Lock() {
    if (!IsPrivateFolder(folder_)) return State::Impossible;
    const std::string path = folder_ + "/halvenmoor.lock";  // the file stays, locked or not
    file_.emplace(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file_->IsOpen()) return State::Impossible;
    if (::flock(file_->Get(), LOCK_EX | LOCK_NB) == 0) return State::Held;
    return errno == EWOULDBLOCK ? State::HeldByOther : State::Impossible;
}

std::string SystemInstanceLock::UserFolder() {
    const std::string user = std::to_string(::geteuid());
    std::string folder = "/run/user/" + user;
    if (IsPrivateFolder(folder)) return folder;
    folder = "/tmp/halvenmoor-" + user;
    ::mkdir(folder.c_str(), S_IRWXU);  // it may be there already
    return folder;
}

}  // namespace halvenmoor::posix
