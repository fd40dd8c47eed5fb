#include "batch/step_player.h"

#include "batch/user_actions.h"
#include "catalogue/frmMain.h"
#include "core/camera_files.h"
#include "platform/headless/list_actions.h"

#include <cstdint>
#include <filesystem>
#include <iostream>
#include <numeric>
#include <utility>

namespace halvenmoor {

namespace {

StepResult Failed(std::string note) {
    return {StepResult::Kind::Failed, std::move(note)};
}

StepResult Incomplete(std::string note) {
    return {StepResult::Kind::Incomplete, std::move(note)};
}

StepResult DoneIf(bool done) {
    return done ? StepResult{} : Failed("");
}

StepResult Set(forms::CheckBox& box, bool on) {
    return DoneIf(box.Value() == on || box.UserPress());
}

/// Whatever was printed has reached its reader.
StepResult Printed() {
    std::cout.flush();
    return std::cout ? StepResult{} : Failed("standard output cannot be written");
}

std::int64_t Total(const TypeTable<std::int32_t>& counters) {
    return std::accumulate(counters.begin(), counters.end(), std::int64_t{0});
}

std::string JsonCounters(std::int64_t files, std::int64_t exported, std::int64_t skipped) {
    return "\"files\":" + std::to_string(files) + ",\"exported\":" + std::to_string(exported) +
           ",\"skipped\":" + std::to_string(skipped);
}

}  // namespace

StepResult StepPlayer::Play(const Step& step) {
    switch (step.kind) {
        case Step::Kind::Demo:
            return Set(Window().CheckDemoMode, step.on);
        case Step::Kind::SaveResults:
            return Set(Window().CheckSaveResults, step.on);
        case Step::Kind::Auto:
            return Set(Window().CheckAuto[step.number], step.on);
        case Step::Kind::Language:
            return DoneIf(UserChoosesLanguage(Window(), step.name));
        case Step::Kind::Classify:
            return DoneIf(Window().ButtonClassifyFiles.UserPress());
        case Step::Kind::Reload:
            return DoneIf(Window().ButtonReloadFiles.UserPress());
        case Step::Kind::Move:
            return Move(step.number, step.name);
        case Step::Kind::Rename:
            return DoneIf(UserRenames(platform_.toolkit, Window(), step.name, step.newName));
        case Step::Kind::Export:
            return Export(step.number, step.name);
        case Step::Kind::Import:
            return Import(step.number);
        case Step::Kind::Lists:
            return PrintLists();
        case Step::Kind::Results:
            return PrintResults();
        case Step::Kind::ResultsJson:
            return PrintResultsAsJson();
    }
    return Failed("");
}

forms::ListBox& StepPlayer::List(int number) {
    return number == 0 ? Window().MainList : Window().TypeList[number];
}

StepResult StepPlayer::Move(int target, const std::string& name) {
    for (int number = 0; number <= kLastType; ++number) {
        forms::ListBox& list = List(number);
        if (headless::IndexOf(list, name) < 0) continue;
        return DoneIf(headless::Select(list, {name}) && headless::Drag(list, List(target)));
    }
    return Failed("no list has this entry");
}

/// The entries that have a type.
std::size_t StepPlayer::SortedFiles() {
    std::size_t count = 0;
    for (const forms::ListBox& list : Window().TypeList) count += static_cast<std::size_t>(list.ListCount());
    return count;
}

/// A relative path starts at the program folder.
std::string StepPlayer::TargetPath(const std::string& path) const {
    if (path.empty() || std::filesystem::path(path).is_absolute()) return path;
    return platform_.programInfo.ProgramFolder() + "/" + path;
}

/// An export that reached its end shows its results. Its own window opens as soon as it begins.
StepResult StepPlayer::Export(int mode, const std::string& path) {
    const std::size_t sortedFiles = SortedFiles();
    const int dialogsBefore = platform_.toolkit.OpenedDialogs();
    if (UserExports(platform_.toolkit, platform_.fileDialogs, Window(), mode, TargetPath(path)))
        return AfterExport(sortedFiles);
    const modExport& exports = program_.Exports();
    if (platform_.toolkit.OpenedDialogs() > dialogsBefore) {
        return Failed("at most " + std::to_string(Total(exports.CamerasExported)) + " camera(s) of " +
                      std::to_string(Total(exports.FilesProcessed)) + " file(s) were written");
    }
    const bool anyFile = sortedFiles > 0 && !exports.ExportFileTable.empty();
    return Failed(anyFile ? "nothing was written" : "no file to export, nothing was written");
}

/// What an export left out although its windows show that it reached its end.
StepResult StepPlayer::AfterExport(std::size_t sortedFiles) {
    const modExport& exports = program_.Exports();
    const std::size_t missing = sortedFiles - exports.ExportFileTable.size();
    if (missing > 0)
        return Incomplete(std::to_string(missing) + " file(s) have gone, all others were written");
    if (exports.ResultsFileFailed)
        return Incomplete("all cameras were written, but not " + program_.Core().ResultsFile());
    return {};
}

/// Ticks alone do not tell that an import left nothing out.
StepResult StepPlayer::Import(int source) {
    std::string leftOut;
    const std::string picture =
        UserImports(platform_.toolkit, Window(), source, [&leftOut](const frmImport& dialog) {
            const bool isFinished = dialog.PictureFinished.Visible();
            leftOut = (isFinished ? dialog.PictureFinished : dialog.PictureIncomplete).ToolTip();
        });
    if (picture.empty()) return Failed("not in demonstration mode, nothing was changed");
    if (picture == "PictureNoDelete" || picture == "PictureDelete")
        return Failed("the camera folder is missing or cannot be emptied, nothing was imported");

    const modMain& core = program_.Core();
    const std::size_t made = FindCameraFiles(core.Services().hostFiles, core.CameraFolder()).size();
    if (picture == "PictureFinished" && leftOut.empty() && made > 0) return {};
    return Incomplete((leftOut.empty() ? "" : leftOut + ", ") + core.CameraFolder() + " has " +
                      std::to_string(made) + " camera file(s) now");
}

StepResult StepPlayer::PrintLists() {
    for (int number = 0; number <= kLastType; ++number) {
        for (const std::string& name : headless::ItemsOf(List(number)))
            std::cout << number << '\t' << name << '\n';
    }
    return Printed();
}

StepResult StepPlayer::PrintResults() {
    const modExport& exports = program_.Exports();
    for (std::size_t type = kFirstType; type <= kLastType; ++type) {
        std::cout << exports.FilesProcessed[type] << '\t' << exports.CamerasExported[type] << '\t'
                  << exports.CamerasSkipped[type] << '\n';
    }
    return Printed();
}

StepResult StepPlayer::PrintResultsAsJson() {
    const modExport& exports = program_.Exports();
    std::string types;
    for (std::size_t type = kFirstType; type <= kLastType; ++type) {
        types += (types.empty() ? "" : ",");
        types += "{\"number\":" + std::to_string(type) + ",\"name\":\"" + std::string(kTypeWords[type]) +
                 "\"," +
                 JsonCounters(exports.FilesProcessed[type], exports.CamerasExported[type],
                              exports.CamerasSkipped[type]) +
                 "}";
    }
    std::cout << "{\"types\":[" << types << "],\"totals\":{"
              << JsonCounters(Total(exports.FilesProcessed), Total(exports.CamerasExported),
                              Total(exports.CamerasSkipped))
              << "}}\n";
    return Printed();
}

}  // namespace halvenmoor
