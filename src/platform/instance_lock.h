#pragma once

#include <string>

namespace halvenmoor::platform {

/// Tells the first instance of the program that a user runs from later ones.
class InstanceLock {
public:
    virtual ~InstanceLock() = default;

    /// Whether no other instance was running. The first call decides for good; the first instance keeps the
    /// lock until its process ends, however that happens. True as well where no lock can be had.
    virtual bool IsFirst() = 0;
    /// The name of a local socket that no other user can reach, where the first instance listens for later
    /// ones. Empty where no lock can be had. To be asked after IsFirst.
    virtual std::string SocketPath() const = 0;
};

}  // namespace halvenmoor::platform
