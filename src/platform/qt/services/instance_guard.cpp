#include "platform/qt/services/instance_guard.h"

#include "platform/qt/services/notifier.h"

#include <cstdint>
#include <optional>

namespace halvenmoor::qt {

namespace {

// What a later instance sends: the word, a blank, the token.
constexpr std::string_view kRaise = "raise ";
constexpr char kTokenVariable[] = "XDG_ACTIVATION_TOKEN";

}  // namespace

InstanceGuard::InstanceGuard(platform::InstanceLock& lock) : lock_(lock) {
}

bool InstanceGuard::IsFirst() {
    const bool isFirst = lock_.IsFirst();
    if (isFirst && notifier_ == nullptr) Listen();
    return isFirst;
}

void InstanceGuard::Listen() {
    const std::optional<std::intptr_t> ready = lock_.Listen();
    if (!ready) return;
    notifier_ = NotifyWhenReady(*ready, [this] {
        if (const std::optional<std::string> message = lock_.Receive()) HandleMessage(*message);
    });
}

void InstanceGuard::HandleMessage(std::string_view message) const {
    if (message.starts_with(kRaise) && OnRaise) OnRaise(std::string(message.substr(kRaise.size())));
}

void InstanceGuard::RaiseOther() const {
    lock_.Send(std::string(kRaise) + qgetenv(kTokenVariable).toStdString());
}

}  // namespace halvenmoor::qt
