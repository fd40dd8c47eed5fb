// What is left when the program is killed. Each journey runs in a process of its own, again and again, and is
// killed at one of its calls to the system: nothing on the disk changes between two of them.
//
// HALVENMOOR_KILLS says how often each journey is killed, 10 times unless it is set.

#include "platform/qt/services/instance_guard.h"
#include "platform/qt/services/settings.h"
#include "tests/support/disk_program.h"
#include "tools/file_helpers.h"

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <limits>
#include <random>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace halvenmoor {
namespace {

using Work = std::function<void()>;

/// Runs the work in a process of its own.
pid_t Start(const Work& work) {
    const pid_t child = ::fork();
    if (child != 0) return child;
    constexpr unsigned kSecondsUntilItHangs = 20;
    ::alarm(kSecondsUntilItHangs);
    work();
    ::_exit(0);
}

int End(pid_t child) {
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

/// Runs the work and kills it when it has stopped so often, at the begin or at the end of a call to the
/// system. Returns how often it stopped.
int StopsUntilKilled(const Work& work, int lastStop) {
    const pid_t child = Start([&work] {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        work();
    });
    int stops = 0;
    for (int status = End(child); WIFSTOPPED(status); status = End(child), ++stops) {
        if (stops == lastStop) ::kill(child, SIGKILL);
        const int signal = WSTOPSIG(status) == SIGALRM ? SIGALRM : 0;
        ::ptrace(PTRACE_SYSCALL, child, nullptr, signal);
    }
    return stops;
}

/// What the work answers in a process of its own, 1 or 0; -1 if it came to no end.
int Answer(const std::function<bool()>& question) {
    const int status = End(Start([&question] { ::_exit(question() ? 1 : 0); }));
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class KillTest : public testing::Test {
protected:
    void SetUp() override {
        if (Answer([] { return ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0; }) == 0)
            GTEST_SKIP() << "this system lets no process be traced";
    }

    /// Kills the work at some of its stops, at all of them when they are few, and looks at what each kill
    /// left.
    void Sweep(const Work& prepare, const Work& work, const Work& look) {
        prepare();
        const int stops = StopsUntilKilled(work, std::numeric_limits<int>::max());
        const char* const wanted = std::getenv("HALVENMOOR_KILLS");
        const std::size_t kills = wanted == nullptr ? 10 : std::stoul(wanted);
        std::vector<int> all(static_cast<std::size_t>(stops));
        std::iota(all.begin(), all.end(), 1);
        std::vector<int> chosen;
        std::sample(all.begin(), all.end(), std::back_inserter(chosen), kills, std::mt19937(1));
        for (const int stop : chosen) {
            SCOPED_TRACE("killed at stop " + std::to_string(stop));
            prepare();
            StopsUntilKilled(work, stop);
            look();
        }
        std::cout << stops << " stops, killed " << chosen.size() << " times\n";
        EXPECT_GT(stops, 20);
    }

    TemporaryFolder folder;
};

constexpr std::size_t kManyCameras = 4000;

class JourneyKillTest : public KillTest {
protected:
    void Prepare() {
        InstallFiles(folder);
        folder.Put("asc/fixed_60.asc", Repeated("2.5, 52.5, \"b\"\r\n", kManyCameras));
        folder.Put("import/ov2/two.ov2", Repeated(kPoint, kManyCameras));
        folder.Put("import/txt/two.txt", Repeated("1.5,52.5,2,50\n", kManyCameras));
        installed = AllFiles(folder);
    }
    /// Plays a journey, and looks that at each sudden end every file was as before or as far as it is written
    /// by an undisturbed one. Files that may be gone by then are those below `emptied`.
    void Sweep(const std::function<void(DiskProgram&)>& play, const std::string& emptied = "-") {
        Prepare();
        const auto playWhole = [&] {
            DiskProgram program(folder);
            play(program);
        };
        playWhole();
        const Disk done = Files();
        EXPECT_NE(done, installed);
        KillTest::Sweep([this] { Prepare(); }, playWhole,
                        [&] {
                            ExpectBegun(done, emptied);
                            ExpectSoundWindow(DiskProgram(folder).Window());
                            if (emptied == "-") Prepare();
                            playWhole();
                            EXPECT_TRUE(Files() == done);
                        });
    }

    Disk Files() {
        Disk all = AllFiles(folder);
        all.erase("Export Results.txt");
        return all;
    }
    void ExpectBegun(const Disk& done, const std::string& emptied) {
        const Disk left = Files();
        for (const auto& [name, bytes] : left) {
            const bool isAsBefore = installed.count(name) > 0 && installed.at(name) == bytes;
            const bool isBegun = done.count(name) > 0 && done.at(name).starts_with(bytes);
            EXPECT_TRUE(isAsBefore || isBegun) << name;
        }
        for (const auto& [name, bytes] : installed) {
            EXPECT_TRUE(left.count(name) > 0 || name.starts_with(emptied)) << name << " is lost";
        }
    }

    Disk installed;
};

TEST_F(JourneyKillTest, Export) {
    Sweep([](DiskProgram& program) { program.Export(); });
    Sweep([this](DiskProgram& program) { program.Export(3, folder / "txt/old.txt"); });
}

TEST_F(JourneyKillTest, Import) {
    for (const int source : {ImportProgram::kOv2, ImportProgram::kTxt})
        Sweep([source](DiskProgram& program) { program.Import(source); }, "asc/");
}

TEST_F(JourneyKillTest, Rename) {
    KillTest::Sweep([this] { Prepare(); }, [this] { DiskProgram(folder).Rename("fixed_50", "named"); },
                    [this] {
                        const Disk left = AllFiles(folder);
                        Disk renamed = installed;
                        renamed["asc/named.asc"] = renamed.extract("asc/fixed_50.asc").mapped();
                        EXPECT_TRUE(left == installed || left == renamed);
                    });
}

TEST_F(KillTest, OptionsAreTheOldOnesOrTheNewOnes) {
    const auto save = [this](const char* demo, const char* language) {
        qt::QtSettings settings(folder.Path().c_str());
        settings.SaveSetting("App", "Settings", "DemoMode", demo);
        settings.SaveSetting("App", "Settings", "Language", language);
    };
    const auto areStored = [this](const char* demo, const char* language) {
        return Answer([&] {
                   qt::QtSettings settings(folder.Path().c_str());
                   return settings.GetSetting("App", "Settings", "DemoMode", "") == demo &&
                          settings.GetSetting("App", "Settings", "Language", "") == language;
               }) == 1;
    };
    Sweep(
        [&] { EXPECT_EQ(End(Start([&] { save("0", "Deutsch"); })), 0); }, [&] { save("1", "English"); },
        [&] {
            EXPECT_TRUE(areStored("0", "Deutsch") || areStored("1", "Deutsch") || areStored("1", "English"));
            const auto start = std::chrono::steady_clock::now();
            EXPECT_EQ(End(Start([&] { save("2", "French"); })), 0);
            EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
            EXPECT_TRUE(areStored("2", "French"));
            EXPECT_EQ(folder.Names(), Strings{"halvenmoor.ini"});
        });
}

TEST_F(KillTest, TheNextInstanceIsTheFirst) {
    const auto isFirst = [this] {
        int count = 1;
        char name[] = "halvenmoor";
        char* arguments[] = {name, nullptr};
        const QCoreApplication application(count, arguments);
        return qt::InstanceGuard(folder.Path().c_str()).IsFirst();
    };
    Sweep([] {}, [&] { isFirst(); },
          [&] {
              EXPECT_EQ(Answer(isFirst), 1);
              for (const std::string& name : folder.Names())
                  EXPECT_TRUE(name == "halvenmoor.lock" || name == "halvenmoor.socket") << name;
          });
}

}  // namespace
}  // namespace halvenmoor
