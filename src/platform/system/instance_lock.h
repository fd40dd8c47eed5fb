#pragma once

#include "platform/instance_lock.h"
#include "platform/system/file.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor::system {

/// A lock on a file in a folder that only this user can enter. What the file holds, or who left it behind,
/// does not matter.
class SystemInstanceLock : public platform::InstanceLock {
public:
    /// Where no lock can be had, IsFirst says so on standard error.
    explicit SystemInstanceLock(std::string folder = UserFolder());

    ~SystemInstanceLock() override;

    bool IsFirst() override;
    std::optional<std::intptr_t> Listen() override;
    std::optional<std::string> Receive() override;
    void Send(std::string_view message) override;

    /// The one folder of this user, whatever the environment says: the runtime folder or, where the system
    /// has none, one below /tmp, which is made.
    static std::string UserFolder();

private:
    enum class State { Unasked, Held, HeldByOther, Impossible };

    State Lock();
    std::string SocketPath() const { return folder_ + "/halvenmoor.socket"; }

    std::string folder_;
    State state_ = State::Unasked;
    std::optional<File> file_;
    std::optional<File> socket_;
};

}  // namespace halvenmoor::system
