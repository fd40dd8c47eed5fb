#include "platform/qt/services/application.h"

#include "base/failure.h"
#include "platform/version.h"

namespace halvenmoor::qt {

namespace {

constexpr char kPlatformVariable[] = "QT_QPA_PLATFORM";

}  // namespace

SafeApplication::SafeApplication(int& argumentCount, char** arguments)
    : QApplication(argumentCount, arguments) {
    setQuitOnLastWindowClosed(false);  // the desktop ends the program
    setDesktopFileName(QString::fromLatin1(kApplicationId));
}

bool SafeApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        TraceFailure("handle an event of the toolkit");
        return false;  // the event is lost, the program lives on
    }
}

void PreferX11() {
    const bool hasBoth =
        !qEnvironmentVariableIsEmpty("DISPLAY") && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (hasBoth && !qEnvironmentVariableIsSet(kPlatformVariable)) qputenv(kPlatformVariable, "xcb;wayland");
}

}  // namespace halvenmoor::qt
