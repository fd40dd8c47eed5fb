#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>

namespace halvenmoor::qt {

/// Calls back whenever what platform::InstanceLock::Listen gives is ready, for as long as the object lives.
std::unique_ptr<QObject> NotifyWhenReady(std::intptr_t ready, std::function<void()> call);

}  // namespace halvenmoor::qt
