// halvenmoor-batch: the program without a window. packaging/halvenmoor-batch.1 says what it does.

#include "base/failure.h"
#include "batch/step_player.h"
#include "platform/system/file_system.h"
#include "platform/system/host_files.h"
#include "platform/system/locale.h"
#include "platform/system/path_finder.h"
#include "platform/system/process.h"
#include "platform/system/program_folder.h"
#include "platform/system/standard_path.h"

#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

using namespace halvenmoor;

namespace {

constexpr int kFailed = 1;
constexpr int kNothingDone = 2;

using Lines = std::vector<std::string>;

void Tell(const std::string& line) {
    std::cerr << "halvenmoor-batch: " << line << '\n';
}

Lines ReadStandardInput() {
    Lines lines;
    for (std::string line; std::getline(std::cin, line);) {
        if (line.ends_with('\r')) line.pop_back();  // of an editor on Windows
        lines.push_back(line);
    }
    return lines;
}

/// Nothing, and a line about it, if one of the texts is no step.
std::optional<std::vector<Step>> ParseSteps(const Lines& texts) {
    std::vector<Step> steps;
    for (const std::string& text : texts) {
        const std::optional<Step> step = ParseStep(text);
        if (!step) {
            Tell("not understood, nothing was done: " + text);
            Tell("usage: halvenmoor-batch [--folder FOLDER] [STEP]...");
            return std::nullopt;
        }
        steps.push_back(*step);
    }
    return steps;
}

/// The folder to work in, as the file system has it, so that an import knows the folders above it. Nothing,
/// and a line about it, if it is no program folder.
std::optional<std::string> FindProgramFolder(const std::optional<std::string>& wanted,
                                             platform::FileSystem& fileSystem) {
    try {
        const std::string folder = wanted ? *wanted : system::ProgramFolder();
        if (fileSystem.CreateFileSystemObject()->FileExists(folder + "/Settings.ini"))
            return system::WithoutLinks(folder);
        Tell("no program folder: " + folder);
    } catch (const Failure& failure) {
        Tell(std::string("no program folder: ") + failure.what());
    }
    return std::nullopt;
}

/// Plays the steps until one is not done.
int PlaySteps(StepPlayer& player, const std::vector<Step>& steps, const Lines& texts) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const StepResult result = player.Play(steps[i]);
        if (result.kind == StepResult::Kind::Done) continue;
        const char* word = result.kind == StepResult::Kind::Incomplete ? ": incomplete" : ": failed";
        Tell(texts[i] + word + (result.note.empty() ? "" : ", " + result.note));
        return kFailed;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    system::PrepareProcess();
    Lines texts = system::Arguments(argc, argv);
    std::optional<std::string> wantedFolder;
    if (texts.size() >= 2 && texts[0] == "--folder") {
        wantedFolder = texts[1];
        texts.erase(texts.begin(), texts.begin() + 2);
    }
    if (texts.empty()) texts = ReadStandardInput();
    if (std::ferror(stdin) != 0) {
        Tell("standard input cannot be read, nothing was done");
        return kNothingDone;
    }
    const auto steps = ParseSteps(texts);
    if (!steps) return kNothingDone;

    const system::SystemLocale locale = system::SystemLocale::OfUser();
    const auto finder = system::MakePathFinder(locale.CodePage());
    system::DiskFileSystem fileSystem(*finder);
    system::DiskHostFiles hostFiles(*finder);
    const std::optional<std::string> folder = FindProgramFolder(wantedFolder, fileSystem);
    if (!folder) return kNothingDone;
    headless::HeadlessPlatform platform(*folder, Tell);
    Program program(platform.With(fileSystem, hostFiles, locale), platform.toolkit);
    program.Core().WriteSetting("DemoMode", "0");
    program.Start();
    StepPlayer player(program, platform);
    return PlaySteps(player, *steps, texts);
}
