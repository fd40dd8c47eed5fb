// What is left when the program is killed. Some work runs in a process of its own, again and again, and is
// killed at one of its calls to the system: nothing on the disk changes between two of them.
//
// HALVENMOOR_KILLS says how often, 10 times unless it is set.

#include "platform/qt/services/instance_guard.h"
#include "platform/system/instance_lock.h"
#include "platform/system/settings_file.h"
#include "tests/support/disk_program.h"

#include <QCoreApplication>
#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <limits>
#include <numeric>
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
        std::vector<int> chosen(static_cast<std::size_t>(stops));
        std::iota(chosen.begin(), chosen.end(), 1);
        std::shuffle(chosen.begin(), chosen.end(), std::mt19937(1));
        chosen.resize(std::min(kills, chosen.size()));
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

/// What a kill may leave of a target: the lines that had been written. That holds for camera files, too,
/// which are written in the same way.
TEST_F(KillTest, TheTargetIsAsFarAsItWasWritten) {
    InstallFiles(folder);
    folder.Put("asc/fixed_60.asc", Repeated("2.5, 52.5, \"b\"\r\n", 4000));
    const std::string old = folder.Text("txt/old.txt");
    const auto append = [this] { DiskProgram(folder).Export(3, folder / "txt/old.txt"); };
    append();
    const std::string whole = folder.Text("txt/old.txt");
    Sweep([&] { folder.Put("txt/old.txt", old); }, append,
          [&] {
              const std::string left = folder.Text("txt/old.txt");
              EXPECT_TRUE(left.starts_with(old) && whole.starts_with(left) && left.ends_with('\n'));
          });
}

TEST_F(KillTest, OptionsAreTheOldOnesOrTheNewOnes) {
    const auto save = [this](const char* demo, const char* language) {
        system::SettingsFile settings(folder.Path());
        settings.SaveSetting("App", "Settings", "DemoMode", demo);
        settings.SaveSetting("App", "Settings", "Language", language);
    };
    const auto areStored = [this](const char* demo, const char* language) {
        return Answer([&] {
                   system::SettingsFile settings(folder.Path());
                   return settings.GetSetting("App", "Settings", "DemoMode", "") == demo &&
                          settings.GetSetting("App", "Settings", "Language", "") == language;
               }) == 1;
    };
    Sweep(
        [&] { EXPECT_EQ(End(Start([&] { save("0", "Deutsch"); })), 0); }, [&] { save("1", "English"); },
        [&] {
            EXPECT_TRUE(areStored("0", "Deutsch") || areStored("1", "Deutsch") || areStored("1", "English"));
            EXPECT_EQ(End(Start([&] { save("2", "French"); })), 0);
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
        const auto lock = system::MakeInstanceLock(folder.Path());
        return qt::InstanceGuard(*lock).IsFirst();
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
