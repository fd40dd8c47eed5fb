// The program as a user has it: real windows over real files, from the start to the target file.

#include "platform/posix/file_system.h"
#include "platform/posix/host_files.h"
#include "platform/posix/path_finder.h"
#include "program_fixture.h"
#include "tests/support/temporary_folder.h"

namespace halvenmoor::qt {
namespace {

const std::string kHeader = "X,Y,TYPE,SPEED,DirType,Direction\r\n";

QString Words(const QWidget& window, const char* control) {
    return window.findChild<QWidget*>(control)->property("text").toString();
}

void PressEscape(QWidget& window) {
    QTest::keyClick(&window, Qt::Key_Escape);
}

struct FilesOnDisk {
    TemporaryFolder folder;
    headless::FixedLocale pageOfNames;
    posix::PathFinder finder{pageOfNames.CodePage()};
    posix::DiskFileSystem fileSystem{finder};
    posix::DiskHostFiles hostFiles{finder};
};

class JourneyTest : protected FilesOnDisk, public RealWindows {
protected:
    JourneyTest() : RealWindows(fileSystem, hostFiles, folder.Path()) {
        for (const char* name : {"asc", "txt", "demo/txt_demo", "import/ov2", "import/txt"})
            folder.AddFolder(name);
        folder.Put("Settings.ini", "[Type1]\nfixed*\n[Mobile]\n(mobile)\n[Units]\nmph\n");
        folder.Put("lang/klingon.ini", "[Halvenmoor]\nButtonExportCameras=nob\n");
        folder.Put("demo/asc_demo/Fixed 50 mph.asc",
                   "; two cameras\r\n-0.12345, 51.50000, \"A406 <b>\", 1, 90\r\n"
                   "-0.2, 51.6, \"x (Mobile)\"\r\n1.5, 2.5\r\n");
        folder.Put("demo/asc_demo/Schule_30.ASC", "13.4,52.5,\"Schule, Nord\"");
        program.Start();
    }

    /// Imports from OV2 (1) or TXT (2) and tells how many camera files the dialog counted at its end.
    QString Import(int source) {
        QString count;
        const WhenShown dialog("frmImport", [&](QWidget& window) {
            const auto press = [&window](const QString& name, QPoint place = {}) {
                QTest::mouseClick(window.findChild<QWidget*>(name), Qt::LeftButton, {}, place);
            };
            press(QString("OptionSource(%1)").arg(source), {8, 14});
            press("ButtonStart");
            EXPECT_TRUE(window.findChild<QWidget*>("PictureFinished")->isVisible());
            count = Words(window, "LabelTargetFiles");
            PressEscape(window);
        });
        Click(Form().ButtonImportFiles);
        return count;
    }
    /// Classifies by name and exports; the target's text.
    std::string ClassifyAndExport() {
        const WhenShown results("frmResults", PressEscape);
        Click(Form().ButtonClassifyFiles);
        Click(Form().ButtonExportCameras);
        return folder.Text("txt/SpeedCamText.txt");
    }

    /// Where the keys of the main window go.
    QString Focused() { return Main().focusWidget()->objectName(); }
};

TEST_F(JourneyTest, FromTheStartToTheTargetFile) {
    EXPECT_EQ(Main().windowTitle(), "Halvenmoor 3.2");
    EXPECT_EQ(Words(Main(), "LabelTypeList(1)"), "Speed Camera Type \"1\" (Fixed Speed Camera)");
    WidgetOf(Form().LanguageList).setFocus();
    QTest::keyClick(&WidgetOf(Form().LanguageList), Qt::Key_Down);
    EXPECT_EQ(Words(Main(), "ButtonExportCameras"), "Nob");

    Click(Form().ButtonClassifyFiles);
    EXPECT_EQ(Focused(), "ButtonExportCameras");
    ClickRow(Form().MainList, 0);
    EXPECT_TRUE(WidgetOf(Form().ButtonRenameFile).isEnabled());
    Click(Form().ButtonAdd[3]);
    EXPECT_FALSE(WidgetOf(Form().ButtonClassifyFiles).isEnabled());
    {
        const WhenShown run("frmExport", [](QWidget&) {});
        const WhenShown results("frmResults", [](QWidget& window) {
            EXPECT_EQ(Words(window, "LabelExportedResult(0)"), "3");
            EXPECT_EQ(Words(window, "LabelSkippedResult(1)"), "1");
            PressEscape(window);
        });
        Click(Form().ButtonExportCameras);
    }
    EXPECT_EQ(Focused(), "ButtonShowResults");
    EXPECT_EQ(folder.Text("demo/txt_demo/SpeedCamText.txt"),
              kHeader + "-0.12345,51.50000,1,50,1,90\r\n-0.2,51.6,5,50,0,0\r\n13.4,52.5,3,30,0,0\r\n");
    Click(Form().ButtonExitApplication);
    EXPECT_TRUE(program.Desktop().Ended());
    EXPECT_EQ(ShownWindow("frmMain"), nullptr);
}

TEST_F(JourneyTest, Ov2SourceIsImportedRenamedAndExported) {
    // A skipper record, then one point, 0.5 degrees west and 51.25 north, named "Mill Lane".
    const std::string skipper("\x01" + std::string(20, '\0'));
    const std::string point("\x02\x17\0\0\0\xB0\x3C\xFF\xFF\x88\x33\x4E\0Mill Lane\0", 23);
    folder.Put("import/ov2/lanes.OV2", skipper + point);
    folder.Put("asc/old.asc", "1.5,2.5,\"old\"\n");
    Click(Form().CheckDemoMode);
    EXPECT_EQ(Import(1), "1 File(s)");
    ClickRow(Form().MainList, 0);
    const WhenShown rename("frmRename", [](QWidget& window) {
        QWidget* const name = window.findChild<QWidget*>("TextFileName");
        QTest::keyClicks(name, "Fixed 40 mph");
        QTest::keyClick(name, Qt::Key_Return);
    });
    Click(Form().ButtonRenameFile);
    EXPECT_EQ(Focused(), "MainList");
    EXPECT_EQ(ClassifyAndExport(), kHeader + "-0.50000,51.25000,1,40,0,0\r\n");
}

TEST_F(JourneyTest, TxtSourceComesBackAsItWas) {
    folder.Put("Settings.ini",
               "[Type1]\nFixed_*\n[Type3]\nRedLight_*\n[Type4]\nSection_*\n[Settings]\nSourceStructure=3\n");
    folder.Put("import/txt/SpeedCamText.txt", kHeader +
                                                  "13.37700,52.51600,4,80,1,270\r\n-0.5,51.25,1,50,2,90\r\n"
                                                  "1.5,41.5,3,70,1,180\r\n11.5,48.1,1,50,0,45\r\n");
    folder.Put("import/txt/short.txt", "2.25,41.75,1,120\n3.5,42.5,4,80\n");
    Click(Form().CheckDemoMode);
    EXPECT_EQ(Import(2), "4 File(s)");
    // By type and speed; a red light has no speed, and where DirType is 0 there is no direction.
    EXPECT_EQ(ClassifyAndExport(), kHeader +
                                       "-0.5,51.25,1,50,2,90\r\n11.5,48.1,1,50,0,0\r\n"
                                       "2.25,41.75,1,120,0,0\r\n1.5,41.5,3,0,1,180\r\n"
                                       "13.37700,52.51600,4,80,1,270\r\n3.5,42.5,4,80,0,0\r\n");
}

}  // namespace
}  // namespace halvenmoor::qt
