// Starts the program as its main function does, apart from the folder of options and lock. It ends when the
// main window is painted, or stays:
//
//     start_bench PROGRAM_FOLDER PRIVATE_FOLDER [stay]

#include "first_paint.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/services/program_info.h"
#include "platform/system/clock.h"
#include "platform/system/file_system.h"
#include "platform/system/host_files.h"
#include "platform/system/instance_lock.h"
#include "platform/system/locale.h"
#include "platform/system/path_finder.h"
#include "platform/system/process.h"
#include "platform/system/settings_file.h"
#include "program.h"

#include <iostream>

using namespace halvenmoor;

int main(int count, char** arguments) {
    if (count < 3) {
        std::cerr << "usage: start_bench PROGRAM_FOLDER PRIVATE_FOLDER [stay]\n";
        return 2;
    }
    system::PrepareProcess();
    const system::SystemLocale locale = system::SystemLocale::OfUser();
    const auto finder = system::MakePathFinder(locale.CodePage());
    system::DiskFileSystem fileSystem(*finder);
    system::DiskHostFiles hostFiles(*finder);
    system::SystemClock clock;
    system::SettingsFile settings(arguments[2]);
    const auto instanceLock = system::MakeInstanceLock(arguments[2]);
    qt::QtPlatform qt(arguments[0], locale, hostFiles);
    const FirstPaint firstPaint(count > 3);
    qt::QtProgramInfo programInfo(*instanceLock, arguments[1]);
    Program program({fileSystem, hostFiles, programInfo, clock, settings, qt.messages, qt.fileDialogs,
                     qt.browser, qt.theme, locale},
                    qt.toolkit);
    program.Start();
    qt.toolkit.Run(program.Desktop());
    return 1;
}
