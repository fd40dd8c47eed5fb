#pragma once

#include "catalogue/frmMain.h"
#include "platform/fakes/fakes.h"
#include "platform/fakes/memory_files.h"
#include "platform/system/clock.h"
#include "src/program.h"
#include "window_fixture.h"

namespace halvenmoor::qt {

/// The window of this name, if it shows.
inline QWidget* ShownWindow(const char* name) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible()) return window;
    }
    return nullptr;
}

/// Does something in a window once it shows, which it must.
class WhenShown {
public:
    WhenShown(const char* name, std::function<void(QWidget& window)> action) {
        QObject::connect(&timer_, &QTimer::timeout, [this, name, action = std::move(action)] {
            QWidget* const window = ShownWindow(name);
            if (window == nullptr) return;
            timer_.stop();
            hasMet_ = true;
            action(*window);
        });
        timer_.start(20);
    }
    ~WhenShown() { EXPECT_TRUE(hasMet_); }

private:
    QTimer timer_;
    bool hasMet_ = false;
};

/// The program in its real windows. The test starts it.
class RealWindows : public testing::Test, protected fakes::Fakes {
protected:
    RealWindows(platform::FileSystem& fileSystem, platform::HostFiles& hostFiles, std::string folder)
        : Fakes(std::move(folder)),
          program({fileSystem, hostFiles, programInfo, realClock, settings, messages, fileDialogs, browser,
                   theme, locale},
                  windows) {}
    ~RealWindows() override { program.MainForm().UserClose(); }

    frmMain& Form() { return program.MainForm(); }
    QWidget& Main() { return WidgetOf(Form()); }
    void StartActive() {
        program.Start();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
    }
    static void Click(const forms::Control& control) {
        QTest::mouseClick(&WidgetOf(control), Qt::LeftButton);
    }
    static void ClickRow(const forms::ListBox& list, int row) {
        auto& view = dynamic_cast<QListView&>(WidgetOf(list));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, CentreOfRow(view, row));
    }

    system::SystemClock realClock;
    QtToolkit windows{locale};
    Program program;
};

struct FilesInMemory {
    fakes::MemoryFiles memory;
};

/// The same over files in memory, in the folder /p.
class ProgramWindows : protected FilesInMemory, public RealWindows {
protected:
    ProgramWindows() : RealWindows(memory, memory, "/p") {}

    void AddDemoFile(const std::string& entry, const std::string& text) {
        memory.Put("/p/demo/asc_demo/" + entry + ".asc", text);
    }
};

}  // namespace halvenmoor::qt
