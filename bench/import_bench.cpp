// Measures an import in the real dialog off-screen, with the turns that it gives the interface:
//
//     import_bench PROGRAM_FOLDER ov2|txt
//
// Prints the CPU seconds from the click on Start to its end; the start of the program is not in them.

#include "catalogue/frmMain.h"
#include "platform/headless/services.h"
#include "platform/qt/qt_platform.h"
#include "platform/system/file_system.h"
#include "platform/system/host_files.h"
#include "platform/system/locale.h"
#include "platform/system/path_finder.h"
#include "program.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <ctime>
#include <iostream>
#include <string_view>

using namespace halvenmoor;

namespace {

/// CPU seconds of one import in the dialog, which is closed afterwards.
double RunImport(const QWidget& dialog, const QString& sourceOption) {
    const auto click = [&dialog](const QString& button) {
        dialog.findChild<QAbstractButton*>(button)->click();
    };
    click(sourceOption);
    const std::clock_t start = std::clock();
    click("ButtonStart");
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    click("ButtonFinish");
    return seconds;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: import_bench PROGRAM_FOLDER ov2|txt\n";
        return 2;
    }
    const QString sourceOption = std::string_view(argv[2]) == "ov2" ? "OptionSource(1)" : "OptionSource(2)";
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const system::SystemLocale locale = system::SystemLocale::OfUser();
    const auto finder = system::MakePathFinder(locale.CodePage());
    system::DiskFileSystem fileSystem(*finder);
    system::DiskHostFiles hostFiles(*finder);
    qt::QtPlatform qt(argv[0], locale, hostFiles);
    headless::HeadlessProgramInfo programInfo(argv[1]);
    headless::SkippingClock clock;
    headless::MemorySettings settings;
    Program program({fileSystem, hostFiles, programInfo, clock, settings, qt.messages, qt.fileDialogs,
                     qt.browser, qt.theme, locale},
                    qt.toolkit);
    program.Start();
    program.MainForm().CheckDemoMode.UserPress();
    // The dialog takes turns before it is shown, so the first turn may come too early.
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog == nullptr) return;
        timer.stop();
        std::cout << RunImport(*dialog, sourceOption) << std::endl;
    });
    timer.start(0);
    program.MainForm().ButtonImportFiles.UserPress();
    program.MainForm().UserClose();
    return 0;
}
