#include "tests/support/test_program.h"

namespace halvenmoor {
namespace {

TEST(StartTest, FirstRunShowsTheDemonstrationInEnglish) {
    TestProgram program;
    program.AddCameraFile("demo");
    program.Start();
    frmMain& window = program.Window();
    EXPECT_EQ(window.Caption(), "Halvenmoor 3.2");
    // The screen has 1280 by 1024 pixels.
    EXPECT_EQ(window.Position().left, (640 - 400) * 15);
    EXPECT_EQ(window.Position().top, (512 - 315) * 15);
    EXPECT_EQ(program.core.ExportMode, 1);
    EXPECT_EQ(program.Items(0), Strings{"demo"});
    EXPECT_TRUE(window.CheckDemoMode.Value() && window.CheckSaveResults.Value());
    EXPECT_EQ(window.LabelTypeList[1].Caption(), "Speed Camera Type \"1\" (Fixed Speed Camera)");
    EXPECT_EQ(window.OptionExportMode[2].Caption(), "Save File As...");
    EXPECT_EQ(window.ActiveControl(), &window.ButtonClassifyFiles);
}

TEST(StartTest, DemoModeOfExactlyOneIsTheDemonstration) {
    for (const char* value : {"1", "0", "", " 1"}) {
        TestProgram program;
        program.memory.Put("/p/asc/normal.asc", "");
        program.memory.Put("/p/demo/asc_demo/demo.asc", "");
        program.SetOption("DemoMode", value);
        program.Start();
        const bool isDemonstration = value == std::string("1");
        EXPECT_EQ(program.Items(0), Strings{isDemonstration ? "demo" : "normal"}) << value;
        EXPECT_EQ(program.Window().ButtonImportFiles.Enabled(), !isDemonstration);
        EXPECT_EQ(program.Option("DemoMode"), value) << "start writes nothing";
    }
}

TEST(StartTest, SecondInstanceRaisesTheFirstAndLeavesWithoutATrace) {
    TestProgram program;
    program.SetOption("SaveResults", "2");  // which a start would change
    program.programInfo.HasPreviousInstance = true;
    program.Start();
    EXPECT_EQ(program.programInfo.RaisedPreviousInstance, 1);
    EXPECT_EQ(program.core.MainForm, nullptr);
    EXPECT_EQ(program.files.Calls(), 0);
    EXPECT_EQ(program.Option("SaveResults"), "2");
}

TEST(StartTest, WithoutAFileSystemObjectTheProgramEndsAfterAMessage) {
    const struct {
        Failure failure;
        const char* message;
    } cases[] = {
        {Failure(429, "ActiveX component can't create object"),
         "Run-time error 429:\r\n\r\nMicrosoft script runtime library  \"scrrun.dll\"  is either "
         "missing, corrupt or not correctly registered.          "},
        {Failure(70, "Permission denied"), "Run-time error 70:\r\n\r\nPermission denied.          "}};
    for (const auto& test : cases) {
        TestProgram program;
        program.files.FailFromCall(1, test.failure);
        program.Start();
        ASSERT_EQ(program.messages.Messages.size(), 1U);
        EXPECT_EQ(program.messages.Messages[0].text, test.message);
        EXPECT_EQ(program.messages.Messages[0].title, "Halvenmoor");
        EXPECT_TRUE(program.desktop.Ended());
        EXPECT_EQ(program.Window().LabelSelectLanguage.Caption(), "Select Language") << "loaded to its end";
    }
}

}  // namespace
}  // namespace halvenmoor
