#pragma once

#include "batch/step.h"
#include "platform/headless/headless_platform.h"
#include "program.h"

#include <string>

namespace halvenmoor {

/// What came of a step.
struct StepResult {
    enum class Kind { Done, Incomplete, Failed };

    Kind kind = Kind::Done;
    /// For one that is not done: what is known of it, such as what was written; may be empty.
    std::string note;
};

/// Plays steps in a program without windows, and prints what they ask for to standard output.
class StepPlayer {
public:
    /// The program has been started on the platform. Both outlive the player.
    StepPlayer(Program& program, headless::HeadlessPlatform& platform)
        : program_(program), platform_(platform) {}

    StepResult Play(const Step& step);

private:
    frmMain& Window() { return program_.MainForm(); }
    forms::ListBox& List(int number);
    std::string TargetPath(const std::string& path) const;
    std::size_t SortedFiles();

    StepResult Move(int target, const std::string& name);
    StepResult Export(int mode, const std::string& path);
    StepResult AfterExport(std::size_t sortedFiles);
    StepResult Import(int source);
    StepResult PrintLists();
    StepResult PrintResults();
    StepResult PrintResultsAsJson();

    Program& program_;
    headless::HeadlessPlatform& platform_;
};

}  // namespace halvenmoor
