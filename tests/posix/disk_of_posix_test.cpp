// What only a disk of POSIX has: pipes, links, devices, folders that move while they are open.

#include "platform/system/instance_lock.h"
#include "platform/system/locale.h"
#include "platform/system/process.h"
#include "platform/system/settings_file.h"
#include "tests/support/temporary_folder.h"
#include "tools/file_helpers.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace halvenmoor {
namespace {

class DiskOfPosix : public testing::Test, protected FilesOnDisk {
protected:
    Strings LinesOf(const std::string& name) { return ReadLines(fileSystem, folder / name); }

    void Link(const std::string& target, const std::string& name) {
        std::filesystem::create_symlink(target, folder / name);
    }

    platform::HostFiles& host = hostFiles;
    std::unique_ptr<platform::FileSystemObject> object = fileSystem.CreateFileSystemObject();
};

TEST_F(DiskOfPosix, FoldersPipesAndDevicesAreNoFilesToRead) {
    ASSERT_EQ(::mkfifo((folder / "pipe.asc").c_str(), 0600), 0);
    for (const std::string& path : {folder / "pipe.asc", std::string("/dev/zero")}) {
        EXPECT_EQ(FailureNumber([&] { object->OpenTextFile(path); }), failure::FileAccess) << path;
        EXPECT_EQ(FailureNumber([&] { host.OpenBytes(path); }), failure::FileAccess) << path;
    }
    EXPECT_EQ(FailureNumber([&] { host.OpenBytes("/proc/self/status"); }), failure::FileAccess);
    EXPECT_EQ(FailureNumber([&] { object->CreateTextFile(folder / "pipe.asc"); }), failure::FileAccess);
    EXPECT_EQ(FailureNumber([&] { object->OpenForAppending(folder / "pipe.asc"); }), failure::FileAccess);
    EXPECT_EQ(FailureNumber([&] { object->GetFolder(folder / "pipe.asc"); }), failure::PathNotFound);
}

TEST_F(DiskOfPosix, LinksToFilesAreFilesAndLinksToFoldersAreFolders) {
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

TEST_F(DiskOfPosix, AFolderStaysTheSameWhenItsPathChanges) {
    folder.Put("asc/a.asc", "");
    const auto files = object->GetFolder(folder / "asc");
    std::filesystem::rename(folder / "asc", folder / "old");
    folder.Put("asc/new.asc", "");
    files->Delete("a.asc");
    EXPECT_EQ(files->Files(), Strings{});
    EXPECT_TRUE(object->FileExists(folder / "asc/new.asc"));
}

TEST_F(DiskOfPosix, ScansAFolderAgainOnlyWhenItChanges) {
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

TEST_F(DiskOfPosix, OptionsHoldForThisRunWhereTheyAreInNoFile) {
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
    folder.Put("real", "");
    Link("real", "halvenmoor.ini");
    system::SettingsFile(folder.Path()).SaveSetting("App", "S", "a", "kept");
    EXPECT_EQ(folder.Text("real"), "[App]\nS\\a=kept\n") << "behind a link";
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

TEST(InstanceLock, NeedsAFolderThatIsItsUsersAlone) {
    const TemporaryFolder folder;
    std::filesystem::create_directory_symlink(folder.Path(), folder / "link");
    folder.AddFolder("open");
    std::filesystem::permissions(folder / "open", std::filesystem::perms(0755));
    for (const char* const name : {"link", "open", "missing"}) {
        const auto lock = system::MakeInstanceLock(folder / name);
        testing::internal::CaptureStderr();
        EXPECT_TRUE(lock->IsFirst()) << name;
        EXPECT_TRUE(
            testing::internal::GetCapturedStderr().starts_with("halvenmoor: no lock in " + folder / name));
        EXPECT_EQ(lock->Listen(), std::nullopt) << name;
    }
}

TEST(InstanceLock, SendsWithoutWaiting) {
    const TemporaryFolder folder;
    const auto first = system::MakeInstanceLock(folder.Path());
    const auto second = system::MakeInstanceLock(folder.Path());
    ASSERT_TRUE(first->IsFirst());
    ASSERT_TRUE(first->Listen().has_value());
    ASSERT_FALSE(second->IsFirst());
    for (int i = 0; i < 5000; ++i) second->Send("one of more than fit");
    EXPECT_EQ(first->Receive(), "one of more than fit");
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
