#include "core/camera_files.h"
#include "tests/support/test_program.h"

namespace halvenmoor {
namespace {

/// The enabled ones of the buttons that follow the lists; the one with the focus stands in brackets.
std::string Buttons(TestProgram& program) {
    frmMain& window = program.Window();
    std::string shown;
    for (const forms::CommandButton* button :
         {&window.ButtonClassifyFiles, &window.ButtonReloadFiles, &window.ButtonRenameFile,
          &window.ButtonImportFiles, &window.ButtonExportCameras, &window.ButtonShowResults}) {
        if (!button->Enabled()) continue;
        const std::string name = button->Name().substr(std::string("Button").size());
        shown += (shown.empty() ? "" : " ") + (button->HasFocus() ? "[" + name + "]" : name);
    }
    return shown;
}

Strings Languages(TestProgram& program) {
    Strings names;
    for (int i = 0; i < program.Window().LanguageList.ListCount(); ++i)
        names.push_back(program.Window().LanguageList.List(i));
    return names;
}

/// Makes a finished export's results seem to be there.
void SetResultsValid(TestProgram& program) {
    program.Window().ResultsValid = true;
    program.Window().UpdateButtons(false);
}

TEST(FindCameraFilesTest, FindsEachNameOnceWithoutItsExtension) {
    fakes::MemoryFiles files;
    for (const auto* name : {"b.asc", "A.asc", "X.ASC", "x.y.Asc", "twice.asc", "twice.ASC", ".hidden.asc",
                             "note.txt", "a.asc.bak", "K\xF6ln.asc"}) {
        files.Put(std::string("/f/") + name, "");
    }
    files.AddFolder("/f/folder.asc");
    EXPECT_EQ(FindCameraFiles(files, "/f/"), (Strings{"A", "K\xF6ln", "X", "b", "twice", "x.y"}));
}

class CatalogueTest : public testing::Test {
protected:
    CatalogueTest() {
        program.SetOption("DemoMode", "0");
        for (const auto* name : {"a", "b", "c", "d", "e"}) program.AddCameraFile(name);
        program.Start();
    }

    frmMain& Window() { return program.Window(); }

    TestProgram program;
};

TEST_F(CatalogueTest, ButtonsMoveWhatIsSelected) {
    program.Select(0, {"b", "d"});
    program.Click(Window().ButtonAdd[1]);
    EXPECT_EQ(program.Items(0), (Strings{"a", "c", "e"}));
    program.Select(1, {"b"});
    program.Click(Window().ButtonRemove[5]);
    EXPECT_EQ(program.Items(0), (Strings{"a", "b", "c", "e"}));
    EXPECT_EQ(program.Items(1), Strings{"d"});
}

TEST_F(CatalogueTest, DragsMoveBetweenAnyLists) {
    program.Drag(0, 2, {"a", "c"});
    program.Drag(2, 4, {"c"});
    program.Drag(2, 0, {"a"});
    EXPECT_EQ(program.Items(0), (Strings{"a", "b", "d", "e"}));
    EXPECT_EQ(program.List(0).DragText() + ", " + program.List(2).DragText(), "2 File(s), a");
    SetResultsValid(program);
    program.Drag(4, 4, {"c"});
    EXPECT_EQ(program.Items(4), Strings{"c"});
    EXPECT_TRUE(Window().ResultsValid) << "a drop where the drag began is no move";
    program.Drag(4, 5, {"c"});
    EXPECT_FALSE(Window().ResultsValid);
    EXPECT_EQ(program.Items(5), Strings{"c"});
}

TEST_F(CatalogueTest, ButtonsFollowTheLists) {
    EXPECT_EQ(Buttons(program), "[ClassifyFiles] ImportFiles");
    program.Select(0, {"a"});
    EXPECT_EQ(Buttons(program), "ClassifyFiles RenameFile ImportFiles");
    program.Select(0, {"a", "b"});
    EXPECT_EQ(Buttons(program), "ClassifyFiles ImportFiles");
    EXPECT_TRUE(Window().MainList.HasFocus());
    program.Select(0, {"a"});
    program.Click(Window().ButtonAdd[1]);
    EXPECT_EQ(Buttons(program), "ClassifyFiles ReloadFiles ImportFiles [ExportCameras]");
    program.Select(0, {"c"});
    EXPECT_EQ(Buttons(program), "ClassifyFiles ReloadFiles RenameFile ImportFiles ExportCameras");
    program.Select(1, {"a"});
    EXPECT_TRUE(program.Export());
    EXPECT_EQ(Buttons(program), "ClassifyFiles ReloadFiles ImportFiles ExportCameras [ShowResults]");
    program.Click(Window().ButtonAdd[2]);
    EXPECT_EQ(Buttons(program), "ClassifyFiles ReloadFiles ImportFiles [ExportCameras]")
        << "moving nothing ends the results too";
    program.Move(2, {"b", "c", "d", "e"});
    EXPECT_EQ(Buttons(program), "ReloadFiles ImportFiles [ExportCameras]");
    program.Click(Window().ButtonReloadFiles);
    EXPECT_EQ(Buttons(program), "[ClassifyFiles] ImportFiles");
    program.memory.Remove("/p/asc");
    program.Click(Window().CheckAuto[1]);
    EXPECT_EQ(Buttons(program), "[ImportFiles]");
    program.Click(Window().CheckDemoMode);
    EXPECT_EQ(Buttons(program), "");
    EXPECT_TRUE(Window().CheckDemoMode.HasFocus()) << "the next in the tab order";
}

TEST_F(CatalogueTest, KeysGoOnSortingWhereItWas) {
    program.Select(0, {"b", "c"});
    for (const char* key : {"Alt+3", "Alt+M", "Alt+2", "Alt+M", "Alt+1", "Alt+M", "Alt+5", "Alt+M"})
        EXPECT_TRUE(Window().UserShortcut(key)) << key;
    EXPECT_TRUE(Window().MainList.HasFocus());
    EXPECT_EQ(program.Items(3), (Strings{"b", "c"}));
    EXPECT_EQ(program.Items(2), Strings{"d"}) << "it stands where they stood";
    EXPECT_EQ(program.Items(1), Strings{"e"});
    EXPECT_EQ(program.Items(5), Strings{"a"}) << "the last one";
    EXPECT_TRUE(Window().UserShortcut("F5"));
    EXPECT_TRUE(Window().UserShortcut("Alt+M"));
    EXPECT_TRUE(Window().MainList.Selected(0));
}

TEST_F(CatalogueTest, KeysDoWhatTheButtonsDo) {
    program.memory.Put("/p/manual.html", "");
    program.AddCameraFile("K\xF6ln");
    Window().UserShortcut("F5");
    EXPECT_EQ(program.Items(0).size(), 5u) << "the button is disabled";
    program.Move(4, {"a", "b"});
    SetResultsValid(program);
    EXPECT_FALSE(Window().UserShortcut("Delete")) << "only in a list of a type";
    program.Select(4, {"a"});
    EXPECT_TRUE(Window().UserShortcut("Delete"));
    EXPECT_EQ(program.Items(4), Strings{"b"});
    EXPECT_FALSE(Window().ResultsValid);
    Window().UserShortcut("F5");
    EXPECT_EQ(program.Items(0).size(), 6u);

    int opened = 0;
    const auto countOpened = [&](const std::function<void()>& act) {
        program.toolkit.Script([&](forms::Form& form) {
            opened += form.AtDesign().name == "frmRename" ? 1 : 0;
            form.UserEscape();
        });
        act();
        program.toolkit.ForgetScript();
    };
    for (const Strings& names : {Strings{"a"}, Strings{"a", "K\xF6ln"}}) {
        program.Select(0, names);
        countOpened([&] { Window().UserShortcut("F2"); });
        countOpened([&] { Window().MainList.UserDoubleClick(); });
        countOpened([&] { Window().UserShortcut("Enter"); });
    }
    EXPECT_EQ(opened, 3) << "not with two files";
    EXPECT_TRUE(Window().UserShortcut("Ctrl+C"));
    EXPECT_EQ(program.toolkit.Clipboard, "a\nK\u00F6ln");
    EXPECT_TRUE(Window().UserShortcut("F1"));
    EXPECT_EQ(program.browser.Opened, Strings{"/p/manual.html"});
    EXPECT_TRUE(Window().UserShortcut("Ctrl+Q"));
    EXPECT_TRUE(program.desktop.Ended());
}

TEST_F(CatalogueTest, AutoBoxesResetTheLists) {
    program.Move(2, {"a", "b"});
    program.AddCameraFile("new");
    program.SetSettings("[Type3]\nnew*\n");
    program.Click(Window().CheckAuto[2]);
    EXPECT_EQ(program.Items(0), (Strings{"a", "b", "c", "d", "e", "new"}));
    EXPECT_EQ(program.Items(2), Strings());
    program.Click(Window().ButtonClassifyFiles);
    EXPECT_EQ(program.Items(3), Strings{"new"}) << "the settings were read again";
}

class ClassificationTest : public testing::Test {
protected:
    void Classify(std::string_view settings, const Strings& names) {
        program.SetSettings(settings);
        for (const std::string& name : names) program.AddCameraFile(name);
        program.Start();
        program.Click(program.Window().ButtonClassifyFiles);
    }

    TestProgram program;
};

TEST_F(ClassificationTest, MatchesWholeFileNames) {
    Classify("[Type1]\nfixed*\nplain.ASC\n[Type2]\nred, comma*,\n[Type4]\nM#_*\n",
             {"FIXED 50", "My fixed", "Plain", "red", "comma", " comma", "M6_list", "Mx_list"});
    EXPECT_EQ(program.Items(1), (Strings{"FIXED 50", "Plain"}));
    EXPECT_EQ(program.Items(2), Strings{" comma"});
    EXPECT_EQ(program.Items(4), Strings{"M6_list"});
}

TEST_F(ClassificationTest, LowestTypeWithItsBoxOnWins) {
    Classify("[Type1]\n*x*\n[Type3]\na*\nx*\n", {"ax", "x", "a", "hand"});
    EXPECT_EQ(program.Items(1), (Strings{"ax", "x"}));
    program.Click(program.Window().CheckAuto[1]);
    program.Move(2, {"x"});
    program.Click(program.Window().ButtonClassifyFiles);
    EXPECT_EQ(program.Items(2), Strings{"x"}) << "only unclassified entries are looked at";
    EXPECT_EQ(program.Items(3), (Strings{"a", "ax"}));

    SetResultsValid(program);
    program.Click(program.Window().ButtonClassifyFiles);
    EXPECT_TRUE(program.Window().ResultsValid) << "nothing has moved";
}

TEST_F(ClassificationTest, MalformedPatternEndsItsTypeOnly) {
    Classify("[Type1]\na*\n[b\nc*\n[Type2]\n[c]*\n", {"a", "b", "c"});
    EXPECT_EQ(program.Items(1), Strings{"a"});
    EXPECT_EQ(program.Items(2), Strings{"c"});
}

class LanguageTest : public testing::Test {
protected:
    void Choose(const std::string& language) { EXPECT_TRUE(UserChoosesLanguage(program.Window(), language)); }
    std::string Chosen() { return program.Window().LanguageList.Text(); }
    std::string ExitCaption() { return program.Window().ButtonExitApplication.Caption(); }

    TestProgram program;
};

TEST_F(LanguageTest, NamesAreShownInProperCase) {
    const Strings files{"brazilian portuguese", "DEUTSCH", "deutsch", "english", "espa\xF1ol"};
    for (const auto& name : files) program.AddLanguage(name, "ButtonExitApplication=Exit " + name);
    program.Start();
    const Strings shown{"Brazilian Portuguese", "Deutsch", "English", "Español"};
    EXPECT_EQ(Languages(program), shown);
    for (const std::string& language : shown) {
        Choose(language);
        EXPECT_EQ(ExitCaption(), "Exit " + language);
    }
}

TEST_F(LanguageTest, VanishedFileLeavesTheLanguageInUse) {
    program.AddLanguage("deutsch", "ButtonExitApplication=Beenden");
    program.AddLanguage("polski", "");
    program.Start();
    Choose("Deutsch");
    program.memory.Remove("/p/lang/polski.ini");
    Choose("Polski");
    EXPECT_EQ(Languages(program), (Strings{"Deutsch", "English"}));
    EXPECT_EQ(Chosen(), "Deutsch");
    program.memory.Remove("/p/lang/deutsch.ini");
    Choose("Deutsch");
    EXPECT_EQ(Languages(program), Strings{"English"});
    EXPECT_EQ(ExitCaption(), "Exit");
    EXPECT_EQ(program.Option("Language"), "English");
}

}  // namespace
}  // namespace halvenmoor
