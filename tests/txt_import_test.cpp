#include "tests/support/test_program.h"

namespace halvenmoor {
namespace {

constexpr int kTxt = ImportProgram::kTxt;

TEST(TxtImportTest, TellsRecordsFromOtherLines) {
    ImportProgram program("[Settings]\nSourceStructure=2\n");
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
                                 EXPECT_EQ(dialog.PictureIncomplete.ToolTip(), "\u2717 7 Camera(s)");
                             }),
              "PictureIncomplete");
    EXPECT_EQ(program.Items(0), (Strings{"Fixed_Camera_050", "Mobile_Camera_000", "RedLight_Camera_000",
                                         "RedSpeed_Camera_030"}));
    EXPECT_EQ(program.Camera("Fixed_Camera_050"), kComment2 + Crlf("1.1, 2.1, \"Fixed Camera\", 1, 90\n"
                                                                   "1.2, \t2.2, \"Fixed Camera\", 0, 0\n"));
    EXPECT_EQ(program.Camera("RedSpeed_Camera_030"),
              kComment2 + Crlf("1.3, 2.3, \"RedSpeed Camera\", 0, 0\n"));
    EXPECT_EQ(program.Camera("RedLight_Camera_000"),
              kComment2 + Crlf("1.4, 2.4, \"RedLight Camera\", 2, 180\n"));
    EXPECT_EQ(program.Camera("Mobile_Camera_000"), kComment2 + Crlf(", , \"Mobile Camera\", , \n"));
}

TEST(TxtImportTest, LayoutFollowsTheSettings) {
    ImportProgram program("[Settings]\nSourceStructure=3\n");
    program.AddTxt("a", "1.5,52.5,4,130,1,90\n");
    EXPECT_EQ(program.Import(kTxt), "PictureFinished");
    EXPECT_EQ(program.Camera("Section_Camera_130"), kComment3 + "1.5, 52.5, \"Section Camera\", 90, 1\r\n");
}

TEST(TxtImportTest, SourcesAreMergedInTheOrderOfTheirNames) {
    ImportProgram program;
    program.AddTxt("b", "3,3,1,50\n");
    program.memory.Put("/p/import/txt/A.TXT", "1,1,1,50\n2,2,1,60\n");
    program.memory.Put("/p/import/txt/d.csv", "4,4,1,50\nbad,bad,bad,bad\n");
    program.memory.AddFolder("/p/import/txt/e.txt");
    EXPECT_EQ(program.Import(kTxt), "PictureFinished");
    EXPECT_EQ(program.Camera("Fixed_Camera_050"),
              kComment + Crlf("1, 1, \"Fixed Camera\"\n3, 3, \"Fixed Camera\"\n"));
    EXPECT_EQ(program.Camera("Fixed_Camera_060"), kComment + Crlf("2, 2, \"Fixed Camera\"\n"));
}

TEST(TxtImportTest, SpeedsThatShareAFileNameLoseNothing) {
    ImportProgram program;
    const char* const speeds[] = {"50", "050", "49.5", "50.5", "5 0", "-5", "", "fast", "1e2", "1E2", "1e99"};
    std::string source;
    for (const char* speed : speeds) source += std::string(speed) + ",0,1," + speed + "\n";
    program.AddTxt("a", source);
    EXPECT_EQ(program.Import(kTxt), "PictureFinished");
    const auto expectX = [&](const std::string& entry, const Strings& values) {
        std::string lines = kComment;
        for (const std::string& x : values) lines += x + ", 0, \"Fixed Camera\"\r\n";
        EXPECT_EQ(program.Camera("Fixed_Camera_" + entry), lines);
    };
    expectX("-005", {"-5"});
    expectX("000", {"", "fast"});
    expectX("050", {"49.5", "50", "050", "5 0", "50.5"});  // by number, then in reading order
    expectX("100", {"1e2", "1E2"});
    expectX("999999999999999", {"1e99"});
}

}  // namespace
}  // namespace halvenmoor
