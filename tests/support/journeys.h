#pragma once

#include "tests/support/test_program.h"

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace halvenmoor {

/// The bytes of all files by their paths.
using Disk = std::map<std::string, std::string>;

/// The program in memory with files for every journey, in normal mode and in German. Not yet started.
struct JourneyProgram : TestProgram {
    JourneyProgram() {
        SetOption("DemoMode", "0");
        SetOption("Language", "Deutsch");
        SetSettings(
            "[Type1]\nfixed*\n[Type5]\nmob*\n[Mobile]\nmobile\n[Units]\nkmh\n"
            "[Settings]\nSourceStructure=2\n");
        AddLanguage("deutsch", "ButtonExitApplication=beenden\n");
        AddCameraFile("fixed_50",
                      "1.5, 52.5, \"a\", 1, 90\r\n2.5, 52.5, \"mobile b\"\r\n200.0, 52.5, \"c\"\r\n");
        AddCameraFile("mobil_30kmh", "3.5, 53.5, \"d\"\r\n");
        AddCameraFile("rest", "4.5, 54.5, \"e\"\r\n");
        memory.Put("/p/txt/old.txt", OldTarget());
        memory.Put("/p/import/ov2/one.ov2", kPoint);
        memory.Put("/p/import/ov2/two.ov2", kPoint + kPoint);
        memory.Put("/p/import/txt/one.txt", "1.5,52.5,1,50,1,90\n2.5,52.5,2,60\n");
        memory.Put("/p/import/txt/two.txt", "3.5,53.5,1,50\n");
        installed = memory.Everything();
    }

    void RestoreDisk() {
        for (const auto& [path, bytes] : memory.Everything()) memory.Remove(path);
        for (const auto& [path, bytes] : installed) memory.Put(path, bytes);
    }
    /// The user has all entries unclassified again, as after a start.
    void Reload() {
        Window().CheckAuto[1].UserPress();
        Window().CheckAuto[1].UserPress();
    }

    static std::string OldTarget() { return kHeader + "9.5,59.5,1,50,0,0\r\n"; }

    Disk installed;
    /// The disk stays broken: what was begun cannot be taken away again.
    bool faultLasts = false;
    /// What the user saw at the end, as the picture of an import.
    std::string shown;
};

/// What there is when a journey is over.
struct Outcome {
    explicit Outcome(JourneyProgram& program);

    Disk files;
    std::vector<Strings> lists;
    /// The counters, whether there are results, and what the user saw.
    std::string seen;

    bool operator==(const Outcome&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Outcome& outcome);

/// Something that a user does from beginning to end, pressing on whatever happens.
struct Journey {
    std::string name;
    std::function<void(JourneyProgram&)> play = {};
    /// Checks what it left when something went wrong, against all that it should have left.
    std::function<void(JourneyProgram&, const Outcome& whole)> expectConsistent = {};
    /// Files, or folders with a '/' at the end, that it may change.
    std::vector<std::string> targets = {};
    bool isStart = false;

    /// What it leaves when nothing goes wrong.
    Outcome Undisturbed() const;
};

inline std::ostream& operator<<(std::ostream& out, const Journey& journey) {
    return out << journey.name;
}

// Checks that any journey has to pass at its end, whatever happened on the way.

/// Buttons, lists and windows agree, and every file is there that the journey is not about.
void ExpectConsistentProgram(JourneyProgram& program, const Journey& journey);
/// The program ends by itself only with a message about the file system.
void ExpectConsistentMessages(const JourneyProgram& program);
/// The part of it that shows in the window: each entry stands in one list, the buttons follow their rules.
void ExpectConsistentWindow(frmMain& window);

/// Classify and export, by mode.
Journey ExportJourney(int mode);
/// By ImportProgram::kOv2 or kTxt.
Journey ImportJourney(int source);
Journey RenameJourney();
Journey StartJourney();

}  // namespace halvenmoor
