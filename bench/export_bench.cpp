// Exports the files of a program folder in the real windows:
//
//     export_bench PROGRAM_FOLDER
//
// Prints the seconds on the clock from the click on Export to the window of the results. The start of the
// program and the sorting of the files are not in them.

#include "catalogue/frmMain.h"
#include "platform/headless/services.h"
#include "platform/qt/qt_platform.h"
#include "platform/system/clock.h"
#include "platform/system/file_system.h"
#include "platform/system/host_files.h"
#include "platform/system/locale.h"
#include "platform/system/path_finder.h"
#include "program.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>
#include <iostream>

using namespace halvenmoor;

namespace {

/// Closes the window of the results when it is painted, and keeps the time until then.
class ResultsWatcher : public QObject {
public:
    ResultsWatcher() {
        qApp->installEventFilter(this);
        sinceClick_.start();
    }

    double Seconds() const { return seconds_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || watched->objectName() != "frmResults") return false;
        qApp->removeEventFilter(this);
        seconds_ = static_cast<double>(sinceClick_.nsecsElapsed()) / 1e9;
        QMetaObject::invokeMethod(static_cast<QWidget*>(watched), &QWidget::close, Qt::QueuedConnection);
        return false;
    }

private:
    QElapsedTimer sinceClick_;
    double seconds_ = 0;
};

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: export_bench PROGRAM_FOLDER\n";
        return 2;
    }
    const system::SystemLocale locale = system::SystemLocale::OfUser();
    const auto finder = system::MakePathFinder(locale.CodePage());
    system::DiskFileSystem fileSystem(*finder);
    system::DiskHostFiles hostFiles(*finder);
    system::SystemClock clock;
    qt::QtPlatform qt(arguments[0], locale, hostFiles);
    headless::HeadlessProgramInfo programInfo(arguments[1]);
    headless::MemorySettings settings;
    Program program({fileSystem, hostFiles, programInfo, clock, settings, qt.messages, qt.fileDialogs,
                     qt.browser, qt.theme, locale},
                    qt.toolkit);
    program.Start();
    frmMain& window = program.MainForm();
    window.CheckDemoMode.UserPress();
    window.CheckSaveResults.UserPress();
    window.ButtonClassifyFiles.UserPress();
    const ResultsWatcher watcher;
    window.ButtonExportCameras.UserPress();
    std::cout << watcher.Seconds() << std::endl;
    return watcher.Seconds() > 0 ? 0 : 1;
}
