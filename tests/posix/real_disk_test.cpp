// The whole program on a real disk that is full, closed to it, or not what it expects.

#include "tests/posix/size_limit.h"
#include "tests/support/disk_program.h"
#include "tests/support/journeys.h"

#include <sys/stat.h>
#include <unistd.h>

namespace halvenmoor {
namespace {

namespace fs = std::filesystem;

constexpr int kOv2 = ImportProgram::kOv2;
constexpr int kTxt = ImportProgram::kTxt;

class RealDiskTest : public testing::Test {
protected:
    RealDiskTest() {
        constexpr unsigned kSecondsUntilItHangs = 120;
        ::alarm(kSecondsUntilItHangs);
        InstallFiles(folder);
    }
    ~RealDiskTest() override { ::alarm(0); }

    /// The files that no export and no import is about.
    Disk Others() {
        Disk all = AllFiles(folder);
        for (const char* file : {"txt/SpeedCamText.txt", "txt/old.txt", "Export Results.txt"})
            all.erase(file);
        std::erase_if(all, [](const auto& file) { return file.first.starts_with("asc/"); });
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

constexpr std::size_t kManyCameras = 6000;

/// What a failed write leaves of a target, and of a camera file of a TXT import: the lines that had space.
std::string LeftOf(const std::string& whole, std::size_t limit) {
    const std::string fitting = whole.substr(0, limit);
    return fitting.substr(0, fitting.rfind('\n') + 1);
}

TEST_F(RealDiskTest, ADiskThatIsFullAnywhereKeepsWhatFits) {
    folder.Put("asc/fixed_50.asc", Repeated("1.5, 52.5, \"a\"\r\n", kManyCameras));
    const Disk others = Others();
    const std::string old = folder.Text("txt/old.txt");
    const std::string whole = old + Repeated("1.5,52.5,1,50,0,0\r\n", kManyCameras) + "2.5,52.5,1,60,0,0\r\n";
    constexpr std::size_t kBlock = 4096;
    for (std::size_t limit = kBlock; limit < whole.size() + kBlock; limit += kBlock) {
        SCOPED_TRACE("full at " + std::to_string(limit));
        folder.Put("txt/old.txt", old);
        DiskProgram program(folder);
        const auto append = [&] { return program.Export(3, folder / "txt/old.txt"); };
        EXPECT_EQ(WithSizeLimit(limit, append), limit >= whole.size());
        EXPECT_TRUE(TextIf("txt/old.txt") == LeftOf(whole, limit));
        EXPECT_EQ(Others(), others);
        ExpectConsistentWindow(program.Window());
    }
    const auto look = [](frmImport& form) { EXPECT_EQ(form.PictureFinished.ToolTip(), "\u2717 1 File(s)"); };
    DiskProgram program(folder);
    const auto import = [&] { return UserImports(program.toolkit, program.Window(), kTxt, look); };
    EXPECT_EQ(WithSizeLimit(50, import), "PictureFinished");
    EXPECT_EQ(CameraFiles(), (Disk{{kImportedTxt.begin()->first, LeftOf(kImportedTxt.begin()->second, 50)}}));
}

// Special files

TEST_F(RealDiskTest, AnImportEmptiesNoOtherFolderOfTheProgram) {
    for (const char* other : {"import/ov2", "import/txt", "txt", "lang", "demo", ".", ".."}) {
        InstallFiles(folder);
        fs::remove_all(folder / "asc");
        fs::create_directory_symlink(other, folder / "asc");
        const Disk all = AllFiles(folder);
        EXPECT_EQ(DiskProgram(folder).Import(kOv2), "PictureNoDelete") << other;
        EXPECT_EQ(AllFiles(folder), all) << other;
    }
}

struct SpecialFile {
    const char* name;
    void (*make)(const std::string& path);
    bool importsOv2 = false;
};

const SpecialFile kSpecialFiles[] = {
    {"a link to nowhere", [](const std::string& path) { fs::create_symlink("missing/nowhere", path); }},
    {"a link to itself",
     [](const std::string& path) { fs::create_symlink(fs::path(path).filename(), path); }},
    {"a link to a folder", [](const std::string& path) { fs::create_symlink("../../elsewhere", path); },
     true},
    {"a pipe", [](const std::string& path) { ::mkfifo(path.c_str(), 0600); }},
    {"a device", [](const std::string& path) { fs::create_symlink("/dev/zero", path); }},
    {"a folder", [](const std::string& path) { fs::create_directory(path); }, true},
};

TEST_F(RealDiskTest, SpecialFilesInItsFoldersHoldNothingUp) {
    for (const SpecialFile& special : kSpecialFiles) {
        SCOPED_TRACE(special.name);
        InstallFiles(folder);
        for (const char* path :
             {"asc/fixed_70.asc", "lang/odd.ini", "import/ov2/odd.ov2", "import/txt/odd.txt"})
            special.make(folder / path);
        const Disk others = Others();
        DiskProgram program(folder);
        EXPECT_TRUE(program.Export());
        EXPECT_EQ(folder.Text("txt/SpeedCamText.txt"), kHeader + kExported);
        EXPECT_EQ(program.Import(kOv2), special.importsOv2 ? "PictureFinished" : "PictureIncomplete");
        EXPECT_EQ(CameraFiles(), kImportedOv2);
        const auto look = [&](auto& form) {
            EXPECT_NE(form.PictureFinished.ToolTip() == "\u2717 1 File(s)", special.importsOv2);
        };
        EXPECT_EQ(UserImports(program.toolkit, program.Window(), kTxt, look), "PictureFinished");
        EXPECT_EQ(CameraFiles(), kImportedTxt);
        EXPECT_EQ(Others(), others);
        ExpectConsistentWindow(program.Window());
    }
}

TEST_F(RealDiskTest, SpecialFilesMayStandForAnyFileAndFolder) {
    for (const std::string replaced :
         {"asc", "txt", "lang", "import/ov2", "import/txt", "Settings.ini", "Export Results.txt",
          "txt/SpeedCamText.txt", "txt/old.txt", "asc/fixed_50.asc", "asc/one.asc"}) {
        for (const SpecialFile& special : kSpecialFiles) {
            SCOPED_TRACE(replaced + ": " + special.name);
            InstallFiles(folder);
            fs::remove_all(folder / replaced);
            special.make(folder / replaced);
            const Disk others = Others();
            DiskProgram program(folder);
            program.Rename("fixed_50", "fixed_80");
            program.Export();
            program.Export(3, folder / "txt/old.txt");
            program.Import(kOv2);
            program.Import(kTxt);
            ExpectConsistentWindow(program.Window());
            EXPECT_FALSE(program.program.Desktop().Ended());
            EXPECT_EQ(Others(), others);
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
}

// Closed to this user

TEST_F(RealDiskTest, WhatIsClosedToTheUserStaysAsItIs) {
    if (::geteuid() == 0) GTEST_SKIP() << "nothing is closed to root";
    const auto isExported = [this] { return DiskProgram(folder).Export(); };
    const auto isImported = [this] { return DiskProgram(folder).Import(kOv2) == "PictureFinished"; };
    const struct {
        const char* path;
        unsigned mode;
        bool isExported, isImported;
    } cases[] = {{"txt/SpeedCamText.txt", 0444, false, true}, {"Settings.ini", 0, false, true},
                 {"asc/fixed_60.asc", 0, false, true},        {"asc", 0555, true, false},
                 {"import/ov2/one.ov2", 0, true, false},      {"import/ov2", 0, true, true}};
    for (const auto& closed : cases) {
        SCOPED_TRACE(closed.path);
        InstallFiles(folder);
        folder.Put("txt/SpeedCamText.txt", "before");
        const Disk cameras = CameraFiles();
        const fs::perms open = fs::status(folder / closed.path).permissions();
        fs::permissions(folder / closed.path, fs::perms(closed.mode));
        EXPECT_EQ(isExported(), closed.isExported);
        EXPECT_EQ(isImported(), closed.isImported);
        std::error_code ignored;  // it may be deleted by then
        fs::permissions(folder / closed.path, open, ignored);
        EXPECT_TRUE(closed.path != cases[0].path || TextIf(closed.path) == "before");
        EXPECT_EQ(CameraFiles() == cameras, closed.path == std::string("asc"));
    }
}

}  // namespace
}  // namespace halvenmoor
