#pragma once

#include "platform/instance_lock.h"

#include <memory>
#include <string>

namespace halvenmoor::system {

/// The one folder of this user for the lock, whatever the environment says. On POSIX the runtime folder or,
/// where the system has none, one below /tmp, which is made.
std::string LockFolder();

/// A lock on a file in a folder that only this user can enter. What the file holds, or who left it behind,
/// does not matter. Where no lock can be had, POSIX says so on standard error.
std::unique_ptr<platform::InstanceLock> MakeInstanceLock(std::string folder = LockFolder());

}  // namespace halvenmoor::system
