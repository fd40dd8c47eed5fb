#pragma once

#include "platform/instance_lock.h"
#include "platform/posix/system.h"

#include <optional>
#include <string>

namespace halvenmoor::posix {

/// A lock on a file in a folder that only this user can enter. What the file holds, or who left it behind,
/// does not matter.
class SystemInstanceLock : public platform::InstanceLock {
public:
    /// Where no lock can be had, IsFirst says so on standard error.
    explicit SystemInstanceLock(std::string folder = UserFolder());

    bool IsFirst() override;
    std::string SocketPath() const override;

    /// The one folder of this user, whatever the environment says: the runtime folder or, where the system
    /// has none, one below /tmp, which is made.
    static std::string UserFolder();

private:
    enum class State { Unasked, Held, HeldByOther, Impossible };

    State Lock();

    std::string folder_;
    State state_ = State::Unasked;
    std::optional<FileDescriptor> file_;
};

}  // namespace halvenmoor::posix
