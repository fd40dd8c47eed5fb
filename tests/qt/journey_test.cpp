// From the start to the target file with mouse and keys, in the real windows.

#include "program_fixture.h"

namespace halvenmoor::qt {
namespace {

const std::string kHeader = "X,Y,TYPE,SPEED,DirType,Direction\r\n";

QString Words(const QWidget& window, const char* control) {
    return window.findChild<QWidget*>(control)->property("text").toString();
}

void PressEscape(QWidget& window) {
    QTest::keyClick(&window, Qt::Key_Escape);
}

class JourneyTest : public ProgramWindows {
protected:
    JourneyTest() {
        for (const char* folder : {"/p/txt", "/p/demo/txt_demo"}) memory.AddFolder(folder);
        memory.Put("/p/Settings.ini", "[Type1]\nfixed*\n[Mobile]\n(mobile)\n[Units]\nmph\n");
        memory.Put("/p/lang/klingon.ini", "[Halvenmoor]\nButtonExportCameras=nob\n");
        AddDemoFile("Fixed 50 mph",
                    "; two cameras\r\n-0.12345, 51.50000, \"A406 <b>\", 1, 90\r\n"
                    "-0.2, 51.6, \"x (Mobile)\"\r\n1.5, 2.5\r\n");
        AddDemoFile("Schule_30", "13.4,52.5,\"Schule, Nord\"");
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
    EXPECT_EQ(Words(Main(), "ButtonExportCameras"), "Nob");

    Click(Form().ButtonClassifyFiles);
    EXPECT_EQ(Focused(), "ButtonExportCameras");
    ClickRow(Form().MainList, 0);
    EXPECT_TRUE(WidgetOf(Form().ButtonRenameFile).isEnabled());
    Click(Form().ButtonAdd[3]);
    EXPECT_FALSE(WidgetOf(Form().ButtonClassifyFiles).isEnabled());
    {
        const Meeting run("frmExport", [](QWidget&) {});
        const Meeting results("frmResults", [](QWidget& window) {
            EXPECT_EQ(Words(window, "LabelExportedResult(0)"), "3");
            EXPECT_EQ(Words(window, "LabelSkippedResult(1)"), "1");
            PressEscape(window);
        });
        Click(Form().ButtonExportCameras);
    }
    EXPECT_EQ(Focused(), "ButtonShowResults");
    EXPECT_EQ(memory.Text("/p/demo/txt_demo/SpeedCamText.txt"),
              kHeader + "-0.12345,51.50000,1,50,1,90\r\n-0.2,51.6,5,50,0,0\r\n13.4,52.5,3,30,0,0\r\n");
    Click(Form().ButtonExitApplication);
    EXPECT_TRUE(program.Desktop().Ended());
    EXPECT_EQ(ShownWindow("frmMain"), nullptr);
}

TEST_F(JourneyTest, Ov2SourceIsImportedRenamedAndExported) {
    // A skipper record, then one point, 0.5 degrees west and 51.25 north, named "Mill Lane".
    const std::string skipper("\x01" + std::string(20, '\0'));
    const std::string point("\x02\x17\0\0\0\xB0\x3C\xFF\xFF\x88\x33\x4E\0Mill Lane\0", 23);
    memory.Put("/p/import/ov2/lanes.OV2", skipper + point);
    memory.Put("/p/asc/old.asc", "1.5,2.5,\"old\"\n");
    Click(Form().CheckDemoMode);
    const Meeting import("frmImport", [](QWidget& window) {
        const auto child = [&window](const char* name) { return window.findChild<QWidget*>(name); };
        QTest::mouseClick(child("OptionSource(1)"), Qt::LeftButton, {}, {8, 14});
        QTest::mouseClick(child("ButtonStart"), Qt::LeftButton);
        EXPECT_TRUE(child("PictureFinished")->isVisible());
        EXPECT_EQ(Words(window, "LabelTargetFiles"), "1 File(s)");
        PressEscape(window);
    });
    Click(Form().ButtonImportFiles);
    ClickRow(Form().MainList, 0);
    const Meeting rename("frmRename", [](QWidget& window) {
        QWidget* const name = window.findChild<QWidget*>("TextFileName");
        QTest::keyClicks(name, "Fixed 40 mph");
        QTest::keyClick(name, Qt::Key_Return);
    });
    Click(Form().ButtonRenameFile);
    EXPECT_EQ(Focused(), "MainList");
    Click(Form().ButtonClassifyFiles);
    const Meeting results("frmResults", PressEscape);
    Click(Form().ButtonExportCameras);
    EXPECT_EQ(memory.Text("/p/txt/SpeedCamText.txt"), kHeader + "-0.50000,51.25000,1,40,0,0\r\n");
}

}  // namespace
}  // namespace halvenmoor::qt
