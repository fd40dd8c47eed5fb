// The window tests run without a display, in folders of their own, and fail on any warning of the toolkit.

#include "platform/qt/services/application.h"

#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>

namespace {

// What the platform without a display says about windows.
constexpr QLatin1String kExpected[] = {QLatin1String("This plugin does not support raise()"),
                                       QLatin1String("This plugin does not support propagateSizeHints()")};

// How that begins which Wine lacks, and Windows has: stock icons, captions at other scales, and off-screen a
// folder of fonts.
constexpr QLatin1String kExpectedOfWine[] = {
    QLatin1String("EnableNonClientDpiScaling() failed"),
    QLatin1String("SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2) failed"),
    QLatin1String("QFontDatabase: Cannot find font directory"),
    QLatin1String("QPixmap::fromWinHICON(), failed to GetIconInfo()")};

bool IsExpected(const QString& message) {
    const auto isMessage = [&](QLatin1String expected) { return message == expected; };
    const auto isBeginning = [&](QLatin1String expected) { return message.startsWith(expected); };
    return std::any_of(std::begin(kExpected), std::end(kExpected), isMessage) ||
           std::any_of(std::begin(kExpectedOfWine), std::end(kExpectedOfWine), isBeginning);
}

void FailOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    if (IsExpected(message)) return;
    ADD_FAILURE() << "The toolkit warned: " << message.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char* const folder : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"}) {
        qputenv(folder, home.path().toLocal8Bit());
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(FailOnWarning);
    halvenmoor::qt::SafeApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
