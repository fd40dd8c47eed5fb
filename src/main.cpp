#include "platform/posix/clock.h"
#include "platform/posix/file_system.h"
#include "platform/posix/host_files.h"
#include "platform/posix/instance_lock.h"
#include "platform/posix/locale.h"
#include "platform/posix/path_finder.h"
#include "platform/posix/process.h"
#include "platform/posix/program_folder.h"
#include "platform/posix/settings_file.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/services/program_info.h"
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
        return posix::ProgramFolder();
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
    posix::PrepareProcess();
    const posix::SystemLocale locale = posix::SystemLocale::FromEnvironment();
    posix::PathFinder finder(locale.CodePage());
    posix::DiskFileSystem fileSystem(finder);
    posix::DiskHostFiles hostFiles(finder);
    posix::SystemClock clock;
    posix::SettingsFile settings;
    posix::SystemInstanceLock instanceLock;
    qt::QtPlatform qt(arguments[0], locale, hostFiles);
    const std::optional<std::string> programFolder = FindProgramFolder(qt.messages);
    if (!programFolder) return EXIT_FAILURE;
    qt::QtProgramInfo programInfo(instanceLock, *programFolder);
    Program program({fileSystem, hostFiles, programInfo, clock, settings, qt.messages, qt.fileDialogs,
                     qt.browser, qt.theme, locale},
                    qt.toolkit);
    program.Start();
    qt.toolkit.Run(program.Desktop());
    return 0;
}
