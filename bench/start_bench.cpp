// Starts the program as its main function does, apart from the folder of options and lock. It ends when the
// main window is painted, or stays:
//
//     start_bench PROGRAM_FOLDER PRIVATE_FOLDER [stay]

#include "first_paint.h"
#include "platform/posix/clock.h"
#include "platform/posix/file_system.h"
#include "platform/posix/host_files.h"
#include "platform/posix/instance_lock.h"
#include "platform/posix/locale.h"
#include "platform/posix/path_finder.h"
#include "platform/posix/process.h"
#include "platform/posix/settings_file.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/services/program_info.h"
#include "program.h"

#include <iostream>

using namespace halvenmoor;

int main(int count, char** arguments) {
    if (count < 3) {
        std::cerr << "usage: start_bench PROGRAM_FOLDER PRIVATE_FOLDER [stay]\n";
        return 2;
    }
    posix::PrepareProcess();
    const posix::SystemLocale locale = posix::SystemLocale::FromEnvironment();
    posix::PathFinder finder(locale.CodePage());
    posix::DiskFileSystem fileSystem(finder);
    posix::DiskHostFiles hostFiles(finder);
    posix::SystemClock clock;
    posix::SettingsFile settings(arguments[2]);
    posix::SystemInstanceLock instanceLock(arguments[2]);
    qt::QtPlatform qt(arguments[0], locale, hostFiles);
    const FirstPaint firstPaint(count > 3);
    qt::QtProgramInfo programInfo(instanceLock, arguments[1]);
    Program program({fileSystem, hostFiles, programInfo, clock, settings, qt.messages, qt.fileDialogs,
                     qt.browser, qt.theme, locale},
                    qt.toolkit);
    program.Start();
    qt.toolkit.Run(program.Desktop());
    return 1;
}
