// What only a real disk has: buffers, links, devices, foreign names and the rest of the machine.

#include "platform/system/locale.h"
#include "platform/system/process.h"
#include "platform/system/settings_file.h"
#include "platform/system/streams.h"
#include "tests/support/temporary_folder.h"
#include "tools/file_helpers.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace halvenmoor {
namespace {

class DiskTest : public testing::Test, protected FilesOnDisk {
protected:
    Strings LinesOf(const std::string& name) { return ReadLines(fileSystem, folder / name); }

    void Link(const std::string& target, const std::string& name) {
        std::filesystem::create_symlink(target, folder / name);
    }

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
    EXPECT_EQ(FailureNumber([&] { host.OpenBytes("/proc/self/status"); }), failure::FileAccess);
}

TEST_F(DiskTest, AFileThatIsWrittenIsLocked) {
    folder.Put("target", "old\n");
    const auto writer = object->OpenForAppending(folder / "target");
    EXPECT_EQ(FailureNumber([&] { object->CreateTextFile(folder / "target"); }), failure::PermissionDenied);
    EXPECT_EQ(folder.Text("target"), "old\n");
    writer->Close();
    object->CreateTextFile(folder / "target");
}

TEST_F(DiskTest, FoldersPipesAndDevicesAreNoFilesToRead) {
    ASSERT_EQ(::mkfifo((folder / "pipe.asc").c_str(), 0600), 0);
    for (const std::string& path : {folder / "pipe.asc", std::string("/dev/zero")}) {
        EXPECT_EQ(FailureNumber([&] { object->OpenTextFile(path); }), failure::FileAccess) << path;
        EXPECT_EQ(FailureNumber([&] { host.OpenBytes(path); }), failure::FileAccess) << path;
    }
    EXPECT_EQ(FailureNumber([&] { object->CreateTextFile(folder / "pipe.asc"); }), failure::FileAccess);
    EXPECT_EQ(FailureNumber([&] { object->OpenForAppending(folder / "pipe.asc"); }), failure::FileAccess);
    EXPECT_EQ(FailureNumber([&] { object->GetFolder(folder / "pipe.asc"); }), failure::PathNotFound);
}

TEST_F(DiskTest, LinksToFilesAreFilesAndLinksToFoldersAreFolders) {
    folder.Put("elsewhere/kept.asc", "kept\n");
    folder.AddFolder("asc");
    Link("../elsewhere/kept.asc", "asc/File.ASC");
    Link("../elsewhere", "asc/folder.asc");
    Link("nowhere", "asc/dangling.asc");
    Link("circle.asc", "asc/circle.asc");
    Link("asc", "link");

    EXPECT_EQ(Search(host, folder / "LINK"), Strings{"File.ASC"});
    for (const char* name : {"asc/folder.asc", "asc/dangling.asc", "asc/circle.asc"}) {
        EXPECT_FALSE(object->FileExists(folder / name)) << name;
    }
    EXPECT_EQ(LinesOf("link/FILE.asc"), Strings{"kept"});
    const auto rename = [&] { host.Rename(folder / "elsewhere/kept.asc", folder / "asc/dangling.asc"); };
    EXPECT_EQ(FailureNumber(rename), failure::FileExists);
    const auto files = object->GetFolder(folder / "link");
    for (const std::string& name : files->Files()) files->Delete(name);
    EXPECT_EQ(files->Files(), Strings{});
    EXPECT_EQ(folder.Text("asc/folder.asc/kept.asc"), "kept\n");
}

TEST_F(DiskTest, AFolderStaysTheSameWhenItsPathChanges) {
    folder.Put("asc/a.asc", "");
    const auto files = object->GetFolder(folder / "asc");
    std::filesystem::rename(folder / "asc", folder / "old");
    folder.Put("asc/new.asc", "");
    files->Delete("a.asc");
    EXPECT_EQ(files->Files(), Strings{});
    EXPECT_TRUE(object->FileExists(folder / "asc/new.asc"));
}

TEST_F(DiskTest, ScansAFolderAgainOnlyWhenItChanges) {
    folder.Put("asc/Y.ASC", "");
    EXPECT_TRUE(object->FileExists(folder / "asc/y.asc"));
    EXPECT_FALSE(object->FileExists(folder / "asc/x.asc"));
    const auto changed = std::filesystem::last_write_time(folder / "asc");
    folder.Put("asc/X.ASC", "");
    std::filesystem::last_write_time(folder / "asc", changed);
    EXPECT_TRUE(object->FileExists(folder / "asc/x.asc")) << "changed twice within a step of its time";
    const auto anHourAgo = changed - std::chrono::hours(1);
    std::filesystem::last_write_time(folder / "asc", anHourAgo);
    EXPECT_FALSE(object->FileExists(folder / "asc/z.asc"));
    folder.Put("asc/Z.ASC", "");
    std::filesystem::last_write_time(folder / "asc", anHourAgo);
    EXPECT_FALSE(object->FileExists(folder / "asc/z.asc"))
        << "a second scan for a folder that looks unchanged";
    std::filesystem::last_write_time(folder / "asc", changed);
    EXPECT_TRUE(object->FileExists(folder / "asc/z.asc")) << "in a folder that had not changed for long";
    std::filesystem::rename(folder / "asc/Z.ASC", folder / "asc/Z.Asc");
    EXPECT_EQ(finder->Find(folder / "asc/z.asc"), folder / "asc/Z.Asc");
}

TEST_F(DiskTest, OptionsAreStoredBesideTheLinesOfOthers) {
    folder.Put("real", "; a\r\n[App]\r\nS\\a=old\r\nS\\z=\"1, \\xe9f\"\r\n\n[Other]\nS\\b=2");
    folder.Put("halvenmoor.ini.AbCdEf", "");
    Link("real", "halvenmoor.ini");
    const Strings values = {"", "a b", "\xC3\x9C, \"x\\ ", "@1", "\0011\n"};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string name = {"abcde"[i]};
        system::SettingsFile(folder.Path()).SaveSetting("App", "S", name, values[i]);
        EXPECT_EQ(system::SettingsFile(folder.Path()).GetSetting("App", "S", name, "-"), values[i]);
    }
    EXPECT_EQ(folder.Text("real"),
              "; a\r\n[App]\r\nS\\a=\r\nS\\z=\"1, \\xe9f\"\r\nS\\b=a b\n"
              "S\\c=\"\xC3\x9C, \\\"x\\\\ \"\nS\\d=@@1\nS\\e=\\x01\\x31\\n\n\n[Other]\nS\\b=2");
    EXPECT_EQ(system::SettingsFile(folder.Path()).GetSetting("App", "S", "z", ""), "1, \xE0\xBA\x9F");
    EXPECT_EQ(folder.Names().size(), 3u);
    system::SettingsFile(folder / "new").SaveSetting("App", "S", "a", "kept");
    EXPECT_EQ(folder.Text("new/halvenmoor.ini"), "[App]\nS\\a=kept\n");
}

TEST_F(DiskTest, OptionsHoldForThisRunWhereTheyAreInNoFile) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const char* const target : {"pipe", "nowhere"}) {
        Link(target, "halvenmoor.ini");
        system::SettingsFile settings(folder.Path());
        settings.SaveSetting("App", "S", "a", "kept");
        EXPECT_EQ(settings.GetSetting("App", "S", "a", ""), "kept");
        EXPECT_EQ(folder.Names(), (Strings{"halvenmoor.ini", "pipe"})) << target;
        EXPECT_EQ(std::filesystem::read_symlink(folder / "halvenmoor.ini"), target);
        std::filesystem::remove(folder / "halvenmoor.ini");
    }
}

TEST(ProcessTest, HasStandardStreamsAndFailuresInPlaceOfSignals) {
    const auto lowestNumber = [] {
        for (const int standard : {STDIN_FILENO, STDERR_FILENO}) ::close(standard);
        system::PrepareProcess();
        for (const int signal : {SIGPIPE, SIGXFSZ}) std::raise(signal);
        return ::open("/", O_RDONLY);
    };
    EXPECT_EXIT(::_exit(lowestNumber() > STDERR_FILENO ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(DiskLocaleTest, FollowsTheEnvironmentAndNotTheCLibrary) {
    const char* value = std::getenv("LC_ALL");
    const std::string before = value == nullptr ? "" : value;  // an empty one counts as none
    ASSERT_EQ(::setenv("LC_ALL", "ru_RU.NotInstalled", 1), 0);
    const auto russian = system::SystemLocale::OfUser();
    ASSERT_EQ(::setenv("LC_ALL", before.c_str(), 1), 0);
    EXPECT_EQ(russian.CodePage().number, 1251);
    EXPECT_EQ(russian.DecimalSeparator(), ".");
}

}  // namespace
}  // namespace halvenmoor
