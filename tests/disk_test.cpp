// What only a real disk has: buffers, sizes that change, locks, and a file for the options.

#include "platform/system/settings_file.h"
#include "platform/system/streams.h"
#include "tests/support/temporary_folder.h"
#include "tools/file_helpers.h"

#include <gtest/gtest.h>

namespace halvenmoor {
namespace {

class DiskTest : public testing::Test, protected FilesOnDisk {
protected:
    Strings LinesOf(const std::string& name) { return ReadLines(fileSystem, folder / name); }

    platform::HostFiles& host = hostFiles;
    std::unique_ptr<platform::FileSystemObject> object = fileSystem.CreateFileSystemObject();
};

TEST_F(DiskTest, LineEndsMayLieAnywhereAroundTheBordersOfTheBuffer) {
    for (std::size_t length = system::kBufferSize - 3; length <= system::kBufferSize + 1; ++length) {
        const std::string line(length, 'x');
        for (const std::string lineEnd : {"\n", "\r\n"}) {
            folder.Put("a", line + lineEnd + "next" + lineEnd + line + "\r|" + lineEnd + "last\r");
            EXPECT_TRUE(LinesOf("a") == (Strings{line, "next", line + "\r|", "last\r"})) << length;
        }
    }
}

TEST_F(DiskTest, LinesMayBeLongerThanTheBuffer) {
    const std::string longLine(5 * system::kBufferSize + 7, 'x');
    folder.Put("a", "\xEF\xBB\xBF" + longLine + "\r\nshort\r\n" + longLine);
    EXPECT_TRUE(LinesOf("a") == (Strings{longLine, "short", longLine}));

    const auto writer = object->CreateTextFile(folder / "b");
    writer->WriteLine("short");
    writer->WriteLine(longLine);
    writer->Close();
    EXPECT_TRUE(folder.Text("b") == "short\r\n" + longLine + "\r\n");
}

TEST_F(DiskTest, BytesCrossTheBordersOfTheBuffer) {
    std::string bytes(2 * system::kBufferSize + 10, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i % 251);
    folder.Put("a", bytes);
    const auto reader = host.OpenBytes(folder / "a");
    std::string read(bytes.size() + 1, '\0');
    EXPECT_EQ(reader->Read(std::span(read).first(7)), 7u);
    EXPECT_EQ(reader->Remaining(), bytes.size() - 7);
    EXPECT_EQ(reader->Read(std::span(read).subspan(7)), bytes.size() - 7);
    EXPECT_TRUE(read == bytes + '\0');
}

TEST_F(DiskTest, FilesAreReadToTheirSizeAtOpening) {
    folder.Put("grows", "one\n");
    folder.Put("shrinks", "two\n");
    const auto grows = object->OpenTextFile(folder / "grows");
    const auto shrinks = object->OpenTextFile(folder / "shrinks");
    folder.Put("grows", "one\nmore\n");
    folder.Put("shrinks", "t");
    EXPECT_EQ(ReadLines(*grows), Strings{"one"});
    EXPECT_EQ(FailureNumber([&] { ReadLines(*shrinks); }), failure::FileAccess);
}

TEST_F(DiskTest, AFileThatIsWrittenIsLocked) {
    folder.Put("target", "old\n");
    const auto writer = object->OpenForAppending(folder / "target");
    EXPECT_EQ(FailureNumber([&] { object->CreateTextFile(folder / "target"); }), failure::PermissionDenied);
    EXPECT_EQ(folder.Text("target"), "old\n");
    writer->Close();
    object->CreateTextFile(folder / "target");
}

TEST_F(DiskTest, OptionsAreStoredBesideTheLinesOfOthers) {
    folder.Put("halvenmoor.ini", "; a\r\n[App]\r\nS\\a=old\r\nS\\z=\"1, \\xe9f\"\r\n\n[Other]\nS\\b=2");
    folder.Put("halvenmoor.ini.AbCdEf", "");
    const Strings values = {"", "a b", "\xC3\x9C, \"x\\ ", "@1", "\0011\n"};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string name = {"abcde"[i]};
        system::SettingsFile(folder.Path()).SaveSetting("App", "S", name, values[i]);
        EXPECT_EQ(system::SettingsFile(folder.Path()).GetSetting("App", "S", name, "-"), values[i]);
    }
    EXPECT_EQ(folder.Text("halvenmoor.ini"),
              "; a\r\n[App]\r\nS\\a=\r\nS\\z=\"1, \\xe9f\"\r\nS\\b=a b\n"
              "S\\c=\"\xC3\x9C, \\\"x\\\\ \"\nS\\d=@@1\nS\\e=\\x01\\x31\\n\n\n[Other]\nS\\b=2");
    EXPECT_EQ(system::SettingsFile(folder.Path()).GetSetting("App", "S", "z", ""), "1, \xE0\xBA\x9F");
    EXPECT_EQ(folder.Names().size(), 2u);
    system::SettingsFile(folder / "new").SaveSetting("App", "S", "a", "kept");
    EXPECT_EQ(folder.Text("new/halvenmoor.ini"), "[App]\nS\\a=kept\n");
}

}  // namespace
}  // namespace halvenmoor
