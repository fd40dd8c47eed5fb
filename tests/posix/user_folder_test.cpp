// The program folder of a user who cannot write to that of the program.

#include "platform/system/user_folder.h"

#include "platform/system/program_folder.h"
#include "tests/posix/size_limit.h"
#include "tests/support/disk_program.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

namespace halvenmoor {
namespace {

namespace fs = std::filesystem;

class DiskUserFolderTest : public testing::Test {
protected:
    DiskUserFolderTest() {
        Install("package");
        ::unsetenv("HALVENMOOR_FOLDER");
        ::setenv("HOME", (disk / "home").c_str(), 1);
        ::setenv("XDG_CONFIG_HOME", (disk / "home/.config").c_str(), 1);
        disk.AddFolder("home");
    }

    void Install(const std::string& data) {
        disk.Put(data + "/Settings.ini", "[Type1]\n");
        disk.Put(data + "/manual.html", "manual");
        disk.Put(data + "/lang/dansk.ini", "danish");
        disk.Put(data + "/lang/suomi.ini", "finnish");
        disk.Put(data + "/demo/asc_demo/a_50.asc", Repeated("1.5, 52.5, \"a\"\r\n", 500));
        disk.Put(data + "/demo/asc_demo/b_60.asc", "b");
        fs::permissions(disk / (data + "/Settings.ini"), fs::perms::owner_read);
    }

    void Complete(const std::string& data = "package") {
        system::CompleteUserFolder(disk / "home/own", disk / data);
    }

    Disk Own() {
        Disk own;
        for (const auto& [name, bytes] : AllFiles(disk))
            if (name.starts_with("home/own/")) own[name.substr(9)] = bytes;
        return own;
    }
    std::string LinkTo(const std::string& part) { return "-> " + disk / part; }

    TemporaryFolder disk;
    const Disk whole{{"Settings.ini", "[Type1]\n"},
                     {"manual.html", LinkTo("package/manual.html")},
                     {"lang/dansk.ini", LinkTo("package/lang/dansk.ini")},
                     {"lang/suomi.ini", LinkTo("package/lang/suomi.ini")},
                     {"demo/asc_demo/a_50.asc", Repeated("1.5, 52.5, \"a\"\r\n", 500)},
                     {"demo/asc_demo/b_60.asc", "b"}};
};

TEST_F(DiskUserFolderTest, GetsWhatIsAbsentAndKeepsWhatIsThere) {
    Complete();
    EXPECT_EQ(Own(), whole);
    for (const char* name : {"asc", "txt", "import/ov2", "import/txt", "demo/asc", "demo/txt_demo",
                             "demo/import/ov2", "demo/import/txt"})
        EXPECT_TRUE(fs::is_directory(disk / "home/own/" + name)) << name;

    disk.Put("home/own/Settings.ini", "mine");  // the copy can be written, whatever the package allows
    fs::rename(disk / "home/own/demo/asc_demo/b_60.asc", disk / "home/own/demo/asc_demo/b_70.asc");
    fs::rename(disk / "home/own/asc", disk / "home/own/ASC");
    fs::remove(disk / "home/own/import/txt");
    fs::remove(disk / "home/own/lang/dansk.ini");
    disk.Put("home/own/lang/Dansk.ini", "mine, too");
    fs::create_symlink("/nowhere/deutsch.ini", disk / "home/own/lang/deutsch.ini");
    const Disk changed = Own();
    Complete();
    EXPECT_EQ(Own(), changed);
    EXPECT_TRUE(fs::is_directory(disk / "home/own/import/txt"));
    EXPECT_FALSE(fs::exists(disk / "home/own/asc"));

    Install("newer");
    disk.Put("newer/lang/deutsch.ini", "german");
    disk.Put("newer/lang/eesti.ini", "estonian");
    fs::remove_all(disk / "package");
    Complete("newer");
    Disk expected = changed;
    for (const char* part : {"manual.html", "lang/suomi.ini", "lang/eesti.ini"})
        expected[part] = LinkTo(std::string("newer/") + part);
    EXPECT_EQ(Own(), expected);
}

TEST_F(DiskUserFolderTest, IsCompletedByTheNextStartOnceADiskWasFull) {
    const auto failureOf = [this] {
        try {
            Complete();
            return std::string();
        } catch (const Failure& failure) {
            return std::string(failure.what());
        }
    };
    for (const rlim_t limit : {5U, 100U, 5000U}) {
        fs::remove_all(disk / "home/own");
        EXPECT_EQ(WithSizeLimit(limit, failureOf), "Disk full: " + disk / "home/own");
        EXPECT_EQ(fs::exists(disk / "home/own/Settings.ini"), limit > 5);
        EXPECT_FALSE(fs::exists(disk / "home/own/demo/asc_demo"));
        EXPECT_EQ(failureOf(), "");
        EXPECT_EQ(Own(), whole);
    }
}

TEST_F(DiskUserFolderTest, LiesAmongTheDocumentsElseInTheHomeFolder) {
    const struct {
        const char* userDirs;
        const char* folder;  // in the home folder
    } cases[] = {
        {"", "Halvenmoor"},
        {"# XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n", "Halvenmoor"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", "Halvenmoor"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/Missing\"\n", "Halvenmoor"},
        {"XDG_DOCUMENTS_DIR=\"Papers\"\n", "Halvenmoor"},
        {"XDG_DESKTOP_DIR=\"$HOME/\"\n  XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\r\n", "Papers/Halvenmoor"},
        {R"(XDG_DOCUMENTS_DIR="$HOME/My \"best\" \\ \$ papers")", R"(My "best" \ $ papers/Halvenmoor)"},
    };
    disk.AddFolder("home/Papers");
    disk.AddFolder(R"(home/My "best" \ $ papers)");
    for (const auto& each : cases) {
        disk.Put("home/.config/user-dirs.dirs", each.userDirs);
        EXPECT_EQ(system::UserFolder(), disk / "home/" + each.folder) << each.userDirs;
    }
    disk.Put("home/.config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"" + disk / "home/Papers" + "/\"\n");
    EXPECT_EQ(system::UserFolder(), disk / "home/Papers/Halvenmoor");
    disk.AddFolder("home/Halvenmoor");  // made before there was a folder for documents
    EXPECT_EQ(system::UserFolder(), disk / "home/Halvenmoor");

    ::setenv("HALVENMOOR_FOLDER", (disk / "home/elsewhere//").c_str(), 1);
    EXPECT_EQ(system::UserFolder(), disk / "home/elsewhere");
    ::unsetenv("HALVENMOOR_FOLDER");
    fs::remove_all(disk / "home");
    EXPECT_THROW(system::UserFolder(), Failure);
}

TEST_F(DiskUserFolderTest, IsOnlyForProgramsThatAreInAPackageOrClosedToWriting) {
    EXPECT_EQ(system::ProgramFolder(disk / "package"), disk / "package");
    disk.AddFolder("lib");
    fs::create_symlink("../package", disk / "lib/data");
    EXPECT_EQ(system::ProgramFolder(disk / "lib"), disk / "home/Halvenmoor");
    EXPECT_EQ(disk.Text("home/Halvenmoor/lang/dansk.ini"), "danish");
    if (::geteuid() == 0) GTEST_SKIP() << "nothing is closed to root";
    ::setenv("HALVENMOOR_FOLDER", (disk / "home/other").c_str(), 1);
    fs::permissions(disk / "package", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(system::ProgramFolder(disk / "package"), disk / "home/other");
    EXPECT_EQ(disk.Text("home/other/lang/dansk.ini"), "danish");
    fs::permissions(disk / "home", fs::perms::owner_read | fs::perms::owner_exec);
    ::setenv("HALVENMOOR_FOLDER", (disk / "home/third").c_str(), 1);
    EXPECT_THROW(system::ProgramFolder(disk / "package"), Failure);
    for (const char* closed : {"home", "package"}) fs::permissions(disk / closed, fs::perms::owner_all);
}

}  // namespace
}  // namespace halvenmoor
