#include "platform/qt/services/application.h"

#include "base/failure.h"
#include "platform/version.h"

#include <QScreen>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>

namespace halvenmoor::qt {

namespace {

constexpr char kPlatformVariable[] = "QT_QPA_PLATFORM";
constexpr char kScaleVariable[] = "QT_SCALE_FACTOR";

// The main window with the caption that most desktops draw. All other windows are smaller.
constexpr QSizeF kMainWindow(794, 568 + 32);

/// For as long as it lives, Qt finds a scale in the environment that is so many times that of the user.
class ScaleInEnvironment {
public:
    explicit ScaleInEnvironment(double factor) : users_(qgetenv(kScaleVariable)) {
        const double usersFactor = users_.toDouble();
        qputenv(kScaleVariable, QByteArray::number(usersFactor > 0 ? usersFactor * factor : factor, 'g', 17));
    }
    ~ScaleInEnvironment() {
        if (users_.isNull()) {
            qunsetenv(kScaleVariable);
        } else {
            qputenv(kScaleVariable, users_);
        }
    }
    ScaleInEnvironment(const ScaleInEnvironment&) = delete;
    ScaleInEnvironment& operator=(const ScaleInEnvironment&) = delete;

private:
    QByteArray users_;
};

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

std::unique_ptr<SafeApplication> MakeApplication(int& argumentCount, char** arguments) {
    auto application = std::make_unique<SafeApplication>(argumentCount, arguments);
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const double scale = screen.devicePixelRatio();
    const double fitted = FittedScale(scale, QSizeF(screen.availableGeometry().size()) * scale);
    if (fitted == scale) return application;
    // Qt reads the scale when the application is made, but only an application knows the screen.
    application.reset();
    const ScaleInEnvironment guard(fitted / scale);
    return std::make_unique<SafeApplication>(argumentCount, arguments);
}

double FittedScale(double scale, const QSizeF& devicePixels) {
    const double fitting =
        std::min(devicePixels.width() / kMainWindow.width(), devicePixels.height() / kMainWindow.height());
    if (scale <= 1 || scale <= fitting) return scale;
    // At a quarter, lines can lie on whole device pixels.
    return std::max(1.0, std::floor(fitting * 4) / 4);
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
