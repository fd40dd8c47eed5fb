// The window tests run without a display, in folders of their own, and fail on any warning of the toolkit.

#include "platform/qt/services/application.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// What the platform without a display says about windows.
constexpr const char* kExpected[] = {"This plugin does not support raise()",
                                     "This plugin does not support propagateSizeHints()"};

void FailOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    for (const char* const expected : kExpected) {
        if (message == expected) return;
    }
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
