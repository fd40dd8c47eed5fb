#include "platform/qt/services/notifier.h"

#include <QWinEventNotifier>
#include <utility>

namespace halvenmoor::qt {

std::unique_ptr<QObject> NotifyWhenReady(std::intptr_t ready, std::function<void()> call) {
    auto notifier = std::make_unique<QWinEventNotifier>(reinterpret_cast<Qt::HANDLE>(ready));
    QObject::connect(notifier.get(), &QWinEventNotifier::activated, notifier.get(), std::move(call));
    return notifier;
}

}  // namespace halvenmoor::qt
