#include "tests/support/journeys.h"

namespace halvenmoor {

namespace {

/// Whether the text is made of lines of the whole, in their order.
bool IsMadeOfLinesOf(std::string_view whole, std::string_view text) {
    while (!whole.empty()) {
        const std::string_view line = whole.substr(0, std::min(whole.find('\n'), whole.size() - 1) + 1);
        if (text.starts_with(line)) text.remove_prefix(line.size());
        whole.remove_prefix(line.size());
    }
    return text.empty();
}

/// Whether the text is as much of the whole as some lines.
bool IsBegun(const std::string& whole, const std::string& text) {
    return whole.starts_with(text) && (text.empty() || text.ends_with('\n'));
}

bool IsTarget(const Journey& journey, const std::string& path) {
    return std::any_of(journey.targets.begin(), journey.targets.end(), [&](const std::string& target) {
        return path == target || (target.ends_with('/') && path.starts_with(target));
    });
}

void ExpectOtherFilesAsInstalled(const JourneyProgram& program, const Journey& journey) {
    const auto withoutTargets = [&](Disk disk) {
        std::erase_if(disk, [&](const auto& file) { return IsTarget(journey, file.first); });
        return disk;
    };
    EXPECT_EQ(withoutTargets(program.memory.Everything()), withoutTargets(program.installed));
}

std::string ExportTarget(int mode) {
    return mode == 1 ? "/p/txt/SpeedCamText.txt" : mode == 2 ? "/p/txt/new.txt" : "/p/txt/old.txt";
}

void ExpectConsistentExport(JourneyProgram& program, const Outcome& whole, int mode) {
    const std::string path = ExportTarget(mode);
    const std::string target = program.memory.Has(path) ? program.memory.Text(path) : "";
    EXPECT_TRUE(IsBegun(whole.files.at(path), target)) << target;
    EXPECT_TRUE(mode != 3 || target.starts_with(JourneyProgram::OldTarget()))
        << "what was there before stays";
    const auto lines = std::count(target.begin(), target.end(), '\n');
    const auto& counters = program.Exports().CamerasExported;
    EXPECT_EQ(std::accumulate(counters.begin(), counters.end(), 0),
              std::max(lines - (mode == 3 ? 2 : 1), std::ptrdiff_t{0}));

    const bool hasResults = program.memory.Has("/p/Export Results.txt");
    if (!program.Window().ResultsValid) {
        EXPECT_FALSE(hasResults);
        return;
    }
    EXPECT_EQ(target, whole.files.at(path));
    EXPECT_TRUE(!hasResults || IsBegun(whole.files.at("/p/Export Results.txt"), program.ResultsFile()));
    Outcome left(program);
    left.files = whole.files;  // looked at above: the results file may be missing
    EXPECT_EQ(left, whole);
}

Disk CameraFiles(const JourneyProgram& program) {
    Disk disk = program.memory.Everything();
    std::erase_if(disk, [](const auto& file) { return !file.first.starts_with("/p/asc/"); });
    return disk;
}

/// Each camera file is an old one as it was or a new one, but there are never both. Of a new one lines may be
/// missing: TXT sources lose them silently.
void ExpectConsistentImport(JourneyProgram& program, const Outcome& whole, int source) {
    const bool mustBeWhole =
        source == ImportProgram::kOv2 && (!program.faultLasts || program.shown == "PictureFinished");
    int oldFiles = 0;
    int newFiles = 0;
    for (const auto& [path, bytes] : CameraFiles(program)) {
        const auto old = program.installed.find(path);
        if (old != program.installed.end()) {
            ++oldFiles;
            EXPECT_EQ(bytes, old->second) << path;
            continue;
        }
        ++newFiles;
        ASSERT_EQ(whole.files.count(path), 1u) << path << " comes from nowhere";
        EXPECT_TRUE(IsMadeOfLinesOf(whole.files.at(path), bytes)) << path << ":\n" << bytes;
        EXPECT_TRUE(bytes == whole.files.at(path) || !mustBeWhole) << path << ":\n" << bytes;
    }
    EXPECT_TRUE(oldFiles == 0 || newFiles == 0) << "the folder was to be emptied first";
}

/// The entry is what the file is called.
void ExpectConsistentRename(JourneyProgram& program, const Outcome&) {
    const std::string entry = program.memory.Has("/p/asc/named.asc") ? "named" : "rest";
    EXPECT_EQ(program.Items(0), (Strings{"fixed_50", "mobil_30kmh", entry}));
    EXPECT_EQ(program.Text("/p/asc/" + entry + ".asc"), "4.5, 54.5, \"e\"\r\n");
    EXPECT_EQ(CameraFiles(program).size(), 3u);
}

void ExpectConsistentStart(JourneyProgram& program, const Outcome& whole) {
    const Strings some = program.Items(0);
    EXPECT_TRUE(std::includes(whole.lists[0].begin(), whole.lists[0].end(), some.begin(), some.end()));
    // Where the language file could not be read, the built-in text shows.
    const std::string language = program.Window().LanguageList.Text();
    const std::string caption = program.Window().ButtonExitApplication.Caption();
    EXPECT_EQ(program.Option("Language"), language);
    EXPECT_TRUE(caption == "Exit" || (caption == "Beenden" && language == "Deutsch")) << caption;
}

}  // namespace

Outcome::Outcome(JourneyProgram& program) : files(program.memory.Everything()) {
    for (int number = 0; number <= kLastType; ++number) lists.push_back(program.Items(number));
    const modExport& exports = program.Exports();
    seen = program.shown + (program.Window().ResultsValid ? " with results " : " without results ");
    for (const auto& counters : {exports.FilesProcessed, exports.CamerasExported, exports.CamerasSkipped})
        seen += testing::PrintToString(counters);
}

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << outcome.seen << testing::PrintToString(outcome.lists)
               << testing::PrintToString(outcome.files);
}

Outcome Journey::Undisturbed() const {
    JourneyProgram program;
    if (!isStart) program.Start();
    play(program);
    return Outcome(program);
}

void ExpectConsistentProgram(JourneyProgram& program, const Journey& journey) {
    ExpectOtherFilesAsInstalled(program, journey);
    EXPECT_EQ(program.toolkit.OpenDialog(), nullptr);
    if (program.desktop.Ended()) return;
    EXPECT_TRUE(program.desktop.Accepts(program.Window()));
    ExpectConsistentWindow(program.Window());
}

void ExpectConsistentMessages(const JourneyProgram& program) {
    bool mayEnd = false;
    for (const auto& message : program.messages.Messages) {
        const bool isFatal = message.text.starts_with("Run-time error ");
        mayEnd |= isFatal;
        EXPECT_TRUE(isFatal || message.title == "Append To Existing Speed Camera File") << message.text;
    }
    EXPECT_EQ(program.desktop.Ended(), mayEnd);
}

void ExpectConsistentWindow(frmMain& window) {
    std::set<std::string> entries;
    int listsWithSelection = 0;
    for (int number = 0; number <= kLastType; ++number) {
        const forms::ListBox& list = number == 0 ? window.MainList : window.TypeList[number];
        for (const std::string& entry : headless::ItemsOf(list)) {
            EXPECT_TRUE(entries.insert(entry).second) << entry << " stands in two lists";
        }
        int selected = 0;
        for (int i = 0; i < list.ListCount(); ++i) selected += list.Selected(i) ? 1 : 0;
        EXPECT_EQ(list.SelCount(), selected) << list.Name();
        EXPECT_LT(list.ListIndex(), list.ListCount()) << list.Name();
        EXPECT_TRUE(list.Enabled()) << list.Name();
        EXPECT_EQ(list.OLEDropMode(), forms::ListBox::DropMode::None) << list.Name();
        listsWithSelection += selected > 0 ? 1 : 0;
    }
    EXPECT_LE(listsWithSelection, 1);
    const bool anyClassified = entries.size() > static_cast<std::size_t>(window.MainList.ListCount());
    EXPECT_EQ(window.ButtonClassifyFiles.Enabled(), window.MainList.ListCount() > 0);
    EXPECT_EQ(window.ButtonReloadFiles.Enabled(), anyClassified);
    EXPECT_EQ(window.ButtonRenameFile.Enabled(), window.MainList.SelCount() == 1);
    EXPECT_EQ(window.ButtonImportFiles.Enabled(), !window.CheckDemoMode.Value());
    EXPECT_EQ(window.ButtonExportCameras.Enabled(), anyClassified);
    EXPECT_EQ(window.ButtonShowResults.Enabled(), window.ResultsValid);
    EXPECT_TRUE(window.ButtonExitApplication.Enabled());
}

Journey ExportJourney(int mode) {
    Journey journey{"Export" + std::to_string(mode)};
    journey.targets = {ExportTarget(mode), "/p/Export Results.txt"};
    journey.play = [mode](JourneyProgram& program) {
        program.Window().ButtonClassifyFiles.UserPress();
        UserExports(program.toolkit, program.fileDialogs, program.Window(), mode, ExportTarget(mode));
    };
    journey.expectConsistent = [mode](JourneyProgram& program, const Outcome& whole) {
        ExpectConsistentExport(program, whole, mode);
    };
    return journey;
}

Journey ImportJourney(int source) {
    Journey journey{source == ImportProgram::kOv2 ? "ImportOv2" : "ImportTxt"};
    journey.targets = {"/p/asc/"};
    journey.play = [source](JourneyProgram& program) {
        program.shown = UserImports(program.toolkit, program.Window(), source, ImportProgram::ExpectDone);
    };
    journey.expectConsistent = [source](JourneyProgram& program, const Outcome& whole) {
        ExpectConsistentImport(program, whole, source);
    };
    return journey;
}

Journey RenameJourney() {
    Journey journey{"Rename"};
    journey.targets = {"/p/asc/rest.asc", "/p/asc/named.asc"};
    journey.play = [](JourneyProgram& program) {
        UserRenames(program.toolkit, program.Window(), "rest", "named");
    };
    journey.expectConsistent = ExpectConsistentRename;
    return journey;
}

Journey StartJourney() {
    Journey journey{"Start"};
    journey.isStart = true;
    journey.play = [](JourneyProgram& program) {
        program.Start();
        program.shown = std::to_string(program.Window().LanguageList.ListCount()) + " languages";
    };
    journey.expectConsistent = ExpectConsistentStart;
    return journey;
}

}  // namespace halvenmoor
