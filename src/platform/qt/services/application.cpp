#include "platform/qt/services/application.h"

#include "base/failure.h"
#include "platform/version.h"

#include <cstdlib>
#include <iostream>

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

void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) {
        std::cerr
            << "halvenmoor: no display answers, or Qt has no plugin for it (QT_DEBUG_PLUGINS=1 tells more)\n";
        std::_Exit(EXIT_FAILURE);
    }
    // Messages of this type come only where the environment asks for them.
    if (type == QtDebugMsg) std::cerr << qFormatLogMessage(type, context, message).toStdString() << '\n';
}

}  // namespace halvenmoor::qt
