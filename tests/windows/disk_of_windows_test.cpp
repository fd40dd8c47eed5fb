// What only a disk of Windows has: names that lead to devices, units that are no UTF-16, attributes.

#include "platform/system/program_folder.h"
#include "platform/system/user_folder.h"
#include "platform/windows/paths.h"
#include "tests/support/temporary_folder.h"
#include "tools/file_helpers.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace halvenmoor {
namespace {

class DiskOfWindows : public testing::Test, protected FilesOnDisk {
protected:
    platform::HostFiles& host = hostFiles;
    std::unique_ptr<platform::FileSystemObject> object = fileSystem.CreateFileSystemObject();
};

TEST_F(DiskOfWindows, NamesThatWindowsCannotOpenAreRefused) {
    folder.Put("a.asc", "kept\n");
    const std::string deep = folder / std::string(250, 'a');
    std::filesystem::create_directories(ToStandard(deep));
    const std::string withNul("a.asc\0b", 7);
    for (const std::string& name : std::initializer_list<std::string>{
             "CON", "nul", "COM1", "lpt9.asc", "Aux .txt", "COM\xC2\xB2", "CONOUT$", "a.asc.", "a.asc ",
             "a.asc:stream", "a\"", "what?", "*", "tab\t", "\xE4.asc", "CON/a.asc", withNul}) {
        SCOPED_TRACE(name);
        for (const std::string& path : {folder / name, deep + '/' + name}) {
            EXPECT_EQ(FailureNumber([&] { object->CreateTextFile(path); }), failure::PathNotFound);
            EXPECT_EQ(FailureNumber([&] { object->OpenTextFile(path); }), failure::FileNotFound);
            EXPECT_EQ(FailureNumber([&] { host.OpenBytes(path); }), failure::FileNotFound);
            EXPECT_EQ(FailureNumber([&] { object->OpenForAppending(path); }), failure::FileNotFound);
            EXPECT_NE(FailureNumber([&] { host.Rename(folder / "a.asc", path); }), 0);
            EXPECT_FALSE(object->FileExists(path));
        }
    }
    EXPECT_EQ(ReadLines(fileSystem, folder / "a.asc"), Strings{"kept"});
    EXPECT_EQ(FailureNumber([&] { object->OpenTextFile(R"(\\.\pipe\halvenmoor)"); }), failure::FileNotFound);
    EXPECT_EQ(system::SystemPath("com0"), system::SystemPath(".") + LR"(\com0)") << "no device";
}

TEST(PathsTest, AreAbsoluteAndAsLongAsNeedBe) {
    const std::pair<const char*, std::wstring> cases[] = {
        {"C:/a\\b/", LR"(\\?\C:\a\b)"},
        {"C:\\", LR"(\\?\C:\)"},
        {"C:/a/../b/./c", LR"(\\?\C:\b\c)"},
        {R"(\\server\share\a)", LR"(\\?\UNC\server\share\a)"},
        {"//server/share/a", LR"(\\?\UNC\server\share\a)"},
        {"", L""},
    };
    for (const auto& [path, expected] : cases) {
        EXPECT_EQ(system::SystemPath(path), expected) << path;
    }
    EXPECT_EQ(system::FromSystemPath(LR"(\\?\UNC\server\share)"), R"(\\server\share)");
    EXPECT_EQ(system::FromSystemPath(LR"(\\?\C:\a)"), R"(C:\a)");
}

// The disks of Wine do not take them.
TEST(PathsTest, EachRowOfUnitsHasBytesOfItsOwn) {
    const std::pair<std::wstring, const char*> cases[] = {
        {L"a\u00E4\u20AC", "a\xC3\xA4\xE2\x82\xAC"},
        {L"\xD83D\xDE00", "\xF0\x9F\x98\x80"},
        {L"\xD83D.asc", "\xED\xA0\xBD.asc"},
        {L"\xDE00\xD83D", "\xED\xB8\x80\xED\xA0\xBD"},
    };
    for (const auto& [wide, bytes] : cases) {
        EXPECT_EQ(system::FromWide(wide), bytes);
        EXPECT_EQ(system::ToWide(bytes), wide);
    }
    for (const char* const bytes :
         {"\x80", "\xC0\x80", "\xE0\x80\x80", "\xC3", "\xF4\x90\x80\x80", "\xFF", "\xC3(", "\xE4.asc"})
        EXPECT_EQ(system::ToWide(bytes), std::nullopt) << testing::PrintToString(bytes);
}

TEST_F(DiskOfWindows, TheFolderOfAUserGetsCopiesOfWhatIsAbsent) {
    folder.Put("program/Settings.ini", "new");
    folder.Put("program/lang/\xCE\xB5\xCE\xBB.ini", "greek");
    folder.Put("program/demo/asc_demo/a_50.asc", "a");
    folder.Put("own/settings.INI", "changed");
    for (int i = 0; i < 2; ++i) system::CompleteUserFolder(folder / "own", folder / "program");
    EXPECT_EQ(folder.Text("own/Settings.ini"), "changed");
    EXPECT_EQ(folder.Text("own/lang/\xCE\xB5\xCE\xBB.ini"), "greek");
    EXPECT_EQ(folder.Text("own/demo/asc_demo/a_50.asc"), "a");
    EXPECT_EQ(Search(host, folder / "own/import/txt"), Strings{});
    EXPECT_EQ(system::ProgramFolder(folder / "program"), folder / "program");
    EXPECT_EQ(FailureNumber([&] { system::CompleteUserFolder(folder / "no/own", folder / "program"); }),
              failure::PathNotFound);
}

TEST_F(DiskOfWindows, SystemFilesAreHiddenAndReadOnlyOnesStay) {
    folder.Put("asc/system.asc", "");
    folder.Put("asc/closed.asc", "kept\n");
    ::SetFileAttributesW(system::SystemPath(folder / "asc/system.asc").c_str(), FILE_ATTRIBUTE_SYSTEM);
    MakeReadOnly(folder / "asc/closed.asc");
    EXPECT_EQ(Search(host, folder / "asc"), Strings{"closed.asc"});
    EXPECT_EQ(ReadLines(fileSystem, folder / "asc/closed.asc"), Strings{"kept"});
}

}  // namespace
}  // namespace halvenmoor
