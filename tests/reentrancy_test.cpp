// At each yield that an export or an import gives the interface, the user or the system does something:
// presses any control or key of any window, closes, drags, starts the program a second time, shuts down.
// Nothing may start over, and nothing may be lost.

#include "tests/support/journeys.h"

#include <stdexcept>

namespace halvenmoor {
namespace {

void UseControl(forms::Control& control) {
    if (auto* const button = dynamic_cast<forms::CommandButton*>(&control)) {
        button->UserPress();
    } else if (auto* const box = dynamic_cast<forms::CheckBox*>(&control)) {
        box->UserPress();
    } else if (auto* const option = dynamic_cast<forms::OptionButton*>(&control)) {
        option->UserPress();
    } else if (auto* const combo = dynamic_cast<forms::ComboBox*>(&control)) {
        combo->UserTyped("x");
    } else if (auto* const list = dynamic_cast<forms::ListBox*>(&control)) {
        if (list->ListCount() > 0 && list->UserSelect({0}, 0)) list->UserDoubleClick();
    } else {
        control.UserFocused();
    }
}

/// What an interruption does to the journey that is running.
enum class Effect { None, StopsImport, Breaks, EndsProgram };

/// Something that happens at a yield, with the windows that are open then.
struct Interruption {
    std::string name;
    std::function<void(JourneyProgram&)> run;
    Effect effect = Effect::None;
};

void AddControls(std::vector<Interruption>& interruptions, const forms::Form& form,
                 const std::function<forms::Form*(JourneyProgram&)>& find) {
    for (std::size_t i = 0; i < form.Controls().size(); ++i) {
        const std::string name = form.AtDesign().name + " " + form.Controls()[i]->Name();
        const auto run = [find, i](JourneyProgram& program) {
            forms::Form* const found = find(program);
            if (found != nullptr && i < found->Controls().size()) UseControl(*found->Controls()[i]);
        };
        interruptions.push_back(
            {name, run, name == "frmImport ButtonCancel" ? Effect::StopsImport : Effect::None});
    }
}

void AddKeys(std::vector<Interruption>& interruptions, const forms::Form& form,
             const std::function<forms::Form*(JourneyProgram&)>& find) {
    for (std::size_t i = 0; i < form.Shortcuts().size(); ++i) {
        const auto run = [find, i](JourneyProgram& program) {
            forms::Form* const found = find(program);
            if (found == nullptr || i >= found->Shortcuts().size()) return;
            const forms::Shortcut& shortcut = found->Shortcuts()[i];
            if (shortcut.control != nullptr) UseControl(*shortcut.control);
            found->UserShortcut(shortcut.key);
        };
        interruptions.push_back({form.AtDesign().name + " " + form.Shortcuts()[i].key, run});
    }
}

forms::Form* Dialog(JourneyProgram& program) {
    return program.toolkit.OpenDialog();
}

/// An export or an import is going on. Before that its dialog, or the main window, takes what the user does.
bool IsBusy(JourneyProgram& program) {
    if (Dialog(program) == nullptr || !Dialog(program)->IsOpen()) return false;
    const auto* import = dynamic_cast<frmImport*>(Dialog(program));
    return import == nullptr || !import->ButtonStart.Enabled();
}

void DragFirst(JourneyProgram& program) {
    for (int number = 0; number <= kLastType; ++number) {
        if (program.List(number).ListCount() == 0) continue;
        program.List(number).UserSelect({0}, 0);
        headless::Drag(program.List(number), program.List((number + 1) % (kLastType + 1)));
    }
}

std::vector<Interruption> InterruptionsOf(const Journey& journey) {
    std::vector<Interruption> interruptions{
        {"dialog close", [](JourneyProgram& program) { Dialog(program) && Dialog(program)->UserClose(); },
         Effect::StopsImport},
        {"dialog Escape", [](JourneyProgram& program) { Dialog(program) && Dialog(program)->UserEscape(); }},
        {"dialog Enter",
         [](JourneyProgram& program) { Dialog(program) && Dialog(program)->UserKeyPress(13); }},
        {"main close", [](JourneyProgram& program) { program.Window().UserClose(); }},
        {"main Escape", [](JourneyProgram& program) { program.Window().UserEscape(); }},
        {"drag", DragFirst},
        {"language", [](JourneyProgram& program) { program.Window().LanguageList.UserChoose(1); }},
        {"failure", [](JourneyProgram&) { throw std::runtime_error("yield"); }, Effect::Breaks},
        {"shutdown", [](JourneyProgram& program) { program.desktop.CloseAll(); }, Effect::EndsProgram},
    };
    JourneyProgram program;
    program.Start();
    const auto main = [](JourneyProgram& running) { return &running.Window(); };
    AddControls(interruptions, program.Window(), main);
    AddKeys(interruptions, program.Window(), main);
    program.toolkit.OnYield = [&, isAdded = false]() mutable {
        if (Dialog(program) == nullptr || isAdded) return;
        AddControls(interruptions, *Dialog(program), Dialog);
        AddKeys(interruptions, *Dialog(program), Dialog);
        isAdded = true;
    };
    journey.play(program);
    return interruptions;
}

class Reentrancy : public testing::TestWithParam<Journey> {
protected:
    /// Plays the journey with the interruption at one yield; 1 is the first. False when there are no so many
    /// yields.
    bool InterruptAtYield(const Interruption& interruption, int yield) {
        JourneyProgram program;
        program.Start();
        program.memory.ForgetCalls();
        bool hasHappened = false;
        bool wasBusy = false;
        program.toolkit.OnYield = [&, left = yield]() mutable {
            if (--left != 0) return;
            hasHappened = true;
            wasBusy = IsBusy(program);
            interruption.run(program);
            EXPECT_TRUE(IsBusy(program) || !wasBusy || interruption.effect == Effect::EndsProgram)
                << "the dialog has closed";
        };
        GetParam().play(program);
        program.toolkit.OnYield = nullptr;
        if (!hasHappened) return false;
        wasBusy ? ExpectUndisturbed(program, interruption) : ExpectNothingLost(program);
        ExpectWorksAgain(program);
        return true;
    }

    /// Only a stop, a failure and the end of the system come through.
    void ExpectUndisturbed(JourneyProgram& program, const Interruption& interruption) {
        ExpectConsistentProgram(program, GetParam());
        EXPECT_EQ(program.desktop.Ended(), interruption.effect == Effect::EndsProgram);
        if (interruption.effect == Effect::EndsProgram) return;
        ExpectConsistentMessages(program);
        GetParam().expectConsistent(program, whole);
        const bool isImport = GetParam().name.starts_with("Import");
        if (interruption.effect == Effect::Breaks || (interruption.effect == Effect::StopsImport && isImport))
            return;
        EXPECT_EQ(program.memory.Calls(), undisturbedCalls) << "something else was run";
        EXPECT_EQ(Outcome(program), whole);
    }

    /// Before the run, as at the yield behind a file dialog, the user is free to do everything.
    static void ExpectNothingLost(JourneyProgram& program) {
        Journey anything = GetParam();
        const bool isExport = anything.name.starts_with("Export");
        if (isExport) anything.targets = {"/p/txt/", "/p/demo/", "/p/Export Results.txt"};
        ExpectConsistentProgram(program, anything);
        const std::string old = program.Text("/p/txt/old.txt");
        EXPECT_TRUE(old.starts_with(JourneyProgram::OldTarget())) << old;
    }

    void ExpectWorksAgain(JourneyProgram& program) {
        program.RestoreDisk();
        if (!program.desktop.Ended()) return ExpectWorks(program);
        JourneyProgram next;
        next.settings = program.settings;
        next.Start();
        ExpectWorks(next);
    }

    void ExpectWorks(JourneyProgram& program) {
        for (forms::Control* control : program.Window().Controls()) {
            auto* const box = dynamic_cast<forms::CheckBox*>(control);
            if (box && box->Value() == (box == &program.Window().CheckDemoMode)) box->UserPress();
        }
        program.Reload();
        GetParam().play(program);
        EXPECT_EQ(Outcome(program), whole);
    }

    const Outcome whole = GetParam().Undisturbed();
    /// What the program asks of the disk when nothing comes in between.
    const Strings undisturbedCalls = [] {
        JourneyProgram program;
        program.Start();
        program.memory.ForgetCalls();
        GetParam().play(program);
        return program.memory.Calls();
    }();
};

TEST_P(Reentrancy, AnythingAtEveryYield) {
    const std::vector<Interruption> interruptions = InterruptionsOf(GetParam());
    for (const Interruption& interruption : interruptions) {
        int yield = 1;
        for (bool hasHappened = true; hasHappened && !HasFailure(); ++yield) {
            SCOPED_TRACE(interruption.name + " at yield " + std::to_string(yield));
            hasHappened = InterruptAtYield(interruption, yield);
        }
        EXPECT_GT(yield, 2) << "there are yields";
    }
}

INSTANTIATE_TEST_SUITE_P(Journeys, Reentrancy,
                         testing::Values(ExportJourney(1), ExportJourney(2), ExportJourney(3),
                                         ImportJourney(ImportProgram::kOv2),
                                         ImportJourney(ImportProgram::kTxt)),
                         [](const auto& journey) { return journey.param.name; });

}  // namespace
}  // namespace halvenmoor
