#include "platform/qt/qt_platform.h"
#include "platform/qt/services/program_info.h"
#include "platform/system/clock.h"
#include "platform/system/file_system.h"
#include "platform/system/host_files.h"
#include "platform/system/instance_lock.h"
#include "platform/system/locale.h"
#include "platform/system/path_finder.h"
#include "platform/system/process.h"
#include "platform/system/program_folder.h"
#include "platform/system/settings_file.h"
#include "program.h"

#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

using namespace halvenmoor;

namespace {

/// Nothing if there is no folder to work in; the user knows why then.
std::optional<std::string> FindProgramFolder(platform::MessageBox& messages) {
    try {
        return system::ProgramFolder();
    } catch (const Failure& failure) {
        std::cerr << "halvenmoor: " << failure.what() << '\n';
        messages.Show("Run-time error " + std::to_string(failure.Number()) + ":\r\n\r\n" + failure.what(),
                      "Halvenmoor");
        return std::nullopt;
    }
}

}  // namespace

// The program takes no command line.
int main(int, char** arguments) {
    system::PrepareProcess();
    const system::SystemLocale locale = system::SystemLocale::OfUser();
    const auto finder = system::MakePathFinder(locale.CodePage());
    system::DiskFileSystem fileSystem(*finder);
    system::DiskHostFiles hostFiles(*finder);
    system::SystemClock clock;
    system::SettingsFile settings;
    const auto instanceLock = system::MakeInstanceLock();
    qt::QtPlatform qt(arguments[0], locale, hostFiles);
    const std::optional<std::string> programFolder = FindProgramFolder(qt.messages);
    if (!programFolder) return EXIT_FAILURE;
    qt::QtProgramInfo programInfo(*instanceLock, *programFolder);
    Program program({fileSystem, hostFiles, programInfo, clock, settings, qt.messages, qt.fileDialogs,
                     qt.browser, qt.theme, locale},
                    qt.toolkit);
    program.Start();
    qt.toolkit.Run(program.Desktop());
    return 0;
}
