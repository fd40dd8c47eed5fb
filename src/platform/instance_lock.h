#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor::platform {

/// Tells the first instance of the program that a user runs from later ones, which can send it messages.
class InstanceLock {
public:
    virtual ~InstanceLock() = default;

    /// Whether no other instance was running. The first call decides for good; the first instance keeps the
    /// lock until its process ends, however that happens. True as well where no lock can be had.
    virtual bool IsFirst() = 0;

    /// In bytes.
    static constexpr std::size_t kMaxMessage = 1024;

    /// To be called by the first instance: from now on messages reach it, those of this user only. Returns
    /// what becomes ready when one comes: a descriptor to read from, on Windows the handle of an event. None
    /// where it cannot listen.
    virtual std::optional<std::intptr_t> Listen() = 0;
    /// The next message, empty if it was too long; none when all are taken. Never waits.
    virtual std::optional<std::string> Receive() = 0;
    /// Sends a message to the first instance. It is lost where none listens, or where that one has stopped
    /// taking messages. Never waits.
    virtual void Send(std::string_view message) = 0;
};

}  // namespace halvenmoor::platform
