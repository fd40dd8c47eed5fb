// Plays a journey over the real files of a program folder, with the real windows' logic and no window:
//
//     journey PROGRAM_FOLDER < steps
//
// One step a line (see StepPlayer::Play). For each it prints the step's payload, if it has one, then "ok" or
// "refused". The stored options live in memory and start in demonstration mode; waiting takes no time.

#include "batch/user_actions.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/list_actions.h"
#include "platform/posix/file_system.h"
#include "platform/posix/host_files.h"
#include "platform/posix/locale.h"
#include "platform/posix/path_finder.h"
#include "platform/posix/process.h"
#include "program.h"

#include <cstdio>
#include <iostream>
#include <optional>
#include <string>

using namespace halvenmoor;

namespace {

enum class StepResult { Ok, Refused, NotUnderstood };

StepResult OkIf(bool done) {
    return done ? StepResult::Ok : StepResult::Refused;
}

/// The real disk, with everything else in memory.
struct StepPlatform : headless::HeadlessPlatform {
    explicit StepPlatform(std::string programFolder)
        : HeadlessPlatform(std::move(programFolder), [](const std::string&) {}) {}

    platform::Platform Services() { return With(fileSystem, hostFiles, userLocale); }

    posix::SystemLocale userLocale = posix::SystemLocale::FromEnvironment();
    posix::PathFinder finder{userLocale.CodePage()};
    posix::DiskFileSystem fileSystem{finder};
    posix::DiskHostFiles hostFiles{finder};
};

class StepPlayer {
public:
    explicit StepPlayer(const std::string& programFolder)
        : programFolder_(programFolder),
          platform_(programFolder),
          program_(platform_.Services(), platform_.toolkit) {
        program_.Start();
    }

    StepResult Play(const std::string& step) {
        const auto [word, rest] = FirstWord(step);
        if (word == "demo") return Set(Window().CheckDemoMode, rest);
        if (word == "language") return OkIf(UserChoosesLanguage(Window(), rest));
        if (word == "auto") return SetAuto(rest);
        if (word == "classify") return OkIf(Window().ButtonClassifyFiles.UserPress());
        if (word == "move") return Move(rest);
        if (word == "reload") return OkIf(Window().ButtonReloadFiles.UserPress());
        if (word == "save-results") return Set(Window().CheckSaveResults, rest);
        if (word == "export") return Export(rest);
        if (word == "rename") return Rename(rest);
        if (word == "import") return Import(rest);
        if (word == "lists") return PrintLists();
        if (word == "results") return PrintResults();
        return StepResult::NotUnderstood;
    }

private:
    struct Words {
        std::string first;
        std::string rest;
    };

    static Words FirstWord(const std::string& text) {
        const std::size_t blank = text.find(' ');
        if (blank == std::string::npos) return {text, ""};
        return {text.substr(0, blank), text.substr(blank + 1)};
    }

    frmMain& Window() { return program_.MainForm(); }
    forms::ListBox& List(int number) { return number == 0 ? Window().MainList : Window().TypeList[number]; }

    static StepResult Set(forms::CheckBox& box, const std::string& wanted) {
        if (wanted != "on" && wanted != "off") return StepResult::NotUnderstood;
        return OkIf(box.Value() == (wanted == "on") || box.UserPress());
    }

    static std::optional<int> Number(const std::string& digit, int lowest) {
        const bool isType = digit.size() == 1 && digit[0] >= '0' + lowest && digit[0] <= '0' + kLastType;
        return isType ? std::optional(digit[0] - '0') : std::nullopt;
    }

    StepResult SetAuto(const std::string& words) {
        const auto [digit, wanted] = FirstWord(words);
        const auto type = Number(digit, kFirstType);
        return type ? Set(Window().CheckAuto[*type], wanted) : StepResult::NotUnderstood;
    }

    StepResult Move(const std::string& words) {
        const auto [digit, name] = FirstWord(words);
        const auto target = Number(digit, 0);
        if (!target) return StepResult::NotUnderstood;
        for (int number = 0; number <= kLastType; ++number) {
            if (headless::IndexOf(List(number), name) < 0) continue;
            return OkIf(headless::Select(List(number), {name}) &&
                        headless::Drag(List(number), List(*target)));
        }
        return StepResult::Refused;
    }

    /// An export that reached its end shows its results.
    StepResult Export(const std::string& words) {
        const auto [mode, path] = FirstWord(words);
        if (mode == "replace" && path.empty())
            return OkIf(UserExports(platform_.toolkit, platform_.fileDialogs, Window(), 1));
        if (path.empty() || (mode != "save-as" && mode != "append")) return StepResult::NotUnderstood;
        return OkIf(UserExports(platform_.toolkit, platform_.fileDialogs, Window(), mode == "save-as" ? 2 : 3,
                                path.front() == '/' ? path : programFolder_ + "/" + path));
    }

    /// The old and the new name, with a tab between them.
    StepResult Rename(const std::string& names) {
        const std::size_t tab = names.find('\t');
        if (tab == std::string::npos) return StepResult::NotUnderstood;
        return OkIf(UserRenames(platform_.toolkit, Window(), names.substr(0, tab), names.substr(tab + 1)));
    }

    /// Also ok when the import ended as incomplete.
    StepResult Import(const std::string& source) {
        if (source != "ov2" && source != "txt") return StepResult::NotUnderstood;
        const std::string picture = UserImports(platform_.toolkit, Window(), source == "ov2" ? 1 : 2);
        return OkIf(picture == "PictureFinished" || picture == "PictureIncomplete");
    }

    StepResult PrintLists() {
        for (int number = 0; number <= kLastType; ++number) {
            for (const std::string& name : headless::ItemsOf(List(number)))
                std::cout << number << '\t' << name << '\n';
        }
        return StepResult::Ok;
    }

    StepResult PrintResults() {
        const modExport& exports = program_.Exports();
        for (std::size_t type = kFirstType; type <= kLastType; ++type) {
            std::cout << exports.FilesProcessed[type] << '\t' << exports.CamerasExported[type] << '\t'
                      << exports.CamerasSkipped[type] << '\n';
        }
        return StepResult::Ok;
    }

    std::string programFolder_;
    StepPlatform platform_;
    Program program_;
};

}  // namespace

int main(int argc, char** argv) {
    posix::PrepareProcess();
    if (argc != 2) {
        std::cerr << "usage: journey PROGRAM_FOLDER < steps\n";
        return 2;
    }
    StepPlayer player(argv[1]);
    for (std::string step; std::getline(std::cin, step);) {
        const StepResult result = player.Play(step);
        if (result == StepResult::NotUnderstood) {
            std::cerr << "journey: not understood: " << step << '\n';
            return 2;
        }
        std::cout << (result == StepResult::Ok ? "ok" : "refused") << std::endl;
    }
    return 0;
}
