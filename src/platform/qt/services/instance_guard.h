#pragma once

#include "platform/instance_lock.h"

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace halvenmoor::qt {

/// Lets one instance of the program run for each user: the first one listens for later ones, which ask it to
/// come to the front.
class InstanceGuard {
public:
    /// The lock must outlive it.
    explicit InstanceGuard(platform::InstanceLock& lock);

    /// Whether no other instance was running. The first call decides for good.
    bool IsFirst();
    /// Asks the other instance to come to the front. Does nothing when none answers.
    void RaiseOther() const;

    /// Called in the first instance with the token by which the window system lets it come to the front; the
    /// token may be empty.
    std::function<void(const std::string&)> OnRaise;

private:
    void Listen();
    void HandleMessage(std::string_view message) const;

    platform::InstanceLock& lock_;
    std::unique_ptr<QObject> notifier_;
};

}  // namespace halvenmoor::qt
