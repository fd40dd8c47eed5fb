// The program as a user has it: real windows over real files, from the start to the target file.

#include "program_fixture.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_program.h"

#include <QComboBox>

namespace halvenmoor::qt {
namespace {

QString Words(const QWidget& window, const char* control) {
    return window.findChild<QWidget*>(control)->property("text").toString();
}

class JourneyTest : protected FilesOnDisk, public RealWindows {
protected:
    JourneyTest() : RealWindows(fileSystem, hostFiles, folder.Path()) {
        for (const char* name : {"asc", "txt", "demo/txt_demo", "import/ov2"}) folder.AddFolder(name);
        folder.Put("import/ov2/lanes.OV2", kPoint);
        folder.Put("Settings.ini", "[Type1]\nfixed*\n[Mobile]\n(mobile)\n[Units]\nmph\n");
        folder.Put("lang/klingon.ini", "[Halvenmoor]\nButtonExportCameras=nob\n");
        folder.Put("demo/asc_demo/Fixed 50 mph.asc",
                   "; two cameras\r\n-0.12345, 51.50000, \"A406 <b>\", 1, 90\r\n"
                   "-0.2, 51.6, \"x (Mobile)\"\r\n1.5, 2.5\r\n");
        folder.Put("demo/asc_demo/Schule_30.ASC", "13.4,52.5,\"Schule, Nord\"");
        program.Start();
    }

    /// Where the keys of the main window go.
    QString Focused() { return Main().focusWidget()->objectName(); }
};

TEST_F(JourneyTest, FromTheStartToTheTargetFile) {
    EXPECT_EQ(Main().windowTitle(), "Halvenmoor 3.2");
    EXPECT_EQ(Words(Main(), "LabelTypeList(1)"), "Speed Camera Type \"1\" (Fixed Speed Camera)");
    WidgetOf(Form().LanguageList).setFocus();
    QTest::keyClick(&WidgetOf(Form().LanguageList), Qt::Key_Down);
    QTest::keyClick(&WidgetOf(Form().LanguageList), Qt::Key_X);
    EXPECT_EQ(Main().findChild<QComboBox*>("LanguageList")->currentText(), "Klingon") << "typing is undone";
    EXPECT_EQ(Words(Main(), "ButtonExportCameras"), "Nob");

    Click(Form().ButtonClassifyFiles);
    EXPECT_EQ(Focused(), "ButtonExportCameras");
    ClickRow(Form().MainList, 0);
    Click(Form().ButtonAdd[3]);
    {
        const WhenShown run("frmExport", [](QWidget&) {});
        const WhenShown results("frmResults", [](QWidget& window) {
            EXPECT_EQ(Words(window, "LabelExportedResult(0)"), "3");
            EXPECT_EQ(Words(window, "LabelSkippedResult(1)"), "1");
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        Click(Form().ButtonExportCameras);
    }
    EXPECT_EQ(Focused(), "ButtonShowResults");
    EXPECT_EQ(folder.Text("demo/txt_demo/SpeedCamText.txt"),
              kHeader + "-0.12345,51.50000,1,50,1,90\r\n-0.2,51.6,5,50,0,0\r\n13.4,52.5,3,30,0,0\r\n");

    Click(Form().CheckDemoMode);
    {
        const WhenShown dialog("frmImport", [](QWidget& window) {
            QTest::mouseClick(window.findChild<QWidget*>("CheckDelete"), Qt::LeftButton);
            QTest::mouseClick(window.findChild<QWidget*>("ButtonStart"), Qt::LeftButton);
            EXPECT_TRUE(window.findChild<QWidget*>("PictureFinished")->isVisible());
            EXPECT_EQ(Words(window, "LabelTargetFiles"), "1 File(s)");
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        Click(Form().ButtonImportFiles);
    }
    ClickRow(Form().MainList, 0);
    {
        const WhenShown rename("frmRename", [](QWidget& window) {
            QWidget* const name = window.findChild<QWidget*>("TextFileName");
            QTest::keyClicks(name, "Mill Lane");  // typing replaces the name
            QTest::keyClick(name, Qt::Key_Enter, Qt::KeypadModifier);
        });
        Click(Form().ButtonRenameFile);
    }
    EXPECT_EQ(folder.Text("asc/Mill Lane.asc"), kComment2 + "1.50000, 52.50000, \"n\", 0, 0\r\n");
    Click(Form().ButtonExitApplication);
    EXPECT_TRUE(program.Desktop().Ended());
    EXPECT_EQ(ShownWindow("frmMain"), nullptr);
}

}  // namespace
}  // namespace halvenmoor::qt
