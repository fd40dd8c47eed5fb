#pragma once

#include "catalogue/frmMain.h"
#include "platform/disk/clock.h"
#include "platform/headless/memory_files.h"
#include "platform/headless/memory_settings.h"
#include "platform/headless/services.h"
#include "src/program.h"
#include "window_fixture.h"

namespace halvenmoor::qt {

/// The program's real windows over files in memory, in the folder /p. The test starts it.
class ProgramWindows : public testing::Test {
protected:
    ~ProgramWindows() override { program.MainForm().UserClose(); }

    QWidget& Main() { return *dynamic_cast<QWidget*>(program.MainForm().View()); }

    headless::MemoryFiles memory;
    headless::FixedApplication application{"/p"};
    disk::DiskClock clock;
    headless::MemorySettings settings;
    headless::MessageLog messages;
    headless::ScriptedFileDialogs fileDialogs;
    headless::FixedTheme theme;
    headless::FixedLocale locale;
    QtToolkit toolkit{locale};
    Program program{{memory, memory, application, clock, settings, messages, fileDialogs, theme, locale},
                    toolkit};
};

}  // namespace halvenmoor::qt
