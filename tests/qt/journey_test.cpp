// The program as a user has it: real windows over real files, from the start to the target file.

#include "catalogue/frmMain.h"
#include "platform/disk/clock.h"
#include "platform/disk/file_system.h"
#include "platform/disk/host_files.h"
#include "platform/disk/path_finder.h"
#include "platform/headless/memory_settings.h"
#include "platform/headless/services.h"
#include "platform/qt/theme.h"
#include "platform/qt/toolkit.h"
#include "program.h"
#include "tests/temporary_folder.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace halvenmoor {
namespace {

class JourneyTest : public testing::Test {
protected:
    JourneyTest() {
        for (const char* name : {"asc", "txt", "lang", "demo/txt_demo"}) folder.AddFolder(name);
        folder.Put("Settings.ini", "[Type1]\nfixed*\n[Mobile]\n(mobile)\n[Units]\nmph\n");
        folder.Put("lang/klingon.ini", "[Halvenmoor]\nButtonExportCameras=nob\n");
        folder.Put("demo/asc_demo/Fixed 50 mph.asc",
                   "; two cameras\r\n-0.12345, 51.50000, \"A406 <b>\", 1, 90\r\n-0.2, 51.6, \"x "
                   "(Mobile)\"\r\n1.5, 2.5\r\n");
        folder.Put("demo/asc_demo/Schule_30.ASC", "13.4,52.5,\"Schule, Nord\"");
        program.Start();
    }

    QWidget* Window(const char* name) {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() == name && top->isVisible()) return top;
        }
        return nullptr;
    }
    QWidget& Widget(const char* window, const char* control) {
        QWidget* const top = Window(window);
        QWidget* const found = top != nullptr ? top->findChild<QWidget*>(control) : nullptr;
        if (found == nullptr) throw std::runtime_error(std::string(control) + " does not show");
        return *found;
    }
    void Click(const char* control) { QTest::mouseClick(&Widget("frmMain", control), Qt::LeftButton); }
    void ClickFirstRow(const char* list) {
        auto& view = static_cast<QAbstractItemView&>(Widget("frmMain", list));
        const QPoint first = view.visualRect(view.model()->index(0, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, first);
    }
    /// Where the keys of the main window go.
    QString Focused() { return Window("frmMain")->focusWidget()->objectName(); }
    QString Words(const char* window, const char* control) {
        return Widget(window, control).property("text").toString();
    }

    TemporaryFolder folder;
    headless::FixedLocale locale;
    disk::PathFinder finder{locale.CodePage()};
    disk::DiskFileSystem fileSystem{finder};
    disk::DiskHostFiles hostFiles{finder};
    headless::FixedApplication application{folder.Path()};
    disk::DiskClock clock;
    headless::MemorySettings settings;
    headless::MessageLog messages;
    headless::ScriptedFileDialogs fileDialogs;
    qt::QtTheme theme;
    qt::QtToolkit toolkit{locale};
    Program program{
        {fileSystem, hostFiles, application, clock, settings, messages, fileDialogs, theme, locale}, toolkit};
};

TEST_F(JourneyTest, FromTheStartToTheTargetFile) {
    EXPECT_EQ(Window("frmMain")->windowTitle(), "Halvenmoor 3.2");
    EXPECT_EQ(Words("frmMain", "LabelTypeList(1)"), "Speed Camera Type \"1\" (Fixed Speed Camera)");
    Widget("frmMain", "LanguageList").setFocus();
    QTest::keyClick(&Widget("frmMain", "LanguageList"), Qt::Key_Down);
    EXPECT_EQ(Words("frmMain", "ButtonExportCameras"), "Nob");

    Click("ButtonClassifyFiles");
    EXPECT_EQ(Focused(), "ButtonExportCameras");
    ClickFirstRow("MainList");
    EXPECT_TRUE(Widget("frmMain", "ButtonRenameFile").isEnabled());
    Click("ButtonAdd(3)");
    EXPECT_FALSE(Widget("frmMain", "ButtonClassifyFiles").isEnabled());

    bool sawRun = false;
    bool sawResults = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        sawRun |= Window("frmExport") != nullptr;
        if (Window("frmResults") == nullptr || sawResults) return;
        sawResults = true;
        EXPECT_EQ(Words("frmResults", "LabelExportedResult(0)"), "3");
        EXPECT_EQ(Words("frmResults", "LabelSkippedResult(1)"), "1");
        QTest::keyClick(Window("frmResults"), Qt::Key_Escape);
    });
    watch.start(20);
    Click("ButtonExportCameras");

    EXPECT_TRUE(sawRun && sawResults);
    EXPECT_EQ(Focused(), "ButtonShowResults");
    EXPECT_EQ(folder.Text("demo/txt_demo/SpeedCamText.txt"),
              "X,Y,TYPE,SPEED,DirType,Direction\r\n"
              "-0.12345,51.50000,1,50,1,90\r\n"
              "-0.2,51.6,5,50,0,0\r\n"
              "13.4,52.5,3,30,0,0\r\n");
    Click("ButtonExitApplication");
    EXPECT_TRUE(program.Desktop().Ended());
    EXPECT_EQ(Window("frmMain"), nullptr);
}

}  // namespace
}  // namespace halvenmoor
