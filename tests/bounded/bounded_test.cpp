// No file makes the program take more memory than a megabyte and a stated multiple of the file's size. This
// program has its own operator new, which counts. Large files have holes: they take no space on the disk.
//
// HALVENMOOR_LARGE says how many megabytes they have, 256 unless it is set, and 2047 at most.

#include "fuzz/memory_platform.h"
#include "import/txt_import.h"
#include "tests/support/disk_program.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::size_t inUse = 0;
std::size_t maxInUse = 0;

void* Counted(void* memory) {
    if (memory != nullptr) inUse += malloc_usable_size(memory);
    maxInUse = std::max(maxInUse, inUse);
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

void operator delete(void* memory) noexcept {
    if (memory != nullptr) inUse -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace halvenmoor {
namespace {

constexpr std::size_t kMegabyte = 1024 * 1024;
const std::size_t kLarge = [] {
    const char* const wanted = std::getenv("HALVENMOOR_LARGE");
    return (wanted == nullptr ? 256 : std::stoul(wanted)) * kMegabyte;
}();
constexpr int kOv2 = ImportProgram::kOv2;
constexpr int kTxt = ImportProgram::kTxt;

class Bounded : public testing::Test {
protected:
    Bounded() {
        for (const char* name : {"asc", "txt", "import/ov2", "import/txt"}) folder.AddFolder(name);
        folder.Put("Settings.ini", "[Type1]\n*\n");
    }

    /// A file that begins with these bytes, goes on with zeros and ends with "xx".
    void PutLarge(const std::string& name, const std::string& begin) {
        folder.Put(name, begin);
        std::filesystem::resize_file(folder / name, kLarge - 2);
        std::ofstream(folder / name, std::ios::app) << "xx";
    }

    static void ExpectTakesAtMost(std::size_t bytes, const std::function<void()>& job) {
        const std::size_t before = maxInUse = inUse;
        job();
        EXPECT_LE(maxInUse - before, bytes + kMegabyte);
    }
    void ExpectImportTakesAtMost(std::size_t bytes, int source) {
        ExpectTakesAtMost(bytes, [&] { EXPECT_EQ(DiskProgram(folder).Import(source), "PictureFinished"); });
    }

    TemporaryFolder folder;
};

TEST_F(Bounded, LengthsThatAFileDoesNotHaveTakeNothing) {
    for (const char type : {'\0', '\2', '\3'}) {
        folder.Put("import/ov2/a.ov2", std::string(1, type).append("\xFF\xFF\xFF\x7F"
                                                                   "xxxxyyyyname"));
        ExpectImportTakesAtMost(0, kOv2);
    }
}

TEST_F(Bounded, LargeRecordIsHeldOnceAndItsLineOnce) {
    const std::string length{0, 0, static_cast<char>(kLarge >> 16), static_cast<char>(kLarge >> 24)};
    PutLarge("import/ov2/a.ov2", '\2' + length + "xxxxyyyyx");
    ExpectImportTakesAtMost(3 * kLarge, kOv2);
    EXPECT_TRUE(std::filesystem::exists(folder / "asc/a.asc"));
    PutLarge("import/ov2/a.ov2", '\0' + length);
    ExpectImportTakesAtMost(3 * kLarge, kOv2);
}

TEST_F(Bounded, LongLineTakesTheBufferThatItGrowsOutOfToo) {
    for (const std::string begin : {"", "1.5,52.5,"}) {
        PutLarge("asc/a.asc", begin);
        ExpectTakesAtMost(3 * kLarge, [this] { DiskProgram(folder).Export(); });
        EXPECT_EQ(folder.Text("txt/SpeedCamText.txt"), kHeader);
    }
    PutLarge("import/txt/a.txt", "1.5,52.5,1,50,");
    ExpectImportTakesAtMost(3 * kLarge, kTxt);
}

TEST_F(Bounded, RecordsOfTxtSourcesAreKeptUntilTheyAreWritten) {
    const std::string oneSpeed = Repeated("1,2,1,5\n", 2 * kMegabyte);
    folder.Put("import/txt/a.txt", oneSpeed);
    ExpectImportTakesAtMost(3 * oneSpeed.size(), kTxt);

    std::string manySpeeds;
    for (int speed = 0; speed < 100'000; ++speed) manySpeeds += ",,1," + std::to_string(speed) + "\n";
    fuzz::MemoryImport platform(1);
    platform.memory.Put("/source/a.txt", manySpeeds);
    ExpectTakesAtMost(20 * manySpeeds.size(), [&] { TxtImport(platform.task).ReadTxtFiles(); });
}

TEST_F(Bounded, SettingsTakeNoStringForEachComma) {
    const std::string text = "[Type1]\n" + std::string(16 * kMegabyte, ',');
    folder.Put("Settings.ini", text);
    ExpectTakesAtMost(5 * text.size(), [this] {
        const auto finder = system::MakePathFinder(text::WindowsCodePage(1252));
        system::DiskFileSystem files(*finder);
        const cSettingsClass read(files, folder / "Settings.ini");
        EXPECT_EQ(read.TypeFileNamePatterns()[1]->size(), kMaxPatterns + 1);
    });
}

TEST_F(Bounded, NamePatternsTakeAStateForEachByteOfUtf8) {
    folder.Put("asc/a.asc", "1.5, 52.5, \"no pattern\"\n");
    std::string text = "[Type1]\n*\n[Fixed]\n";
    for (int i = 0; i < 30'000; ++i) text += std::to_string(i) + std::string(40, '\x80') + ',';  // euro signs
    folder.Put("Settings.ini", text);
    ExpectTakesAtMost(160 * text.size(), [this] { EXPECT_TRUE(DiskProgram(folder).Export()); });
}

}  // namespace
}  // namespace halvenmoor
