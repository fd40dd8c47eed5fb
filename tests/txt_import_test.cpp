#include "tests/support/import_program.h"
#include "tools/file_helpers.h"

#include <set>

namespace halvenmoor {
namespace {

constexpr int kTxt = ImportProgram::kTxt;
constexpr const char* kStructure2 = "[Settings]\nSourceStructure=2\n";
constexpr const char* kStructure3 = "[Settings]\nSourceStructure=3\n";

const std::string kHeader = Crlf("; Generic Ascii file created by Halvenmoor.\n\n");
const std::string kHeader2 =
    Crlf("; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction).\n\n");
const std::string kHeader3 =
    Crlf("; Generic Ascii file created by Halvenmoor. (Extended with Direction and DirType).\n\n");

TEST(TxtImportTest, TellsRecordsFromOtherLines) {
    ImportProgram program(kStructure2);
    program.AddTxt("a",
                   "X,Y,TYPE,SPEED,DirType,Direction\r\n"
                   "x,y, type ,s\n"
                   "1.1,2.1,1,50,1,90\n"
                   "  1.2 ,\t2.2, 1 , 50 , 0 , 90  \r\n"
                   "1.3,2.3,2,30\n"
                   "1.4,2.4,3,50,2,180\n"
                   ",,5,,,\n"
                   "\n"
                   "1.5,2.5,1,50,1\n"      // five fields
                   "1.5,2.5,1,50,1,90,\n"  // seven
                   "1.5,2.5,1\n"           // three
                   "5,6,7,8\n"             // bad from here on
                   "1.5,2.5,0,50\n"
                   "1.5,2.5,15,50\n"
                   "1.5,2.5,01,50\n"
                   "1.5,2.5,,50\n"
                   "1.5,2.5,\t1,50\n"
                   "well, this, is, text");
    EXPECT_EQ(program.Import(kTxt,
                             [](frmImport& dialog) {
                                 EXPECT_EQ(dialog.LabelAddedRecords.Caption(), "5 Camera(s)");
                                 EXPECT_EQ(dialog.PictureIncomplete.ToolTip(), "7 Camera(s)");
                                 EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "4 File(s)");
                             }),
              "PictureIncomplete");
    EXPECT_EQ(program.Items(0), (Strings{"Fixed_Camera_050", "Mobile_Camera_000", "RedLight_Camera_000",
                                         "RedSpeed_Camera_030"}));
    EXPECT_EQ(program.Camera("Fixed_Camera_050"), kHeader2 + Crlf("1.1, 2.1, \"Fixed Camera\", 1, 90\n"
                                                                  "1.2, \t2.2, \"Fixed Camera\", 0, 0\n"));
    EXPECT_EQ(program.Camera("RedSpeed_Camera_030"),
              kHeader2 + Crlf("1.3, 2.3, \"RedSpeed Camera\", 0, 0\n"));
    EXPECT_EQ(program.Camera("RedLight_Camera_000"),
              kHeader2 + Crlf("1.4, 2.4, \"RedLight Camera\", 2, 180\n"));
    EXPECT_EQ(program.Camera("Mobile_Camera_000"), kHeader2 + Crlf(", , \"Mobile Camera\", , \n"));
}

TEST(TxtImportTest, LayoutFollowsTheSettings) {
    const auto imported = [](std::string_view iniFile) {
        ImportProgram program(iniFile);
        program.AddTxt("a", "1.5,52.5,4,130,1,90\n");
        EXPECT_EQ(program.Import(kTxt), "PictureFinished");
        return program.Camera("Section_Camera_130");
    };
    EXPECT_EQ(imported("[Settings]\nSourceStructure=1\n"), kHeader + "1.5, 52.5, \"Section Camera\"\r\n");
    EXPECT_EQ(imported(kStructure2), kHeader2 + "1.5, 52.5, \"Section Camera\", 1, 90\r\n");
    EXPECT_EQ(imported(kStructure3), kHeader3 + "1.5, 52.5, \"Section Camera\", 90, 1\r\n");
}

TEST(TxtImportTest, SourcesAreMergedInTheOrderOfTheirNames) {
    ImportProgram program;
    program.AddTxt("b", "3,3,1,50\n");
    program.memory.Put("/p/import/txt/A.TXT", "1,1,1,50\n2,2,1,60\n");
    program.AddTxt("c", "");
    program.memory.Put("/p/import/txt/d.csv", "4,4,1,50\nbad,bad,bad,bad\n");
    program.memory.AddFolder("/p/import/txt/e.txt");
    EXPECT_EQ(program.Import(kTxt,
                             [](frmImport& dialog) {
                                 EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "3 File(s)");
                                 EXPECT_EQ(dialog.LabelAddedRecords.Caption(), "3 Camera(s)");
                             }),
              "PictureFinished");
    EXPECT_EQ(program.Camera("Fixed_Camera_050"),
              kHeader + Crlf("1, 1, \"Fixed Camera\"\n3, 3, \"Fixed Camera\"\n"));
    EXPECT_EQ(program.Camera("Fixed_Camera_060"), kHeader + Crlf("2, 2, \"Fixed Camera\"\n"));
}

TEST(TxtImportTest, SpeedsThatShareAFileNameLoseNothing) {
    ImportProgram program;
    const char* const speeds[] = {"50", "050",  "49.5", "50.5", "5 0",  "51.5", "-5",   "-0.4",
                                  "",   "fast", "1e2",  "1E2",  "&H64", "1000", "1e99", "9e99"};
    std::string source;
    for (const char* speed : speeds) source += std::string(speed) + ",0,1," + speed + "\n";
    program.AddTxt("a", source);
    EXPECT_EQ(program.Import(kTxt), "PictureFinished");
    EXPECT_EQ(program.Items(0),
              (Strings{"Fixed_Camera_-005", "Fixed_Camera_000", "Fixed_Camera_050", "Fixed_Camera_052",
                       "Fixed_Camera_100", "Fixed_Camera_1000", "Fixed_Camera_999999999999999"}));
    const auto xOf = [&](const std::string& entry) {
        std::string values;
        const std::string text = program.Camera("Fixed_Camera_" + entry).substr(kHeader.size());
        for (std::size_t begin = 0; begin < text.size(); begin = text.find('\n', begin) + 1) {
            values += text.substr(begin, text.find(", 0, ", begin) - begin) + "|";
        }
        return values;
    };
    EXPECT_EQ(xOf("-005"), "-5|");
    EXPECT_EQ(xOf("000"), "-0.4||fast|");
    EXPECT_EQ(xOf("050"), "49.5|50|050|5 0|50.5|") << "by number, then in reading order";
    EXPECT_EQ(xOf("052"), "51.5|");
    EXPECT_EQ(xOf("100"), "1e2|1E2|&H64|") << "1E2 is the speed 1e2";
    EXPECT_EQ(xOf("1000"), "1000|");
    EXPECT_EQ(xOf("999999999999999"), "1e99|9e99|");
}

TEST(TxtImportTest, CountMovesEvery97Records) {
    ImportProgram program;
    std::string source;
    for (int i = 0; i < 200; ++i) source += "1,2,1,50\nforeign\n";
    program.AddTxt("a", source);
    program.AddTxt("b", "1,2,1,50\n");
    std::set<std::string> shown;
    program.Open([&](frmImport& dialog) {
        program.Click(dialog.OptionSource[kTxt]);
        program.toolkit.OnYield = [&] { shown.insert(dialog.LabelAddedRecords.Caption()); };
        program.Click(dialog.ButtonStart);
        program.toolkit.OnYield = nullptr;
    });
    EXPECT_EQ(shown,
              (std::set<std::string>{"", "97 Camera(s)", "194 Camera(s)", "200 Camera(s)", "201 Camera(s)"}));
}

TEST(TxtImportTest, CameraFileThatCannotBeMadeEndsItsTypeOnly) {
    ImportProgram program;
    program.AddTxt("a", "1,1,1,50\n2,2,1,60\n3,3,1,70\n4,4,2,50\n");
    program.memory.AddFolder("/p/asc/Fixed_Camera_060.asc");
    EXPECT_EQ(program.Import(kTxt), "PictureFinished");
    EXPECT_EQ(program.CameraFolder(), (Strings{"Fixed_Camera_050.asc", "RedSpeed_Camera_050.asc"}));
}

}  // namespace
}  // namespace halvenmoor
