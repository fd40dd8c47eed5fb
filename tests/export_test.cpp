#include "export/frmExport.h"
#include "export/results_file.h"
#include "tests/support/test_program.h"

#include <cmath>

namespace halvenmoor {
namespace {

using Counter = TypeTable<std::int32_t>;

std::string Cameras(std::size_t count) {
    return Repeated("1.5, 52.5, \"x\"\n", count);
}

class ExportTest : public testing::Test {
protected:
    /// Adds a camera file that will stand in the list of the type.
    void Add(int type, const std::string& entry, std::string_view text) {
        program.AddCameraFile(entry, text);
        entries_[static_cast<std::size_t>(type)].push_back(entry);
    }
    void Start(std::string_view settings = "") {
        program.SetSettings(settings);
        program.Start();
        for (int type = kFirstType; type <= kLastType; ++type) {
            const Strings& entries = entries_[static_cast<std::size_t>(type)];
            if (!entries.empty()) program.Move(type, entries);
        }
    }
    /// One camera and one bad line in a file of type 1, and what comes into the target.
    void StartWithOneCamera() {
        Add(1, "one_50", "skipped, 52.5, x\n1.5,52.5,x");
        Start();
    }
    const std::string oneLine = "1.5,52.5,1,50,0,0\r\n";

    frmMain& Window() { return program.Window(); }
    modExport& Exports() { return program.Exports(); }
    void ShowResults(const std::function<void(frmResults&)>& look) {
        EXPECT_TRUE(program.Open(Window().ButtonShowResults, look));
    }

    TestProgram program;

private:
    TypeTable<Strings> entries_;
};

TEST_F(ExportTest, WritesTheWorkedExample) {
    Add(1, "Fixed 50 mph",
        "; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction).\r\n"
        "\r\n"
        "-0.12345, 51.50000, \"Fixed Speed Camera\", 1, 90\r\n"
        "-0.20000, 51.60000, \"Mobile Speed Camera\", 0, 0\r\n"
        "0.0, 0.0, \"Speed Camera\", 0, 0\r\n"
        "1.5, 52.5\r\n");
    Start("[Mobile]\nMobile\n[Units]\nmph\n[Settings]\nSourceStructure=2\n");
    EXPECT_TRUE(program.Export());
    EXPECT_EQ(program.Target(),
              "X,Y,TYPE,SPEED,DirType,Direction\r\n"
              "-0.12345,51.50000,1,50,1,90\r\n"
              "-0.20000,51.60000,5,50,0,0\r\n");
    EXPECT_EQ(Exports().FilesProcessed, (Counter{0, 1}));
    EXPECT_EQ(Exports().CamerasExported, (Counter{0, 1, 0, 0, 0, 1}));
    EXPECT_EQ(Exports().CamerasSkipped, (Counter{0, 1}));
}

TEST_F(ExportTest, CountsEveryKindOfLine) {
    Add(1, "kinds",
        "\xEF\xBB\xBF; a byte-order mark and comments\n\n   \r\n\t\n# c\n\"quoted\", 2, x\n"
        "no comma\n1\"5, 52.5, x\n1.5, 5\"2, x\n"
        "1.5, 52.5\n1.5, 52.5, mobile, 1\n1.5, 52.5, mobile, 1, 2, 3\n1,2,3,4,5,6,7,8,9,10,11,12\n"
        "1.5, 52.5, \"mobile\n1.5, 52.5, \"x\", 1, \"2\n1.5, 52.5, \"x\", 1, 2, \"3\n5.5, 50, x\n"
        "200.0, 50.25, \"mobile\"\n5, 50.25, \"mobile\", 1, 2\n"
        "0.0, 0.0, \"mobile\"\n10.05, 0.0, x\n"
        "0.0, 50.25, x\r\n1.50000000000000000001 , 52.5,\"Mobile, A40\" road, \xF6 x , 2 2");
    Add(2, "empty", "");
    Start("[Mobile]\nmobile\n");
    EXPECT_TRUE(program.Export());
    EXPECT_EQ(program.Target(),
              kHeader + "0.0,50.25,1,0,0,0\r\n1.50000000000000000001,52.5,5,0,\xF6 x,2 2\r\n");
    EXPECT_EQ(Exports().FilesProcessed, (Counter{0, 1, 1}));
    EXPECT_EQ(Exports().CamerasExported, (Counter{0, 1, 0, 0, 0, 1}));
    EXPECT_EQ(Exports().CamerasSkipped, (Counter{0, 8, 0, 0, 0, 2}));
}

TEST(SourceStructureTest, TellsTheExtraFields) {
    const Strings ends{"0,0", "1,180", "180,1"};
    for (std::size_t i = 0; i < ends.size(); ++i) {
        TestProgram program;
        program.SetSettings("[Units]\nkmh\n[Settings]\nSourceStructure=" + std::to_string(i + 1));
        program.AddCameraFile("x_80kmh", "1.5,52.5,x, 1 ,180\n1.5,52.5,x\n");
        program.Start();
        program.Move(4, {"x_80kmh"});
        EXPECT_TRUE(program.Export());
        EXPECT_EQ(program.Target(), kHeader + "1.5,52.5,4,80," + ends[i] + "\r\n1.5,52.5,4,80,0,0\r\n");
    }
}

TEST_F(ExportTest, KeepsTheOrderOfListsAndLines) {
    Add(2, "A", "1.5,52.5,x\n");
    Add(1, "K\xF6ln_30", "9.5,52.5,x\n2.5,52.5,x\n9.5,52.5,x\n");
    Add(1, "B_70", "3.5,52.5,x\n");
    Add(1, "gone", "4.5,52.5,x\n");
    program.AddCameraFile("unclassified", "5.5,52.5,x\n");
    Start();
    for (const auto* entry : {"gone", "B_70"}) program.memory.Remove(program.CameraPath(entry));
    program.memory.Put("/p/demo/asc_demo/B_70.Asc", "3.5,52.5,x\n");
    for (const auto* entry : {"GONE", "b_70"}) program.AddCameraFile(entry, "6.5,52.5,x\n");  // no entries
    program.memory.Put(program.TargetPath(), std::string(500, 'x'));
    EXPECT_TRUE(program.Export());
    EXPECT_EQ(program.Target(), kHeader +
                                    "3.5,52.5,1,70,0,0\r\n9.5,52.5,1,30,0,0\r\n2.5,52.5,1,30,0,0\r\n"
                                    "9.5,52.5,1,30,0,0\r\n1.5,52.5,2,0,0,0\r\n");
}

TEST_F(ExportTest, AppendsBehindTheLastByte) {
    StartWithOneCamera();
    program.memory.Put("/p/a.txt", kHeader + "old\r\n");
    EXPECT_TRUE(program.ExportTo(3, "/p/a.txt"));
    EXPECT_TRUE(program.ExportTo(3, "/p/a.txt"));
    EXPECT_EQ(program.Text("/p/a.txt"), kHeader + "old\r\n" + oneLine + oneLine);
    EXPECT_EQ(Exports().CamerasExported, (Counter{0, 1})) << "of the last run only";
    program.memory.Put("/p/b.txt", " x,y,type,speed,dirtype,DIRECTION \nold");
    EXPECT_TRUE(program.ExportTo(3, "/p/b.txt"));
    EXPECT_EQ(program.Text("/p/b.txt"), " x,y,type,speed,dirtype,DIRECTION \nold" + oneLine);
}

TEST_F(ExportTest, RefusesToAppendToForeignFiles) {
    StartWithOneCamera();
    EXPECT_TRUE(program.Export());
    for (const std::string& text : Strings{"", "\r\n" + kHeader, "; c\r\n" + kHeader, "X,Y,TYPE,SPEED\r\n"}) {
        program.memory.Put("/p/a.txt", text);
        program.messages.Messages.clear();
        EXPECT_FALSE(program.ExportTo(3, "/p/a.txt"));
        ASSERT_EQ(program.messages.Messages.size(), 1u) << text;
        EXPECT_EQ(program.messages.Messages[0].text,
                  "Selected file is not a valid 'iGO 2006SE Plus' speed camera file.          ");
        EXPECT_EQ(program.messages.Messages[0].title, "Append To Existing Speed Camera File");
        EXPECT_EQ(program.Text("/p/a.txt"), text);
    }
    EXPECT_TRUE(Window().ResultsValid);
}

TEST_F(ExportTest, AsksForTheTarget) {
    StartWithOneCamera();
    EXPECT_TRUE(program.ExportTo(2, "/p/my.txt"));
    EXPECT_EQ(program.Text("/p/my.txt"), kHeader + oneLine);
    EXPECT_EQ(program.Target(), "(none)");
    program.Click(Window().OptionExportMode[3]);
    EXPECT_FALSE(program.Export()) << "cancelled";
    EXPECT_TRUE(Window().ResultsValid);
    const std::vector<platform::FileDialog>& asked = program.fileDialogs.Asked;
    ASSERT_EQ(asked.size(), 2u);
    EXPECT_EQ(asked[0].title, "Save As New Speed Camera File");
    EXPECT_EQ(asked[0].suggestedName, "SpeedCamText - New");
    EXPECT_EQ(asked[1].title, "Append To Existing Speed Camera File");
    EXPECT_EQ(asked[1].suggestedName, "SpeedCamText");
    for (const platform::FileDialog& dialog : asked) {
        EXPECT_EQ(dialog.folder, "/p/demo/txt_demo/");
        EXPECT_EQ(dialog.filter, "Text File (*.txt)|*.txt");
        EXPECT_EQ(dialog.defaultExtension, "txt");
    }
}

TEST_F(ExportTest, DoesNothingWithoutSettingsOrFiles) {
    StartWithOneCamera();
    EXPECT_TRUE(program.Export());
    program.memory.Put(program.TargetPath(), "kept");
    program.memory.Remove(program.CameraPath("one_50"));
    EXPECT_FALSE(program.Export());
    EXPECT_TRUE(Window().ResultsValid);
    program.AddCameraFile("one_50", "1.5,52.5,x");
    program.memory.Remove("/p/Settings.ini");
    program.core.ReloadWorkspace();
    program.Move(1, {"one_50"});
    EXPECT_FALSE(program.Export());
    EXPECT_EQ(program.Target(), "kept");
}

TEST_F(ExportTest, StopsBeforeTooManyFiles) {
    Start();
    for (int type = 1; type <= 2; ++type) {
        Strings entries;
        for (int i = 0; i < 16384; ++i) entries.push_back(std::to_string(type) + "_" + std::to_string(i));
        for (const std::string& entry : entries) program.AddCameraFile(entry);
        program.List(type).AddItems(std::move(entries));
    }
    Window().UpdateButtons(true);
    EXPECT_FALSE(program.Export());
    EXPECT_EQ(Exports().ExportFileTable.size(), 32768u);
    EXPECT_EQ(program.Target(), kHeader);
}

TEST_F(ExportTest, TakesItsTime) {
    for (const auto* entry : {"a", "b", "c"}) Add(1, entry, "");
    Start();
    for (const double start : {3600.0, 86399.5}) {  // the second one goes on after midnight
        program.clock = headless::SkippingClock(start);
        EXPECT_TRUE(program.Export());
        EXPECT_NEAR(std::fmod(program.clock.TimeOfDay() + 86400 - start, 86400), 0.705, 0.005);
    }
}

TEST_F(ExportTest, WindowTellsWhatItDoes) {
    StartWithOneCamera();
    Window().MoveTo({100, 200});
    Strings shown;
    program.toolkit.OnYield = [&] {
        auto& window = static_cast<frmExport&>(*program.toolkit.OpenDialog());
        EXPECT_TRUE(window.Busy() && window.Position().left == 1880 && window.Position().top == 3500);
        EXPECT_EQ(window.LabelProgress.Caption(), "Exporting Speed Cameras...");
        shown.push_back(static_cast<fakes::MemoryCanvas&>(*window.picProgress.GetCanvas()).LastText());
    };
    EXPECT_TRUE(program.Export());
    EXPECT_EQ(shown.front() + shown.back(), "0%100%");
}

TEST_F(ExportTest, ShowsAndSavesResults) {
    Add(1, "a", Cameras(1000) + "1.5,52.5\n");
    Add(1, "b", Cameras(520) + "1.5,52.5\n");
    Add(1, "c", "");
    Add(2, "d", Cameras(47));
    Add(3, "e", Cameras(200));
    Add(3, "f", Cameras(10) + "1.5,52.5\n");
    Add(5, "g", Cameras(96));
    Start();
    Window().MoveTo({100, 200});
    EXPECT_TRUE(program.Export([](frmResults& window) {
        EXPECT_EQ(window.Position().left, 250);
        EXPECT_EQ(window.Position().top, 865);
        EXPECT_EQ(window.Caption(), "Export Speed Cameras");
        EXPECT_EQ(window.LabelFilesResult[3].Caption(), "2");
        EXPECT_EQ(window.LabelExportedResult[3].AccessibleName(), "Type 3, Exported Cameras: 210");
        EXPECT_EQ(window.LabelSkippedResult[0].AccessibleName(), "All Types, Skipped Cameras: 3");
        EXPECT_TRUE(window.UserShortcut("Ctrl+C"));
    }));
    EXPECT_EQ(
        program.toolkit.Announced,
        Strings{"Export Speed Cameras ✓, Files Processed: 7, Exported Cameras: 1873, Skipped Cameras: 3"});
    EXPECT_EQ(program.toolkit.Clipboard,
              "\t\tFiles Processed\tExported Cameras\tSkipped Cameras\n"
              "Type 1\tFixed Speed Camera\t3\t1520\t2\n"
              "Type 2\tRed Speed Camera\t1\t47\t0\n"
              "Type 3\tRed Light Camera\t2\t210\t1\n"
              "Type 4\tSection Speed Camera\t0\t0\t0\n"
              "Type 5\tMobile Speed Camera\t1\t96\t0\n"
              "All Types\tTotal Files and Cameras\t7\t1873\t3");
    EXPECT_EQ(program.ResultsFile(), Crlf(R"(
-------------------------------------------------------------------------------------
Exported Speed Camera Results...:  Files Processed  Exported Cameras  Skipped Cameras
-------------------------------------------------------------------------------------
Type 1 Fixed Speed Camera.......:            3              1520                2
Type 2 Red Speed Camera.........:            1                47                0
Type 3 Red Light Camera.........:            2               210                1
Type 4 Section Speed Camera.....:            0                 0                0
Type 5 Mobile Speed Camera......:            1                96                0
-------------------------------------------------------------------------------------
Total Files and Cameras.........:            7              1873                3
-------------------------------------------------------------------------------------
)"));
    program.Click(Window().OptionExportMode[3]);
    ShowResults([](frmResults& window) {
        EXPECT_EQ(window.Caption(), "Append Speed Cameras");
        EXPECT_EQ(window.LabelTitleExported.Caption(), "Appended Cameras");
    });
}

TEST_F(ExportTest, OptionsDecideAboutResults) {
    StartWithOneCamera();
    program.memory.Put(program.ResultsPath(), "older results");
    program.Click(Window().CheckSaveResults);
    EXPECT_TRUE(program.Export([&](frmResults& window) { program.Click(window.CheckShowResults); }));
    EXPECT_EQ(program.Option("SaveResults"), "0");
    EXPECT_EQ(program.ResultsFile(), "older results");
    EXPECT_EQ(program.Option("ShowResults"), "0");

    program.Click(Window().CheckSaveResults);
    EXPECT_FALSE(program.Export());
    EXPECT_NE(program.ResultsFile(), "older results");
    ShowResults([&](frmResults& window) { program.Click(window.CheckShowResults); });
    EXPECT_EQ(program.Option("ShowResults"), "1");
    EXPECT_TRUE(program.Export());
}

TEST(ResultsFileTest, TextsAreAligned) {
    EXPECT_EQ(DotLeader("Größe", 8), "Größe..:");
    EXPECT_EQ(ColumnHeading("Größe", 12), "         Größe");
    EXPECT_EQ(ColumnHeading("12 character", 12), "  12 character");
    EXPECT_EQ(RightAlign("12", 4), "  12");
    EXPECT_EQ(RightAlign("12345", 4), "1234");
}

}  // namespace
}  // namespace halvenmoor
