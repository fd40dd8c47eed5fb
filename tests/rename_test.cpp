#include "tests/support/test_program.h"
#include "ui/frmRename.h"

namespace halvenmoor {
namespace {

class RenameTest : public testing::Test {
protected:
    using Action = std::function<void(frmRename&)>;

    /// A camera file for each of these entries, which holds the entry's name.
    void Start(const Strings& entries = {"a", "b", "c", "d", "e"}) {
        for (const std::string& entry : entries) program.AddCameraFile(entry, entry);
        program.Start();
        program.memory.ForgetCalls();
    }
    frmMain& Window() { return program.Window(); }
    forms::ListBox& List() { return Window().MainList; }

    /// Selects the entry and clicks the button. False when no dialog opened; one that the action leaves open
    /// is cancelled.
    bool Open(const std::string& entry, const Action& action = {}) {
        program.Select(0, {entry});
        const bool opened = program.Open<frmRename>(Window().ButtonRenameFile, action);
        EXPECT_TRUE(List().HasFocus());
        return opened;
    }
    /// True when the dialog closed by itself.
    static bool Enter(frmRename& dialog, const std::string& name) {
        EXPECT_TRUE(dialog.TextFileName.UserTyped(name));
        EXPECT_TRUE(dialog.UserKeyPress(U'\r')) << "the key is consumed";
        return !dialog.IsOpen();
    }
    bool Rename(const std::string& entry, const std::string& name) {
        bool closed = false;
        return Open(entry, [&](frmRename& dialog) { closed = Enter(dialog, name); }) && closed;
    }
    std::string TextOf(const std::string& entry) { return program.Text(program.CameraPath(entry)); }
    void ExpectNothingChanged() {
        EXPECT_EQ(program.Items(0), (Strings{"a", "b", "c", "d", "e"}));
        for (const std::string& entry : program.Items(0)) EXPECT_EQ(TextOf(entry), entry);
        EXPECT_TRUE(program.messages.Messages.empty());
    }

    TestProgram program;
};

TEST_F(RenameTest, TheEntryTakesItsSortedPlace) {
    Start();
    EXPECT_TRUE(Rename("b", "D2"));
    EXPECT_EQ(program.Items(0), (Strings{"a", "c", "d", "D2", "e"}));
    EXPECT_EQ(TextOf("D2"), "b");
    EXPECT_EQ(TextOf("b"), "(none)");
    EXPECT_TRUE(List().ListIndex() == 3 && List().Selected(3) && List().SelCount() == 1);
    EXPECT_TRUE(List().TakeScroll());
    EXPECT_TRUE(Window().ButtonRenameFile.Enabled());
    EXPECT_EQ(program.memory.Calls().back(), "rename /p/demo/asc_demo/b.asc > /p/demo/asc_demo/D2.asc");
}

TEST_F(RenameTest, OpensBesideTheRow) {
    Start();
    // The main window stands at 3600, 2955. To the right it goes on by a frame of 3 pixels and the list's
    // 384, less 45 twips and the dialog's 3495 with two frames; down by the list's 32 pixels and a caption
    // that is 5 pixels higher than the dialog's, less the field's 8. A row has 13 pixels.
    const auto expectTop = [this](const std::string& entry, int top) {
        EXPECT_TRUE(Open(entry, [&](frmRename& dialog) {
            EXPECT_EQ(dialog.Position().left, 5775) << entry;
            EXPECT_EQ(dialog.Position().top, top) << entry;
        }));
    };
    expectTop("a", 3390);
    expectTop("e", 3390 + 4 * 195);
    static_cast<fakes::WatchedView&>(*Window().GetView()).TopRow = 2;
    expectTop("e", 3390 + 2 * 195);
}

TEST_F(RenameTest, EnterConfirmsAnywhere) {
    Start();
    EXPECT_TRUE(Open("a", [](frmRename& dialog) {
        EXPECT_TRUE(dialog.TextFileName.UserTyped("x"));
        EXPECT_FALSE(dialog.UserKeyPress(U'x')) << "other keys pass";
        EXPECT_TRUE(dialog.ButtonCancel.UserFocused());
        EXPECT_TRUE(dialog.UserKeyPress(U'\r'));
        EXPECT_FALSE(dialog.IsOpen());
    }));
    EXPECT_EQ(TextOf("x"), "a");
    EXPECT_TRUE(Open("x", [](frmRename& dialog) {
        EXPECT_FALSE(dialog.UserClose()) << "there is no close box";
        EXPECT_TRUE(dialog.TextFileName.UserTyped(" y'[$].asc ") && dialog.ButtonRename.UserPress());
    }));
    EXPECT_EQ(TextOf(" y'[$].asc "), "a") << "as it was typed";
}

TEST_F(RenameTest, AnEqualOrEmptyNameClosesOnly) {
    Start();
    for (const char* name : {"", "b", "B"}) EXPECT_TRUE(Rename("b", name)) << name;
    ExpectNothingChanged();
    program.AddCameraFile("K\xF6ln");
    program.Click(Window().CheckAuto[1]);
    EXPECT_TRUE(Rename("K\xF6ln", "K\u00d6LN")) << "each name is read in its own code";
    EXPECT_EQ(program.Items(0), (Strings{"a", "b", "c", "d", "e", "K\xF6ln"}));
}

TEST_F(RenameTest, RefusesTakenAndHiddenNamesAndTwelveCharacters) {
    Start();
    program.memory.Put("/p/demo/asc_demo/Other.ASC", "other");
    for (const std::string name : {".b", "c", "C", "other", "OTHER", "a/../b", "*", "x\\", "x/", "x:", "x\"",
                                   "x<", "x>", "x|", "x;", "x!", "x#", "x*", "x?"}) {
        EXPECT_TRUE(Open("b", [&](frmRename& dialog) {
            dialog.TextFileName.TakeSelectAll();
            EXPECT_FALSE(Enter(dialog, name)) << name;
            EXPECT_EQ(dialog.TextFileName.Text(), "b");
            EXPECT_TRUE(dialog.TextFileName.TakeSelectAll() && dialog.TextFileName.HasFocus());
        }));
    }
    ExpectNothingChanged();
    EXPECT_EQ(program.Text("/p/demo/asc_demo/Other.ASC"), "other");
}

TEST_F(RenameTest, AFailureLeavesWhatWasTyped) {
    Start();
    program.memory.AddFolder("/p/demo/asc_demo/folder.asc");
    EXPECT_FALSE(Rename("b", "folder"));
    EXPECT_TRUE(Open("b", [&](frmRename& dialog) {
        program.memory.Remove(program.CameraPath("b"));
        EXPECT_FALSE(Enter(dialog, "x"));
        EXPECT_EQ(dialog.TextFileName.Text(), "x");
        program.AddCameraFile("b", "new");
        EXPECT_TRUE(Enter(dialog, "x")) << "the next try succeeds";
    }));
    EXPECT_EQ(TextOf("x"), "new");
}

TEST_F(RenameTest, ReportsAFileThatHasGone) {
    Start({"a", "K\xF6ln"});
    program.memory.Remove(program.CameraPath("K\xF6ln"));
    program.AddCameraFile("K\xD6ln");
    EXPECT_FALSE(Open("K\xF6ln"));
    ASSERT_EQ(program.messages.Messages.size(), 1u);
    EXPECT_EQ(program.messages.Messages[0].text,
              "Error renaming K\u00f6ln.asc: The system cannot find the file specified.          ");
    EXPECT_EQ(program.messages.Messages[0].title, "Rename Speed Camera File");
    EXPECT_EQ(program.Items(0), (Strings{"a", "K\xF6ln"})) << "until the next reload";
}

}  // namespace
}  // namespace halvenmoor
