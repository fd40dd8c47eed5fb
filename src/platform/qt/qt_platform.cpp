#include "platform/qt/qt_platform.h"

#include <QLibraryInfo>
#include <QLocale>

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
    // Qt's own words, as in the file dialogs, in the language of the user's desktop.
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (translator.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"), folder)) {
        QCoreApplication::installTranslator(&translator);
    }
    // The windows are laid out as they are given, whatever the direction of the user's writing.
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

}  // namespace halvenmoor::qt
