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
#include <functional>
#include <gtest/gtest.h>

namespace halvenmoor {
namespace {

class JourneyTest : public testing::Test {
protected:
    JourneyTest() {
        for (const char* name : {"asc", "txt", "lang", "demo/txt_demo", "import/ov2", "import/txt"}) {
            folder.AddFolder(name);
        }
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

    /// Does something in a window once it shows.
    class Meeting {
    public:
        Meeting(JourneyTest& test, const char* window, std::function<void()> act) {
            QObject::connect(&timer_, &QTimer::timeout, [this, &test, window, act = std::move(act)] {
                if (test.Window(window) == nullptr) return;
                timer_.stop();
                act();
            });
            timer_.start(20);
        }

    private:
        QTimer timer_;
    };

    /// Imports from OV2 (1) or TXT (2) and tells how many camera files the dialog counted at its end.
    QString Import(int source) {
        QString count;
        const Meeting dialog(*this, "frmImport", [&] {
            const std::string option = "OptionSource(" + std::to_string(source) + ")";
            QTest::mouseClick(&Widget("frmImport", option.c_str()), Qt::LeftButton, {}, {8, 14});
            QTest::mouseClick(&Widget("frmImport", "ButtonStart"), Qt::LeftButton);
            EXPECT_TRUE(Widget("frmImport", "PictureFinished").isVisible());
            count = Words("frmImport", "LabelTargetFiles");
            QTest::keyClick(Window("frmImport"), Qt::Key_Escape);
        });
        Click("ButtonImportFiles");
        return count;
    }
    /// Classifies by name and exports; the target's text.
    std::string ClassifyAndExport() {
        const Meeting results(*this, "frmResults",
                              [this] { QTest::keyClick(Window("frmResults"), Qt::Key_Escape); });
        Click("ButtonClassifyFiles");
        Click("ButtonExportCameras");
        return folder.Text("txt/SpeedCamText.txt");
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
    const Meeting run(*this, "frmExport", [&] { sawRun = true; });
    const Meeting results(*this, "frmResults", [&] {
        sawResults = true;
        EXPECT_EQ(Words("frmResults", "LabelExportedResult(0)"), "3");
        EXPECT_EQ(Words("frmResults", "LabelSkippedResult(1)"), "1");
        QTest::keyClick(Window("frmResults"), Qt::Key_Escape);
    });
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

TEST_F(JourneyTest, Ov2SourceIsImportedRenamedAndExported) {
    // A skipper record, then one point, 0.5 degrees west and 51.25 north, named "Mill Lane".
    const std::string skipper("\x01" + std::string(20, '\0'));
    const std::string point("\x02\x17\0\0\0\xB0\x3C\xFF\xFF\x88\x33\x4E\0Mill Lane\0", 23);
    folder.Put("import/ov2/lanes.OV2", skipper + point);
    folder.Put("asc/old.asc", "1.5,2.5,\"old\"\n");
    Click("CheckDemoMode");
    EXPECT_EQ(Import(1), "1 File(s)");
    ClickFirstRow("MainList");
    const Meeting rename(*this, "frmRename", [this] {
        QWidget& name = Widget("frmRename", "TextFileName");
        QTest::keyClicks(&name, "Fixed 40 mph");
        QTest::keyClick(&name, Qt::Key_Return);
    });
    Click("ButtonRenameFile");
    EXPECT_EQ(Focused(), "MainList");
    EXPECT_EQ(ClassifyAndExport(),
              "X,Y,TYPE,SPEED,DirType,Direction\r\n"
              "-0.50000,51.25000,1,40,0,0\r\n");
}

TEST_F(JourneyTest, TxtSourceComesBackAsItWas) {
    folder.Put("Settings.ini",
               "[Type1]\nFixed_*\n[Type3]\nRedLight_*\n[Type4]\nSection_*\n[Settings]\nSourceStructure=3\n");
    folder.Put("import/txt/SpeedCamText.txt",
               "X,Y,TYPE,SPEED,DirType,Direction\r\n"
               "13.37700,52.51600,4,80,1,270\r\n"
               "-0.5,51.25,1,50,2,90\r\n"
               "1.5,41.5,3,70,1,180\r\n"
               "11.5,48.1,1,50,0,45\r\n");
    folder.Put("import/txt/short.txt", "2.25,41.75,1,120\n3.5,42.5,4,80\n");
    Click("CheckDemoMode");
    EXPECT_EQ(Import(2), "4 File(s)");
    // By type and speed; a red light has no speed, and where DirType is 0 there is no direction.
    EXPECT_EQ(ClassifyAndExport(),
              "X,Y,TYPE,SPEED,DirType,Direction\r\n"
              "-0.5,51.25,1,50,2,90\r\n"
              "11.5,48.1,1,50,0,0\r\n"
              "2.25,41.75,1,120,0,0\r\n"
              "1.5,41.5,3,0,1,180\r\n"
              "13.37700,52.51600,4,80,1,270\r\n"
              "3.5,42.5,4,80,0,0\r\n");
}

}  // namespace
}  // namespace halvenmoor
