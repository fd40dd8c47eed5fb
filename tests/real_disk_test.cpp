// The whole program on a real disk that is full, closed to it, or not what it expects.

#include "tests/support/disk_program.h"
#include "tests/support/journeys.h"
#include "tools/file_helpers.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace halvenmoor {
namespace {

namespace fs = std::filesystem;

constexpr int kOv2 = ImportProgram::kOv2;
constexpr int kTxt = ImportProgram::kTxt;
const std::string kFull = "/dev/full";

/// Files grow no larger than this for as long as it lives: a disk that is full there.
class SizeLimit {
public:
    explicit SizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;
    ~SizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    void (*handler_)(int);
    rlimit before_{};
};

class RealDiskTest : public testing::Test {
protected:
    RealDiskTest() {
        constexpr unsigned kSecondsUntilItHangs = 120;
        ::alarm(kSecondsUntilItHangs);
        Install();
    }
    ~RealDiskTest() override { ::alarm(0); }

    void Install() { InstallFiles(folder); }
    /// The files that no journey is about.
    Disk Others() {
        Disk all = AllFiles(folder);
        std::erase_if(all, [](const auto& file) {
            return file.first.starts_with("asc/") || file.first == "txt/SpeedCamText.txt" ||
                   file.first == "txt/old.txt" || file.first == "Export Results.txt";
        });
        return all;
    }
    Disk CameraFiles() {
        Disk all = AllFiles(folder);
        std::erase_if(all, [](const auto& file) { return !file.first.starts_with("asc/"); });
        return all;
    }
    std::string TextIf(const std::string& name) {
        return fs::is_regular_file(folder / name) ? folder.Text(name) : "(none)";
    }

    TemporaryFolder folder;
};

const Disk kImportedOv2{{"asc/one.asc", kComment + "1.50000, 52.50000, \"n\"\r\n"}};
const Disk kImportedTxt{{"asc/Fixed_Camera_050.asc", kComment + "1.5, 52.5, \"Fixed Camera\"\r\n"}};
const std::string kExported = "1.5,52.5,1,50,0,0\r\n2.5,52.5,1,60,0,0\r\n";

// Full

constexpr std::size_t kStep = 4096;
constexpr std::size_t kManyCameras = 6000;

TEST_F(RealDiskTest, AnExportToADiskThatIsFullAnywhereKeepsWhatFits) {
    folder.Put("asc/fixed_50.asc", Repeated("1.5, 52.5, \"a\"\r\n", kManyCameras));
    const Disk others = Others();
    const std::string old = folder.Text("txt/old.txt");
    for (const int mode : {1, 3}) {
        const std::string target = mode == 1 ? "txt/SpeedCamText.txt" : "txt/old.txt";
        const std::string whole = (mode == 1 ? kHeader : old) +
                                  Repeated("1.5,52.5,1,50,0,0\r\n", kManyCameras) + "2.5,52.5,1,60,0,0\r\n";
        std::size_t runs = 0;
        for (std::size_t limit = mode == 1 ? 0 : kStep; limit < whole.size() + kStep;
             limit += kStep, ++runs) {
            folder.Put("txt/old.txt", old);
            DiskProgram program(folder);
            const bool isValid = [&] {
                const SizeLimit sizeLimit(limit);
                return program.Export(mode, folder / target);
            }();
            EXPECT_EQ(isValid, limit >= whole.size()) << limit;
            EXPECT_EQ(program.Window().ResultsValid, isValid);
            EXPECT_TRUE(TextIf(target) == whole.substr(0, limit)) << limit;
            EXPECT_EQ(Others(), others);
            ExpectSoundWindow(program.Window());
            folder.Put("txt/old.txt", old);
            EXPECT_TRUE(program.Export(mode, folder / target)) << "space again";
            EXPECT_TRUE(TextIf(target) == whole);
        }
        EXPECT_GT(runs, 25u);
    }
}

TEST_F(RealDiskTest, AnImportToADiskThatIsFullAnywhereHasWholeOv2FilesOnly) {
    folder.Put("import/ov2/one.ov2", Repeated(kPoint, kManyCameras));
    folder.Put("import/txt/one.txt", Repeated("1.5,52.5,1,50\n", kManyCameras));
    const Disk others = Others();
    for (const int source : {kOv2, kTxt}) {
        const std::string target = source == kOv2 ? "asc/one.asc" : "asc/Fixed_Camera_050.asc";
        const std::string whole = kComment + Repeated(source == kOv2 ? "1.50000, 52.50000, \"n\"\r\n"
                                                                     : "1.5, 52.5, \"Fixed Camera\"\r\n",
                                                      kManyCameras);
        for (std::size_t limit = 0; limit < whole.size() + kStep; limit += kStep) {
            DiskProgram program(folder);
            const std::string picture = [&] {
                const SizeLimit sizeLimit(limit);
                return program.Import(source);
            }();
            const bool fits = limit >= whole.size();
            // A file of a TXT import stays as far as it was written, without a word.
            EXPECT_EQ(picture, fits || source == kTxt ? "PictureFinished" : "PictureIncomplete") << limit;
            EXPECT_TRUE(TextIf(target) == (fits || source == kTxt ? whole.substr(0, limit) : "(none)"))
                << limit;
            EXPECT_EQ(Others(), others);
            ExpectSoundWindow(program.Window());
        }
        EXPECT_EQ(DiskProgram(folder).Import(source), "PictureFinished") << "space again";
        EXPECT_TRUE(TextIf(target) == whole);
    }
}

TEST_F(RealDiskTest, FilesOfTheProgramMayLieOnAFullDisk) {
    fs::create_symlink(kFull, folder / "Export Results.txt");
    EXPECT_TRUE(DiskProgram(folder).Export()) << "the export itself is whole";
    EXPECT_EQ(folder.Text("txt/SpeedCamText.txt"), kHeader + kExported);
    fs::remove(folder / "txt/SpeedCamText.txt");
    fs::create_symlink(kFull, folder / "txt/SpeedCamText.txt");
    DiskProgram program(folder);
    EXPECT_FALSE(program.Export());
    EXPECT_FALSE(program.Window().ButtonShowResults.Enabled());
}

// Names

TEST_F(RealDiskTest, NamesMayHoldAnyByteAndBeAsLongAsTheyCan) {
    constexpr std::size_t kMaxName = 255 - 4;  // with the extension
    Strings names{std::string(kMaxName, 'f')};
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '/') names.push_back(std::string("fixed ") + static_cast<char>(byte));
    }
    folder.Put("Settings.ini", "[Type1]\nf*\n[Settings]\nSourceStructure=1\n");
    Disk expected;
    for (const std::string& name : names) {
        folder.Put("asc/" + name + ".asc", "1.5, 52.5, \"a\"\r\n");
        folder.Put("import/ov2/" + name + ".ov2", kPoint);
        expected["asc/" + name + ".asc"] = kComment + "1.50000, 52.50000, \"n\"\r\n";
    }
    fs::remove(folder / "import/ov2/one.ov2");
    const Disk others = Others();
    DiskProgram program(folder);
    EXPECT_TRUE(program.Export());
    EXPECT_EQ(program.Exported(), static_cast<int>(names.size() + 2)) << "with the two that were there";
    EXPECT_EQ(program.Import(kOv2), "PictureFinished");
    EXPECT_EQ(CameraFiles(), expected);
    EXPECT_TRUE(program.Export());
    EXPECT_EQ(program.Exported(), static_cast<int>(names.size()));
    for (const std::string& name : names) {
        const std::string path = "asc/" + name + ".asc";
        Install();
        folder.Put(path, "rare");
        DiskProgram renaming(folder);
        renaming.Rename(name, "plain");
        EXPECT_EQ(TextIf("asc/plain.asc"), "rare") << name;
    }
    EXPECT_EQ(Others().size() + names.size() - 1, others.size());
}

TEST_F(RealDiskTest, ANameThatIsTooLongIsRefused) {
    const Disk before = AllFiles(folder);
    DiskProgram program(folder);
    program.Rename("fixed_50", std::string(252, 'y'));
    program.Rename("fixed_50", std::string(70'000, 'y'));
    EXPECT_EQ(AllFiles(folder), before);
    EXPECT_EQ(headless::ItemsOf(program.Window().MainList), (Strings{"fixed_50", "fixed_60"}));
    program.Rename("fixed_50", std::string(251, 'y'));
    EXPECT_EQ(TextIf("asc/" + std::string(251, 'y') + ".asc"), "1.5, 52.5, \"a\"\r\n");
}

// Things that are not what they should be

struct SpecialFile {
    const char* name;
    void (*make)(const std::string& path);
    /// Each of its kind is passed over.
    bool exports = true;
    bool importsOv2 = false;
};

const SpecialFile kSpecialFiles[] = {
    {"a link to nowhere", [](const std::string& path) { fs::create_symlink("missing/nowhere", path); }},
    {"a link to itself",
     [](const std::string& path) { fs::create_symlink(fs::path(path).filename(), path); }},
    {"a link to a folder", [](const std::string& path) { fs::create_symlink("../../elsewhere", path); }, true,
     true},
    {"a pipe", [](const std::string& path) { ::mkfifo(path.c_str(), 0600); }, false},
    {"a device", [](const std::string& path) { fs::create_symlink("/dev/zero", path); }, false},
    {"a folder", [](const std::string& path) { fs::create_directory(path); }, true, true},
};

TEST_F(RealDiskTest, OddEntriesOfItsFoldersHoldNothingUp) {
    for (const SpecialFile& odd : kSpecialFiles) {
        SCOPED_TRACE(odd.name);
        Install();
        for (const char* path :
             {"asc/fixed_70.asc", "lang/odd.ini", "import/ov2/odd.ov2", "import/txt/odd.txt"})
            odd.make(folder / path);
        const Disk others = Others();
        DiskProgram program(folder);
        EXPECT_EQ(program.Export(), odd.exports);
        EXPECT_EQ(folder.Text("txt/SpeedCamText.txt"), kHeader + kExported);
        EXPECT_EQ(program.Import(kOv2), odd.importsOv2 ? "PictureFinished" : "PictureIncomplete");
        EXPECT_EQ(CameraFiles(), kImportedOv2);
        EXPECT_EQ(program.Import(kTxt), "PictureFinished");
        EXPECT_EQ(CameraFiles(), kImportedTxt);
        EXPECT_EQ(Others(), others);
        ExpectSoundWindow(program.Window());
    }
}

/// Does everything that can be done.
void PlayAll(DiskProgram& program, const TemporaryFolder& folder) {
    program.Window().LanguageList.UserChoose(1);
    program.Rename("fixed_50", "fixed_80");
    program.Rename("fixed_80", "fixed_50");
    program.Export(1);
    program.Export(2, folder / "txt/SpeedCamText.txt");
    program.Export(3, folder / "txt/old.txt");
    ExpectSoundWindow(program.Window());
    program.Import(kOv2);
    program.Import(kTxt);
    ExpectSoundWindow(program.Window());
    for (const auto& message : program.messages.Messages) EXPECT_FALSE(message.text.starts_with("Run-time"));
}

TEST_F(RealDiskTest, FilesAndFoldersMayStandInEachOthersPlaces) {
    for (const std::string place :
         {"asc", "txt", "lang", "import", "import/ov2", "import/txt", "Settings.ini", "Export Results.txt",
          "txt/SpeedCamText.txt", "txt/old.txt", "lang/deutsch.ini", "asc/fixed_50.asc", "asc/one.asc",
          "asc/Fixed_Camera_050.asc", "import/ov2/one.ov2", "import/txt/one.txt"}) {
        for (const SpecialFile& odd : kSpecialFiles) {
            SCOPED_TRACE(place + ": " + odd.name);
            Install();
            const bool isFolder = fs::is_directory(folder / place);
            fs::remove_all(folder / place);
            if (isFolder && odd.name == std::string("a folder")) {
                folder.Put(place, "a file");
            } else {
                odd.make(folder / place);
            }
            const Disk others = Others();
            DiskProgram program(folder);
            PlayAll(program, folder);
            EXPECT_EQ(Others(), others);

            fs::remove_all(folder / place);
            Install();
            EXPECT_TRUE(DiskProgram(folder).Export()) << "repaired";
        }
    }
}

TEST_F(RealDiskTest, AnythingMayVanishAtAnyTurn) {
    for (const std::string gone :
         {"asc/fixed_60.asc", "asc", "txt", "import/ov2/one.ov2", "import", "Settings.ini", "."}) {
        for (const int journey : {0, kOv2, kTxt}) {
            for (int yield = 1, yields = yield; yield <= yields; ++yield) {
                SCOPED_TRACE(gone + " in " + std::to_string(journey) + " at " + std::to_string(yield));
                Install();
                DiskProgram program(folder);
                yields = 0;
                program.toolkit.OnYield = [&] {
                    if (++yields != yield) return;
                    if (gone != ".") fs::remove_all(folder / gone);
                    if (gone == ".") fs::rename(folder.Path(), folder.Path() + "-gone");
                };
                if (journey == 0) program.Export();
                if (journey != 0) program.Import(journey);
                if (gone == "." && yields >= yield) fs::rename(folder.Path() + "-gone", folder.Path());
                program.toolkit.OnYield = {};
                EXPECT_TRUE(kHeader + kExported == TextIf("txt/SpeedCamText.txt") ||
                            !program.Window().ResultsValid || gone == "txt");
                ExpectSoundWindow(program.Window());
                EXPECT_EQ(TextIf("elsewhere/kept.asc"), "4.5, 54.5, \"e\"\r\n");
            }
        }
    }
}

TEST_F(RealDiskTest, ATargetMayBeOneOfItsSources) {
    const std::string source = kHeader + Repeated("3.5, 53.5, \"c\", 1, 90\r\n", kManyCameras);
    folder.Put("asc/fixed_70.asc", source);
    DiskProgram program(folder);
    EXPECT_TRUE(program.Export(3, folder / "asc/fixed_70.asc"));
    EXPECT_TRUE(folder.Text("asc/fixed_70.asc") ==
                source + kExported + Repeated("3.5,53.5,1,70,0,0\r\n", kManyCameras));

    EXPECT_TRUE(program.Export(2, folder / "asc/fixed_60.asc")) << "the user agreed to replace it";
    const std::string replaced = folder.Text("asc/fixed_60.asc");
    EXPECT_TRUE(replaced.starts_with(kHeader + "1.5,52.5,1,50,0,0\r\n3.5,53.5,1,70,0,0\r\n"));
    EXPECT_LT(replaced.size(), 2 * source.size());
}

// Closed to this user

TEST_F(RealDiskTest, WhatIsClosedToTheUserStaysAsItIs) {
    if (::geteuid() == 0) GTEST_SKIP() << "nothing is closed to root";
    struct Case {
        std::string path;
        mode_t mode;
        bool exports = true;
        const char* ov2 = "PictureFinished";
    };
    for (const Case& closed :
         {Case{"txt", 0555, false}, Case{"txt/SpeedCamText.txt", 0444, false}, Case{"txt", 0, false},
          Case{"Export Results.txt", 0444}, Case{".", 0555}, Case{"Settings.ini", 0, false},
          Case{"asc/fixed_60.asc", 0, false}, Case{"asc/fixed_60.asc", 0444},
          Case{"asc", 0555, true, "PictureDelete"}, Case{"asc", 0, false, "PictureNoDelete"},
          Case{"import/ov2/one.ov2", 0, true, "PictureIncomplete"}, Case{"import/ov2", 0}, Case{"lang", 0}}) {
        SCOPED_TRACE(closed.path + " " + std::to_string(closed.mode));
        Install();
        const bool isTarget = closed.path.ends_with(".txt");
        if (isTarget) folder.Put(closed.path, "before");
        const std::string path = folder / closed.path;
        struct stat open {};
        ASSERT_EQ(::stat(path.c_str(), &open), 0);
        const auto played = [&](auto play) {
            ASSERT_EQ(::chmod(path.c_str(), closed.mode), 0);
            DiskProgram program(folder);
            play(program);
            ExpectSoundWindow(program.Window());
            ::chmod(path.c_str(), open.st_mode & 0777);
        };
        const Disk before = AllFiles(folder);
        played([&](DiskProgram& program) { program.Rename("fixed_60", "fixed_60"); });
        EXPECT_EQ(AllFiles(folder), before);
        played([&](DiskProgram& program) { EXPECT_EQ(program.Export(), closed.exports); });
        EXPECT_TRUE(!isTarget || TextIf(closed.path) == "before");
        const Disk cameras = CameraFiles();
        played([&](DiskProgram& program) { EXPECT_EQ(program.Import(kOv2), closed.ov2); });
        EXPECT_TRUE(closed.path != "asc" || CameraFiles() == cameras);
        EXPECT_EQ(TextIf("elsewhere/kept.asc"), "4.5, 54.5, \"e\"\r\n");
    }
}

}  // namespace
}  // namespace halvenmoor
