// Every single call to the disk fails once, and from each one on all calls fail: whole journeys are played,
// and what is left afterwards has to be consistent and of use. What cannot fail by its contract is left out:
// clock, yields, forms, stored options.

#include "tests/support/journeys.h"

#include <iostream>

namespace halvenmoor {
namespace {

const Failure kFault(failure::FileAccess, "Device I/O error");

class FaultSweep : public testing::TestWithParam<Journey> {
protected:
    static void Play(JourneyProgram& program) {
        try {
            GetParam().play(program);
        } catch (...) {
            ADD_FAILURE() << "a failure escaped the dispatch of events";
        }
    }

    void ExpectConsistent(JourneyProgram& program) {
        ExpectConsistentProgram(program, GetParam());
        ExpectConsistentMessages(program);
        GetParam().expectConsistent(program, whole);
    }

    /// The user comes back once the disk is well. A program that has ended is started again, and so is one
    /// that could not list its languages: they are listed at the start only.
    void ExpectWorksAgain(JourneyProgram& program) {
        program.files.FailCall(0, kFault);
        program.RestoreDisk();
        const bool lacksLanguages = program.Window().LanguageList.ListCount() < 2;
        if (GetParam().isStart || program.desktop.Ended() || lacksLanguages) {
            JourneyProgram next;
            next.settings = program.settings;
            ExpectWorks(next);
            return;
        }
        program.Reload();
        Play(program);
        EXPECT_EQ(Outcome(program), whole);
    }

    void ExpectWorks(JourneyProgram& program) {
        if (!GetParam().isStart) program.Start();
        Play(program);
        EXPECT_EQ(Outcome(program), whole);
        ExpectConsistent(program);
    }

    /// Call 0 is none. Returns how many calls there were.
    int PlayWithFault(int call, bool isLasting) {
        JourneyProgram program;
        if (!GetParam().isStart) program.Start();
        program.faultLasts = isLasting;
        isLasting ? program.files.FailFromCall(call, kFault) : program.files.FailCall(call, kFault);
        Play(program);
        const int calls = program.files.Calls();
        EXPECT_GE(calls, call) << "the fault was never met";
        ExpectConsistent(program);
        ExpectWorksAgain(program);
        return calls;
    }

    const Outcome whole = GetParam().Undisturbed();
};

TEST_P(FaultSweep, EveryCallFails) {
    JourneyProgram undisturbed;
    EXPECT_EQ(whole.files != undisturbed.installed, !GetParam().targets.empty()) << "it does its work";
    ExpectWorks(undisturbed);
    const int calls = PlayWithFault(0, false);
    for (const bool isLasting : {false, true}) {
        for (int call = 1; call <= calls && !HasFailure(); ++call) {
            SCOPED_TRACE(std::to_string(call) + (isLasting ? " and all behind it fail" : " fails"));
            PlayWithFault(call, isLasting);
        }
    }
    std::cout << GetParam().name << ": " << calls << " calls, each failed twice\n";
}

INSTANTIATE_TEST_SUITE_P(Journeys, FaultSweep,
                         testing::Values(ExportJourney(1), ExportJourney(2), ExportJourney(3),
                                         ImportJourney(ImportProgram::kOv2),
                                         ImportJourney(ImportProgram::kTxt), RenameJourney(), StartJourney()),
                         [](const auto& journey) { return journey.param.name; });

}  // namespace
}  // namespace halvenmoor
