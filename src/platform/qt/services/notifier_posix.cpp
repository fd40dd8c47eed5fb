#include "platform/qt/services/notifier.h"

#include <QSocketNotifier>
#include <utility>

namespace halvenmoor::qt {

std::unique_ptr<QObject> NotifyWhenReady(std::intptr_t ready, std::function<void()> call) {
    auto notifier = std::make_unique<QSocketNotifier>(ready, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), std::move(call));
    return notifier;
}

}  // namespace halvenmoor::qt
