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
    explicit SystemInstanceLock(std::string folder = RuntimeFolder());

    bool IsFirst() override;
    std::string SocketPath() const override;

    /// The user's runtime folder or, where the system has none, one below the temporary folder, which is
    /// made.
    static std::string RuntimeFolder();

private:
    enum class State { Unasked, Held, HeldByOther, Impossible };

    State Lock();

    std::string folder_;
    State state_ = State::Unasked;
    std::optional<FileDescriptor> file_;
};

}  // namespace halvenmoor::posix
