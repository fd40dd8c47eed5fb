#include "platform/qt/services/program_info.h"

#include "platform/qt/windows/conversions.h"
#include "platform/qt/windows/form_window.h"
#include "platform/version.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <utility>

namespace halvenmoor::qt {

namespace {

constexpr char kTokenVariable[] = "XDG_ACTIVATION_TOKEN";

}  // namespace

QtProgramInfo::QtProgramInfo(platform::InstanceLock& lock, std::string programFolder)
    : guard_(lock), programFolder_(std::move(programFolder)) {
    if (programFolder_.empty()) {
        programFolder_ = ToPath(QCoreApplication::applicationDirPath());
    }
    guard_.OnRaise = [](const std::string& token) {
        if (!token.empty())
            qputenv(kTokenVariable, QByteArray::fromStdString(token));  // where Qt looks for it
        RaiseWindows();
    };
}

char QtProgramInfo::Separator() const {
    return QDir::separator().toLatin1();
}

platform::ProgramVersion QtProgramInfo::Version() const {
    return kVersion;
}

platform::ScreenSize QtProgramInfo::Screen() const {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {size.width(), size.height()};
}

}  // namespace halvenmoor::qt
