// Measures the lists of the main window, on the model alone and in the real window off-screen: filling them,
// classifying all entries and moving all of them back at once. Prints lines NAME ENTRIES CPU_SECONDS.

#include "catalogue/frmMain.h"
#include "platform/fakes/fakes.h"
#include "platform/fakes/memory_files.h"
#include "program.h"

#ifdef HALVENMOOR_QT
#include "platform/qt/qt_platform.h"
#endif

#include <ctime>
#include <functional>
#include <iostream>
#include <numeric>
#include <string>
#include <vector>

using namespace halvenmoor;

namespace {

/// A camera folder that costs nothing to search, so that the lists alone are measured.
class ManyCameraFiles : public platform::HostFiles {
public:
    explicit ManyCameraFiles(int count) {
        for (int i = 0; i < count; ++i)
            names_.push_back("Camera " + std::to_string(i * 7919 % count) + ".asc");
    }

    void Search(std::string_view, std::string_view extension,
                const std::function<void(std::string_view)>& found) override {
        if (extension != ".asc") return;
        for (const std::string& name : names_) found(name);
    }
    std::optional<std::string> FindFile(std::string_view) override { return std::nullopt; }
    std::unique_ptr<platform::ByteReader> OpenBytes(std::string_view) override { return nullptr; }
    void Rename(std::string_view, std::string_view) override {}

private:
    std::vector<std::string> names_;
};

struct BenchPlatform : fakes::Fakes {
    explicit BenchPlatform(int entries) : cameraFiles(entries) {
        files.Put("/p/Settings.ini", "[Type1]\r\n*1.asc\r\n[Type2]\r\n*2.asc\r\n[Type3]\r\n*\r\n");
    }

    platform::Platform Services() { return With(files, cameraFiles); }

    fakes::MemoryFiles files;
    ManyCameraFiles cameraFiles;
};

double CpuSeconds(const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void SelectAll(forms::ListBox& list) {
    std::vector<int> rows(static_cast<std::size_t>(list.ListCount()));
    std::iota(rows.begin(), rows.end(), 0);
    list.UserSelect(rows, list.ListCount() - 1);
}

void MoveAllBack(frmMain& window) {
    for (forms::ListBox& list : window.TypeList) {
        SelectAll(list);
        window.ButtonRemove[1].UserPress();
    }
}

/// One move of all entries is so short that several are measured.
constexpr int kRounds = 10;

/// One turn of the toolkit follows each action, so that a real window paints what has changed.
void Measure(const std::string& name, int entries, forms::Toolkit& toolkit) {
    BenchPlatform platform(entries);
    Program program(platform.Services(), toolkit);
    program.Start();
    frmMain& window = program.MainForm();
    const auto seconds = [&](const std::function<void()>& work) {
        return CpuSeconds([&] {
            work();
            toolkit.HandleEvents(0);
        });
    };
    const auto report = [&](const std::string& action, double cost) {
        std::cout << name << '-' << action << ' ' << entries << ' ' << cost << '\n';
    };
    report("fill", seconds([&] { window.CheckAuto[5].UserPress(); }));
    double classifying = 0;
    double moving = 0;
    for (int round = 0; round < kRounds; ++round) {
        classifying += seconds([&] { window.ButtonClassifyFiles.UserPress(); });
        moving += seconds([&] { MoveAllBack(window); });
    }
    report("classify", classifying / kRounds);
    report("move", moving / kRounds);
    window.UserClose();
}

}  // namespace

int main(int, [[maybe_unused]] char** arguments) {
    headless::SkippingClock clock;
    fakes::WatchedToolkit model(clock);
    for (const int entries : {5000, 20000}) Measure("model", entries, model);
#ifdef HALVENMOOR_QT
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const fakes::FixedLocale locale;
    fakes::MemoryFiles files;
    qt::QtPlatform qt(arguments[0], locale, files);
    for (const int entries : {5000, 20000}) Measure("window", entries, qt.toolkit);
#endif
    return 0;
}
