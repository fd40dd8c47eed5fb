#include "journeys.h"

#include "files_test_helpers.h"
#include "ui/frmRename.h"

namespace halvenmoor {

namespace {

const std::string kNoFile = "(none)";

int Sum(const TypeTable<std::int32_t>& table) {
    return std::accumulate(table.begin(), table.end(), 0);
}

Strings Lines(const std::string& text) {
    Strings lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size() - 1) + 1;
        lines.push_back(text.substr(begin, end - begin));
        begin = end;
    }
    return lines;
}

bool IsPartOf(const Strings& lines, const Strings& whole) {
    auto next = lines.begin();
    for (const std::string& line : whole) {
        if (next != lines.end() && *next == line) ++next;
    }
    return next == lines.end();
}

bool IsBegunFrom(const Strings& lines, const Strings& whole) {
    return lines.size() <= whole.size() && std::equal(lines.begin(), lines.end(), whole.begin());
}

void ExpectSoundLists(frmMain& window) {
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
}

void ExpectSoundButtons(frmMain& window) {
    bool anyClassified = false;
    for (int type = kFirstType; type <= kLastType; ++type) {
        anyClassified |= window.TypeList[type].ListCount() > 0;
    }
    EXPECT_EQ(window.ButtonClassifyFiles.Enabled(), window.MainList.ListCount() > 0);
    EXPECT_EQ(window.ButtonReloadFiles.Enabled(), anyClassified);
    EXPECT_EQ(window.ButtonRenameFile.Enabled(), window.MainList.SelCount() == 1);
    EXPECT_EQ(window.ButtonImportFiles.Enabled(), !window.CheckDemoMode.Value());
    EXPECT_EQ(window.ButtonExportCameras.Enabled(), anyClassified);
    EXPECT_EQ(window.ButtonShowResults.Enabled(), window.ResultsValid);
    EXPECT_TRUE(window.ButtonExitApplication.Enabled());
}

void ExpectSoundLanguage(JourneyProgram& program) {
    const std::string language = program.Window().LanguageList.Text();
    EXPECT_EQ(program.Option("Language"), language);
    EXPECT_TRUE(language == "English" || language == "Deutsch") << language;
    const std::string& caption = program.Window().ButtonExitApplication.Caption();
    // Where the language file could not be read, the built-in text shows.
    EXPECT_TRUE(caption == "Exit" || (caption == "Beenden" && language == "Deutsch")) << caption;
}

/// The program ends by itself only with a message about the file system.
void ExpectSoundMessages(const JourneyProgram& program) {
    bool mayEnd = false;
    for (const auto& message : program.messages.Messages) {
        const bool isFatal = message.text.starts_with("Run-time error ");
        mayEnd |= isFatal;
        EXPECT_TRUE(isFatal || message.title == "Append To Existing Speed Camera File") << message.text;
    }
    EXPECT_EQ(program.desktop.Ended(), mayEnd);
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

// Export

const char* const kExported =
    "1.5,52.5,1,50,1,90\r\n"
    "2.5,52.5,5,50,0,0\r\n"
    "3.5,53.5,5,30,0,0\r\n";
const TypeTable<std::int32_t> kFilesProcessed{0, 1, 0, 0, 0, 1};
const TypeTable<std::int32_t> kCamerasExported{0, 1, 0, 0, 0, 2};
const TypeTable<std::int32_t> kCamerasSkipped{0, 1, 0, 0, 0, 0};

std::string ExportTarget(int mode) {
    return mode == 1 ? "/p/txt/SpeedCamText.txt" : mode == 2 ? "/p/txt/new.txt" : "/p/txt/old.txt";
}

std::string ExportedText(int mode) {
    return (mode == 3 ? JourneyProgram::kOldTarget : "X,Y,TYPE,SPEED,DirType,Direction\r\n") +
           std::string(kExported);
}

std::string ResultsText(int mode) {
    const std::string word = mode == 3 ? "Appended" : "Exported";
    const std::string rule(85, '-');
    return Crlf("\n" + rule + "\n" + word + " Speed Camera Results...:  Files Processed  " + word +
                " Cameras  Skipped Cameras\n" + rule + "\n" +
                "Type 1 Fixed Speed Camera.......:            1                 1                1\n"
                "Type 2 Red Speed Camera.........:            0                 0                0\n"
                "Type 3 Red Light Camera.........:            0                 0                0\n"
                "Type 4 Section Speed Camera.....:            0                 0                0\n"
                "Type 5 Mobile Speed Camera......:            1                 2                0\n" +
                rule + "\n" +
                "Total Files and Cameras.........:            2                 3                1\n" + rule +
                "\n");
}

void ExpectWholeExport(JourneyProgram& program, int mode) {
    EXPECT_TRUE(program.Window().ResultsValid);
    EXPECT_EQ(program.Text(ExportTarget(mode)), ExportedText(mode));
    EXPECT_EQ(program.Exports().FilesProcessed, kFilesProcessed);
    EXPECT_EQ(program.Exports().CamerasExported, kCamerasExported);
    EXPECT_EQ(program.Exports().CamerasSkipped, kCamerasSkipped);
}

void ExpectSoundExport(JourneyProgram& program, int mode) {
    ExpectSoundMessages(program);
    const std::string path = ExportTarget(mode);
    const Strings target = Lines(program.memory.Has(path) ? program.memory.Text(path) : "");
    EXPECT_TRUE(IsBegunFrom(target, Lines(ExportedText(mode))));
    const int linesBefore = mode == 3 ? 2 : 1;
    EXPECT_EQ(Sum(program.Exports().CamerasExported),
              std::max(static_cast<int>(target.size()) - linesBefore, 0));
    EXPECT_GE(target.size(), mode == 3 ? 2u : 0u) << "what was there before stays";

    const std::string results = program.ResultsFile();
    if (!program.Window().ResultsValid) {
        EXPECT_EQ(results, kNoFile);
        return;
    }
    ExpectWholeExport(program, mode);
    EXPECT_TRUE(results == kNoFile || IsBegunFrom(Lines(results), Lines(ResultsText(mode)))) << results;
}

// Import

const std::string kComment =
    "; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction).\r\n\r\n";

/// The whole camera files by their paths.
Disk Imported(int source) {
    if (source == ImportProgram::kOv2) {
        const std::string line = "1.50000, 52.50000, \"n\", 0, 0\r\n";
        return {{"/p/asc/one.asc", kComment + line}, {"/p/asc/two.asc", kComment + line + line}};
    }
    return {{"/p/asc/Fixed_Camera_050.asc",
             kComment + "1.5, 52.5, \"Fixed Camera\", 1, 90\r\n3.5, 53.5, \"Fixed Camera\", 0, 0\r\n"},
            {"/p/asc/RedSpeed_Camera_060.asc", kComment + "2.5, 52.5, \"RedSpeed Camera\", 0, 0\r\n"}};
}

Disk CameraFiles(const JourneyProgram& program) {
    Disk disk = program.memory.Everything();
    std::erase_if(disk, [](const auto& file) { return !file.first.starts_with("/p/asc/"); });
    return disk;
}

/// Each camera file is an old one as it was or a new one, but there are never both. Of a new one lines may be
/// missing: TXT sources lose them without a word.
void ExpectSoundImport(JourneyProgram& program, int source) {
    ExpectSoundMessages(program);
    const Disk whole = Imported(source);
    const bool mustBeWhole =
        source == ImportProgram::kOv2 && (!program.faultLasts || program.picture == "PictureFinished");
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
        ASSERT_EQ(whole.count(path), 1u) << path << " comes from nowhere";
        EXPECT_TRUE(IsPartOf(Lines(bytes), Lines(whole.at(path)))) << path << ":\n" << bytes;
        EXPECT_TRUE(bytes == whole.at(path) || !mustBeWhole) << path << ":\n" << bytes;
    }
    EXPECT_TRUE(oldFiles == 0 || newFiles == 0) << "the folder was to be emptied first";
}

// The others

/// The entry is what the file is called.
void ExpectSoundRename(JourneyProgram& program) {
    ExpectSoundMessages(program);
    const std::string entry = program.memory.Has("/p/asc/named.asc") ? "named" : "rest";
    EXPECT_EQ(program.Items(0), (Strings{"fixed_50", "mobil_30kmh", entry}));
    EXPECT_EQ(program.Text("/p/asc/" + entry + ".asc"), "4.5, 54.5, \"e\"\r\n");
    EXPECT_EQ(CameraFiles(program).size(), 3u);
}

void Choose(JourneyProgram& program, const std::string& language) {
    forms::ComboBox& list = program.Window().LanguageList;
    for (int i = 0; i < list.ListCount(); ++i) {
        if (list.List(i) == language) list.UserChoose(i);
    }
}

void ExpectAllEntries(JourneyProgram& program) {
    EXPECT_EQ(program.Items(0), (Strings{"fixed_50", "mobil_30kmh", "rest"}));
}

void ExpectSomeEntries(JourneyProgram& program) {
    ExpectSoundMessages(program);
    EXPECT_TRUE(IsPartOf(program.Items(0), {"fixed_50", "mobil_30kmh", "rest"}));
}

}  // namespace

bool UserExports(headless::Twins& twins, frmMain& window, int mode, const std::string& path) {
    bool shown = false;
    // More than one, should something else open a window on the way.
    for (int i = 0; i < 4; ++i) {
        twins.toolkit.Script([&shown](forms::Form& form) { shown = form.UserEscape(); });
    }
    twins.fileDialogs.Answers = {path, path};
    window.ButtonClassifyFiles.UserPress();
    window.OptionExportMode[mode].UserPress();
    window.ButtonExportCameras.UserPress();
    twins.toolkit.ForgetScript();
    return shown;
}

std::string UserImports(headless::Twins& twins, frmMain& window, int source) {
    std::string picture;
    twins.toolkit.Script([&](forms::Form& form) {
        auto& dialog = static_cast<frmImport&>(form);
        dialog.OptionSource[source].UserPress();
        dialog.ButtonStart.UserPress();
        if (dialog.IsOpen()) ImportProgram::ExpectDone(dialog);
        picture = ImportProgram::PictureOf(dialog);
        dialog.ButtonFinish.UserPress();
    });
    window.ButtonImportFiles.UserPress();
    twins.toolkit.ForgetScript();
    return picture;
}

void UserRenames(headless::Twins& twins, frmMain& window, const std::string& entry,
                 const std::string& newName) {
    twins.toolkit.Script([&newName](forms::Form& form) {
        auto& dialog = static_cast<frmRename&>(form);
        dialog.TextFileName.UserTyped(newName);
        dialog.ButtonRename.UserPress();
        dialog.UserEscape();
    });
    headless::Select(window.MainList, {entry});
    window.ButtonRenameFile.UserPress();
    twins.toolkit.ForgetScript();
}

void ExpectSoundProgram(JourneyProgram& program, const Journey& journey) {
    ExpectOtherFilesAsInstalled(program, journey);
    EXPECT_EQ(program.toolkit.OpenDialog(), nullptr);
    if (program.desktop.Ended()) return;
    EXPECT_TRUE(program.desktop.Accepts(program.Window()));
    ExpectSoundWindow(program.Window());
}

void ExpectSoundWindow(frmMain& window) {
    ExpectSoundLists(window);
    ExpectSoundButtons(window);
}

Journey ExportJourney(int mode) {
    return {.name = "Export" + std::to_string(mode),
            .play =
                [mode](JourneyProgram& program) {
                    UserExports(program, program.Window(), mode, ExportTarget(mode));
                },
            .expectDone =
                [mode](JourneyProgram& program) {
                    ExpectWholeExport(program, mode);
                    EXPECT_EQ(program.ResultsFile(), ResultsText(mode));
                    EXPECT_EQ(program.Items(0), Strings{"rest"});
                },
            .expectSound = [mode](JourneyProgram& program) { ExpectSoundExport(program, mode); },
            .targets = {ExportTarget(mode), "/p/Export Results.txt"}};
}

Journey ImportJourney(int source) {
    return {.name = source == ImportProgram::kOv2 ? "ImportOv2" : "ImportTxt",
            .play =
                [source](JourneyProgram& program) {
                    program.picture = UserImports(program, program.Window(), source);
                },
            .expectDone =
                [source](JourneyProgram& program) {
                    EXPECT_EQ(CameraFiles(program), Imported(source));
                    EXPECT_EQ(program.Items(0).size(), 2u);
                },
            .expectSound = [source](JourneyProgram& program) { ExpectSoundImport(program, source); },
            .targets = {"/p/asc/"}};
}

Journey RenameJourney() {
    return {.name = "Rename",
            .play = [](JourneyProgram& program) { UserRenames(program, program.Window(), "rest", "named"); },
            .expectDone =
                [](JourneyProgram& program) {
                    EXPECT_EQ(program.Items(0), (Strings{"fixed_50", "mobil_30kmh", "named"}));
                    EXPECT_TRUE(program.memory.Has("/p/asc/named.asc"));
                },
            .expectSound = ExpectSoundRename,
            .targets = {"/p/asc/rest.asc", "/p/asc/named.asc"}};
}

Journey LanguageJourney() {
    return {.name = "Language",
            .play =
                [](JourneyProgram& program) {
                    Choose(program, "English");
                    Choose(program, "Deutsch");
                },
            .expectDone =
                [](JourneyProgram& program) {
                    EXPECT_EQ(program.Window().ButtonExitApplication.Caption(), "Beenden");
                    EXPECT_EQ(program.Option("Language"), "Deutsch");
                },
            .expectSound =
                [](JourneyProgram& program) {
                    ExpectSoundMessages(program);
                    ExpectSoundLanguage(program);
                }};
}

Journey ReloadJourney() {
    return {.name = "Reload",
            .play = [](JourneyProgram& program) { program.Reload(); },
            .expectDone = ExpectAllEntries,
            .expectSound = ExpectSomeEntries};
}

Journey StartJourney() {
    return {.name = "Start",
            .play = [](JourneyProgram& program) { program.Start(); },
            .expectDone =
                [](JourneyProgram& program) {
                    ExpectAllEntries(program);
                    EXPECT_EQ(program.Window().LanguageList.ListCount(), 2);
                },
            .expectSound =
                [](JourneyProgram& program) {
                    ExpectSomeEntries(program);
                    ExpectSoundLanguage(program);
                },
            .isStart = true};
}

}  // namespace halvenmoor
