// halvenmoor-batch for developers, tests and measurements, with other habits:
//
//     journey PROGRAM_FOLDER < steps
//
// It starts in demonstration mode, plays each line of standard input as soon as it is read, and goes on after
// a step that was refused. For each step it prints what the step asks for, then "ok" or "refused".

#include "batch/step_player.h"
#include "platform/system/file_system.h"
#include "platform/system/host_files.h"
#include "platform/system/locale.h"
#include "platform/system/path_finder.h"
#include "platform/system/process.h"

#include <iostream>
#include <optional>
#include <string>
#include <vector>

using namespace halvenmoor;

int main(int argc, char** argv) {
    system::PrepareProcess();
    const std::vector<std::string> arguments = system::Arguments(argc, argv);
    if (arguments.size() != 1) {
        std::cerr << "usage: journey PROGRAM_FOLDER < steps\n";
        return 2;
    }
    const system::SystemLocale locale = system::SystemLocale::OfUser();
    const auto finder = system::MakePathFinder(locale.CodePage());
    system::DiskFileSystem fileSystem(*finder);
    system::DiskHostFiles hostFiles(*finder);
    headless::HeadlessPlatform platform(arguments[0], [](const std::string&) {});
    Program program(platform.With(fileSystem, hostFiles, locale), platform.toolkit);
    program.Start();
    StepPlayer player(program, platform);
    for (std::string text; std::getline(std::cin, text);) {
        const std::optional<Step> step = ParseStep(text);
        if (!step) {
            std::cerr << "journey: not understood: " << text << '\n';
            return 2;
        }
        const bool hasFailed = player.Play(*step).kind == StepResult::Kind::Failed;
        std::cout << (hasFailed ? "refused" : "ok") << std::endl;
    }
    return 0;
}
