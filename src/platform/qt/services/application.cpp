#include "platform/qt/services/application.h"

#include "platform/qt/windows/form_window.h"
#include "platform/version.h"

#include <QFile>
#include <QScreen>
#include <filesystem>
#include <system_error>

namespace halvenmoor::qt {

namespace {

constexpr char kPlatformVariable[] = "QT_QPA_PLATFORM";
constexpr char kTokenVariable[] = "XDG_ACTIVATION_TOKEN";

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
        return false;  // the event is lost, the program lives on
    }
}

void PreferX11() {
    const bool hasBoth =
        !qEnvironmentVariableIsEmpty("DISPLAY") && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (hasBoth && !qEnvironmentVariableIsSet(kPlatformVariable)) qputenv(kPlatformVariable, "xcb;wayland");
}

QtProgramInfo::QtProgramInfo(const QString& runtimeFolder) : guard_(runtimeFolder) {
    guard_.OnRaise = [](const QByteArray& token) {
        if (!token.isEmpty()) qputenv(kTokenVariable, token);  // where Qt looks for it
        RaiseWindows();
    };
}

std::string QtProgramInfo::ProgramFolder() const {
    // Qt's own answer is text and loses bytes that are not UTF-8.
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) return program.parent_path().string();
    return QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
}

platform::ProgramVersion QtProgramInfo::Version() const {
    return kVersion;
}

platform::ScreenSize QtProgramInfo::Screen() const {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {size.width(), size.height()};
}

}  // namespace halvenmoor::qt
