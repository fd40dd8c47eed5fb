#include "platform/qt/services/program_info.h"

#include "platform/qt/windows/form_window.h"
#include "platform/version.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <filesystem>
#include <system_error>

namespace halvenmoor::qt {

namespace {

constexpr char kTokenVariable[] = "XDG_ACTIVATION_TOKEN";

}  // namespace

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
