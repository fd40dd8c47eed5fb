#include "platform/system/instance_lock.h"

#include "platform/posix/system_calls.h"
#include "platform/system/file.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <iostream>
#include <optional>
#include <string_view>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace halvenmoor::system {
namespace {

/// Whether the path is a folder, and no link, that belongs to this user and that nobody else can enter.
bool IsPrivateFolder(const std::string& path) {
    struct stat info {};
    return ::lstat(SystemPath(path), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == ::geteuid() &&
           (info.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

/// A socket whose messages arrive whole, one by one.
File MessageSocket() {
    return File(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

/// A path that is too long is cut off, and there is no such socket.
sockaddr_un SocketAddress(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

class FileLock : public platform::InstanceLock {
public:
    explicit FileLock(std::string folder);
    ~FileLock() override;

    bool IsFirst() override;
    std::optional<std::intptr_t> Listen() override;
    std::optional<std::string> Receive() override;
    void Send(std::string_view message) override;

private:
    enum class State { Unasked, Held, HeldByOther, Impossible };

    State Lock();
    std::string SocketPath() const { return folder_ + "/halvenmoor.socket"; }

    std::string folder_;
    State state_ = State::Unasked;
    std::optional<File> file_;
    std::optional<File> socket_;
};

FileLock::FileLock(std::string folder) : folder_(std::move(folder)) {
}

FileLock::~FileLock() {
    if (socket_) ::unlink(SocketPath().c_str());  // the lock is still held, so it is the own one
}

bool FileLock::IsFirst() {
    if (state_ != State::Unasked) return state_ != State::HeldByOther;
    state_ = Lock();
    if (state_ == State::Impossible)
        std::cerr << "halvenmoor: no lock in " << folder_ << ", a second start will not find this one\n";
    return state_ != State::HeldByOther;
}

std::optional<std::intptr_t> FileLock::Listen() {
    if (state_ != State::Held) return std::nullopt;
    const std::string path = SocketPath();
    const sockaddr_un address = SocketAddress(path);
    if (path != address.sun_path) return std::nullopt;
    ::unlink(address.sun_path);  // left behind by an instance that crashed
    socket_.emplace(MessageSocket());
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): so the system wants it
    if (::bind(DescriptorOf(*socket_), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return socket_->Get();
    socket_.reset();
    return std::nullopt;
}

std::optional<std::string> FileLock::Receive() {
    std::array<char, kMaxMessage> message;
    const ssize_t size = ::recv(DescriptorOf(*socket_), message.data(), message.size(), MSG_TRUNC);
    if (size < 0) return std::nullopt;
    if (static_cast<std::size_t>(size) > message.size()) return "";
    return std::string(message.data(), static_cast<std::size_t>(size));
}

void FileLock::Send(std::string_view message) {
    const sockaddr_un address = SocketAddress(SocketPath());
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): so the system wants it
    ::sendto(DescriptorOf(MessageSocket()), message.data(), message.size(), 0,
             reinterpret_cast<const sockaddr*>(&address), sizeof address);
}

FileLock::State FileLock::Lock() {
    if (!IsPrivateFolder(folder_)) return State::Impossible;
    const std::string path = folder_ + "/halvenmoor.lock";  // the file stays, locked or not
    file_.emplace(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file_->IsOpen()) return State::Impossible;
    if (::flock(DescriptorOf(*file_), LOCK_EX | LOCK_NB) == 0) return State::Held;
    return errno == EWOULDBLOCK ? State::HeldByOther : State::Impossible;
}

}  // namespace

std::string LockFolder() {
    const std::string user = std::to_string(::geteuid());
    std::string folder = "/run/user/" + user;
    if (IsPrivateFolder(folder)) return folder;
    folder = "/tmp/halvenmoor-" + user;
    ::mkdir(folder.c_str(), S_IRWXU);  // it may be there already
    return folder;
}

std::unique_ptr<platform::InstanceLock> MakeInstanceLock(std::string folder) {
    return std::make_unique<FileLock>(std::move(folder));
}

}  // namespace halvenmoor::system
