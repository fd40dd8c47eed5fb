#include "tests/support/test_program.h"

namespace halvenmoor {
namespace {

using Names = TestProgram::Names;

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
    EXPECT_EQ(program.Items(0), Names{"demo"});
    EXPECT_TRUE(window.CheckDemoMode.Value() && window.CheckSaveResults.Value());
    EXPECT_FALSE(window.ButtonImportFiles.Enabled());
    EXPECT_EQ(window.LanguageList.Text(), "English");
    EXPECT_EQ(window.LabelTypeList[1].Caption(), "Speed Camera Type \"1\" (Fixed Speed Camera)");
    EXPECT_EQ(window.OptionExportMode[2].Caption(), "Save File As...");
    EXPECT_EQ(program.Option("DemoMode") + program.Option("SaveResults"), "(none)(none)");
    EXPECT_EQ(window.ActiveControl(), &window.ButtonClassifyFiles);
}

TEST(StartTest, DemoModeOfExactlyOneIsTheDemonstration) {
    for (const char* value : {"1", "0", "2", "", " 1"}) {
        TestProgram program;
        program.memory.Put("/p/asc/normal.asc", "");
        program.memory.Put("/p/demo/asc_demo/demo.asc", "");
        program.SetOption("DemoMode", value);
        program.Start();
        const bool demonstration = std::string(value) == "1";
        EXPECT_EQ(program.core.CameraFile("a"), demonstration ? "/p/demo/asc_demo/a.asc" : "/p/asc/a.asc")
            << value;
        EXPECT_EQ(program.core.TargetFolder(), demonstration ? "/p/demo/txt_demo/" : "/p/txt/");
        EXPECT_EQ(program.core.ResultsFile(),
                  demonstration ? "/p/demo/Export Results.txt" : "/p/Export Results.txt");
        EXPECT_EQ(program.core.LanguageFolder(), "/p/lang/");
        EXPECT_EQ(program.Items(0), Names{demonstration ? "demo" : "normal"});
        EXPECT_EQ(program.Window().CheckDemoMode.Value(), demonstration);
        EXPECT_EQ(program.Window().ButtonImportFiles.Enabled(), !demonstration);
        EXPECT_EQ(program.Option("DemoMode"), value) << "start writes nothing";
    }
}

TEST(StartTest, SaveResultsReadsAsOffUnlessItIsOne) {
    for (const auto& [stored, after] : {std::pair("1", "1"), {"0", "0"}, {"2", "0"}, {"", "0"}}) {
        TestProgram program;
        program.SetOption("SaveResults", stored);
        program.Start();
        EXPECT_EQ(program.Window().CheckSaveResults.Value(), after[0] == '1');
        EXPECT_EQ(program.Option("SaveResults"), after) << "the box changed, and its click stores it";
    }
}

/// A store that nobody may touch.
class ForbiddenSettings : public platform::SettingsStore {
    std::string GetSetting(std::string_view, std::string_view, std::string_view, std::string_view) override {
        ADD_FAILURE() << "an option was read";
        return "";
    }
    void SaveSetting(std::string_view, std::string_view, std::string_view, std::string_view) override {
        ADD_FAILURE() << "an option was written";
    }
};

TEST(StartTest, SecondInstanceRaisesTheFirstAndLeavesWithoutATrace) {
    TestProgram program;
    program.programInfo.HasPreviousInstance = true;
    ForbiddenSettings settings;
    Program second({program.files, program.files, program.programInfo, program.clock, settings,
                    program.messages, program.fileDialogs, program.theme, program.locale},
                   program.toolkit);
    second.Start();
    EXPECT_EQ(program.programInfo.RaisedPreviousInstance, 1);
    EXPECT_EQ(second.Core().MainForm, nullptr);
    EXPECT_EQ(program.files.Calls(), 0);
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
        program.toolkit.OnYield = [&] { EXPECT_TRUE(program.messages.Messages.empty()); };
        program.Start();
        ASSERT_EQ(program.messages.Messages.size(), 1U);
        EXPECT_EQ(program.messages.Messages[0].text, test.message);
        EXPECT_EQ(program.messages.Messages[0].title, "Halvenmoor");
        EXPECT_EQ(program.toolkit.Yields(), 1) << "pending events run before the message";
        EXPECT_TRUE(program.desktop.Ended());
        EXPECT_EQ(program.Window().LabelSelectLanguage.Caption(), "Select Language") << "loaded to its end";
    }
}

TEST(StartTest, FileSystemObjectIsTestedAgainAfterEachDialog) {
    TestProgram program;
    program.Start();
    forms::Form dialog(program.desktop, {});
    program.toolkit.Script([&program](forms::Form& form) {
        program.files.FailFromCall(1, Failure(7, "Out of memory"));
        form.Unload();
    });
    EXPECT_FALSE(program.desktop.Ended());
    program.desktop.ShowModal(dialog);
    EXPECT_EQ(program.messages.Messages.size(), 1U);
    EXPECT_TRUE(program.desktop.Ended());
}

TEST(StartTest, ExitEndsTheProgramAndStoresNothing) {
    TestProgram program;
    program.Start();
    program.Click(program.Window().ButtonExitApplication);
    EXPECT_TRUE(program.desktop.Ended());
    EXPECT_EQ(program.Option("DemoMode"), "(none)");
}

}  // namespace
}  // namespace halvenmoor
