// No file makes the program take more memory than a megabyte and a stated multiple of the file's size. This
// program has its own operator new, which counts. Large files have holes: they take no room on the disk.

#include "export/frmResults.h"
#include "import/ov2_import.h"
#include "import/txt_import.h"
#include "platform/disk/file_system.h"
#include "platform/disk/host_files.h"
#include "platform/disk/path_finder.h"
#include "platform/headless/twins.h"
#include "platform/headless/user.h"
#include "src/program.h"
#include "tests/temporary_folder.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <malloc.h>
#include <new>

namespace {

std::size_t inUse = 0;
std::size_t mostInUse = 0;

void* Counted(void* memory) {
    if (memory != nullptr) inUse += malloc_usable_size(memory);
    mostInUse = std::max(mostInUse, inUse);
    return memory;
}

}  // namespace

void* operator new(std::size_t size) {
    void* const memory = Counted(std::malloc(size));
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Counted(std::malloc(size));
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void operator delete(void* memory) noexcept {
    if (memory != nullptr) inUse -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

void operator delete[](void* memory) noexcept {
    operator delete(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace halvenmoor {
namespace {

constexpr std::size_t kMegabyte = 1024 * 1024;
constexpr std::size_t kLarge = 256 * kMegabyte;

/// Programs on a real disk, and imports there.
class Bounded : public testing::Test, public ImportProgress {
protected:
    Bounded() {
        for (const char* name : {"asc", "txt", "lang", "ov2"})
            std::filesystem::create_directory(folder / name);
        twins.settings.SaveSetting("Halvenmoor", "Settings", "DemoMode", "0");
        folder.Put("Settings.ini", "[Type1]\n*\n");
    }

    void Turn() override {}
    bool StopRequested() const override { return false; }
    void FileDone() override {}
    void RecordsAdded(std::int32_t) override {}

    /// A file that begins with these bytes, goes on with zeros and ends with "xx".
    void PutLarge(const std::string& name, const std::string& begin) {
        folder.Put(name, begin);
        std::filesystem::resize_file(folder / name, kLarge - 2);
        std::ofstream(folder / name, std::ios::app) << "xx";
    }

    static void ExpectTakesAtMost(std::size_t bytes, const std::function<void()>& job) {
        const std::size_t before = mostInUse = inUse;
        job();
        EXPECT_LE(mostInUse - before, bytes + kMegabyte);
    }

    ImportTask Import(const std::string& source) {
        return {services, *this, folder / source + "/", folder / "asc/", 1};
    }
    void ImportTxt() {
        const ImportTask task = Import("txt");
        TxtImport import(task);
        import.ReadTxtFiles();
        import.CollectAllSpeeds();
        import.WriteAllTypes();
    }

    /// Starts, classifies and exports.
    void Export() {
        Program program(services, twins.toolkit);
        program.Start();
        program.MainForm().ButtonClassifyFiles.UserPress();
        twins.toolkit.Script([](forms::Form& form) { form.UserEscape(); });
        program.MainForm().ButtonExportCameras.UserPress();
        twins.toolkit.ForgetScript();
    }

    TemporaryFolder folder;
    disk::PathFinder finder{text::WindowsCodePage(1252)};
    disk::DiskFileSystem fileSystem{finder};
    disk::DiskHostFiles hostFiles{finder};
    headless::Twins twins{folder / "."};
    platform::Platform services = twins.With(fileSystem, hostFiles);
};

TEST_F(Bounded, LengthsThatAFileDoesNotHaveTakeNothing) {
    for (const char type : {'\0', '\2', '\3'}) {
        folder.Put("ov2/a.ov2", std::string(1, type) + "\xFF\xFF\xFF\x7F" + "xxxxyyyyname");
        ExpectTakesAtMost(0, [this] { EXPECT_EQ(ConvertOv2Files(Import("ov2")), 0); });
    }
}

TEST_F(Bounded, LargeRecordIsHeldOnceAndItsLineOnce) {
    PutLarge("ov2/a.ov2", std::string("\2\0\0\0\x10xxxxyyyyx", 14));  // a name of 256 MB
    ExpectTakesAtMost(3 * kLarge, [this] { EXPECT_EQ(ConvertOv2Files(Import("ov2")), 0); });
    EXPECT_TRUE(std::filesystem::exists(folder / "asc/a.asc"));
    PutLarge("ov2/a.ov2", std::string("\0\0\0\0\x10", 5));
    ExpectTakesAtMost(3 * kLarge, [this] { EXPECT_EQ(ConvertOv2Files(Import("ov2")), 0); });
}

TEST_F(Bounded, LongLineTakesTheBufferThatItGrowsOutOfToo) {
    for (const std::string begin : {"", "1.5,52.5,"}) {
        PutLarge("asc/a.asc", begin);
        ExpectTakesAtMost(3 * kLarge, [this] { Export(); });
        EXPECT_EQ(folder.Text("txt/SpeedCamText.txt"), "X,Y,TYPE,SPEED,DirType,Direction\r\n");
    }
    std::filesystem::remove(folder / "asc/a.asc");
    PutLarge("txt/a.txt", "1.5,52.5,1,50,");
    ExpectTakesAtMost(3 * kLarge, [this] { ImportTxt(); });
}

TEST_F(Bounded, RecordsOfTxtSourcesAreKeptUntilTheyAreWritten) {
    std::string oneSpeed;
    while (oneSpeed.size() < 16 * kMegabyte) oneSpeed += "1,2,1,5\n";
    folder.Put("txt/a.txt", oneSpeed);
    ExpectTakesAtMost(3 * oneSpeed.size(), [this] { ImportTxt(); });

    std::string manySpeeds;
    for (int speed = 0; speed < 100'000; ++speed) manySpeeds += ",,1," + std::to_string(speed) + "\n";
    folder.Put("txt/a.txt", manySpeeds);
    const ImportTask task = Import("txt");
    ExpectTakesAtMost(20 * manySpeeds.size(), [&] { TxtImport(task).ReadTxtFiles(); });
}

TEST_F(Bounded, SettingsTakeNoStringForEachComma) {
    const std::string text = "[Type1]\n" + std::string(16 * kMegabyte, ',');
    folder.Put("Settings.ini", text);
    ExpectTakesAtMost(5 * text.size(), [this] {
        const cSettingsClass read(fileSystem, folder / "Settings.ini");
        EXPECT_EQ(read.TypeFileNamePatterns()[1]->size(), kMaxPatterns + 1);
    });
}

}  // namespace
}  // namespace halvenmoor
