#include "platform/system/instance_lock.h"

#include "platform/windows/known_folder.h"
#include "platform/windows/paths.h"
#include "platform/windows/system_calls.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <shlobj.h>
#include <string_view>
#include <utility>

namespace halvenmoor::system {
namespace {

/// Messages go through a mailslot, which has no way to tell that one has come: an event does that.
class FileLock : public platform::InstanceLock {
public:
    explicit FileLock(std::string folder)
        : folder_(std::move(folder)),
          name_(L"halvenmoor-" + std::to_wstring(std::hash<std::string>()(folder_))) {}

    bool IsFirst() override;
    std::optional<std::intptr_t> Listen() override;
    std::optional<std::string> Receive() override;
    void Send(std::string_view message) override;

private:
    enum class State { Unasked, Held, HeldByOther, Impossible };

    State Lock();
    std::wstring SlotPath() const { return LR"(\\.\mailslot\)" + name_; }
    std::wstring EventName() const { return LR"(Local\)" + name_; }

    std::string folder_;
    std::wstring name_;
    State state_ = State::Unasked;
    std::optional<File> file_;
    std::optional<File> slot_;
    std::optional<File> event_;
};

/// With the handle of an object that has no INVALID_HANDLE_VALUE.
File MakeObject(HANDLE handle) {
    return MakeFile(handle == nullptr ? INVALID_HANDLE_VALUE : handle);
}

bool FileLock::IsFirst() {
    if (state_ == State::Unasked) state_ = Lock();
    return state_ != State::HeldByOther;
}

FileLock::State FileLock::Lock() {
    ::CreateDirectoryW(SystemPath(folder_).c_str(), nullptr);  // it may be there already
    // Nobody else can open a file that is shared for nothing until the process has ended. The file stays.
    const std::wstring path = SystemPath(folder_ + R"(\halvenmoor.lock)");
    file_.emplace(MakeFile(
        ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)));
    if (file_->IsOpen()) return State::Held;
    return ::GetLastError() == ERROR_SHARING_VIOLATION ? State::HeldByOther : State::Impossible;
}

std::optional<std::intptr_t> FileLock::Listen() {
    if (state_ != State::Held) return std::nullopt;
    constexpr DWORD kWithoutWaiting = 0;
    slot_.emplace(MakeFile(::CreateMailslotW(SlotPath().c_str(), kMaxMessage, kWithoutWaiting, nullptr)));
    constexpr BOOL kUntilReset = TRUE;
    event_.emplace(MakeObject(::CreateEventW(nullptr, kUntilReset, FALSE, EventName().c_str())));
    if (!slot_->IsOpen() || !event_->IsOpen()) return std::nullopt;
    return event_->Get();
}

std::optional<std::string> FileLock::Receive() {
    ::ResetEvent(HandleOf(*event_));
    std::array<char, kMaxMessage + 1> message;
    DWORD size = 0;
    if (::ReadFile(HandleOf(*slot_), message.data(), message.size(), &size, nullptr) == 0)
        return std::nullopt;
    ::SetEvent(HandleOf(*event_));  // more may have come
    return size > kMaxMessage ? std::string() : std::string(message.data(), size);
}

void FileLock::Send(std::string_view message) {
    ::AllowSetForegroundWindow(ASFW_ANY);  // else none but this process could bring a window to the front
    const File slot =
        MakeFile(::CreateFileW(SlotPath().c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    const File event = MakeObject(::OpenEventW(EVENT_MODIFY_STATE, FALSE, EventName().c_str()));
    if (slot.IsOpen() && event.IsOpen() && slot.Write(message).error == 0) ::SetEvent(HandleOf(event));
}

}  // namespace

std::string LockFolder() {
    return KnownFolder(FOLDERID_LocalAppData) + R"(\halvenmoor)";
}

std::unique_ptr<platform::InstanceLock> MakeInstanceLock(std::string folder) {
    return std::make_unique<FileLock>(std::move(folder));
}

}  // namespace halvenmoor::system
