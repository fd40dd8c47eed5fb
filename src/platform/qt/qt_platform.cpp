#include "platform/qt/qt_platform.h"

namespace halvenmoor::qt {

QtPlatform::Arguments::Arguments(char* programName) : values{programName, nullptr} {
    PreferX11();
    qInstallMessageHandler(EndWithoutDisplay);
}

QtPlatform::QtPlatform(char* programName, const platform::Locale& locale, platform::HostFiles& files)
    : arguments(programName),
      application(MakeApplication(arguments.count, arguments.values.data())),
      toolkit(locale),
      fileDialogs(files) {
    qInstallMessageHandler(nullptr);
    // The windows are laid out as they are given, whatever the direction of the user's writing.
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

}  // namespace halvenmoor::qt
