#include "tests/support/test_program.h"

namespace halvenmoor {
namespace {

constexpr int kOv2 = ImportProgram::kOv2;
constexpr int kTxt = ImportProgram::kTxt;

/// Two sources of each kind, and a camera folder with an entry that was sorted.
struct PreparedProgram : ImportProgram {
    PreparedProgram() {
        AddOv2("one", kPoint);
        AddOv2("two", kPoint + kPoint);
        AddTxt("one", "1,1,1,50\n2,2,2,60\n");
        AddTxt("two", "3,3,1,50\n");
        AddCameraFile("old_50", "1.5,52.5,x\n");
        core.ReloadWorkspace();
        Move(1, {"old_50"});
    }
};

TEST(ImportDialogTest, OpensReady) {
    PreparedProgram program;
    program.memory.Put("/p/asc/note.txt", "");
    program.theme.Themed = true;
    program.theme.GroupBoxText = forms::Rgb(1, 2, 3);
    program.Open([&](frmImport& dialog) {
        const forms::Point main = program.Window().Position();
        EXPECT_EQ(dialog.Position().left, main.left + 1200);
        EXPECT_EQ(dialog.Position().top, main.top + 1580);
        EXPECT_EQ(dialog.LabelSourceName.ForeColor(), forms::Rgb(1, 2, 3)) << "that of group boxes";
        EXPECT_EQ(dialog.LabelSourceFolder.Caption(), ".\\import\\ov2\\*.ov2");
        EXPECT_EQ(dialog.LabelTargetFolder.Caption(), ".\\asc\\*.asc");
        EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "2 File(s)");
        EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "1 File(s)");
        EXPECT_EQ(ShownPicture(dialog), "PictureDelete");
        EXPECT_TRUE(dialog.ButtonStart.HasFocus());
        EXPECT_FALSE(dialog.ButtonFinish.Enabled());
        EXPECT_FALSE(program.List(0).Enabled() || program.List(5).Enabled());
        program.memory.Remove("/p/import/txt/two.txt");
        program.Click(dialog.OptionSource[kTxt]);
        EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "1 File(s)");
        program.memory.Remove(program.CameraPath("old_50"));
        program.Click(dialog.OptionSource[kOv2]);
        EXPECT_EQ(ShownPicture(dialog), "PictureNoDelete") << "other files do not count";
    });
}

TEST(ImportDialogTest, LeavingItReadyChangesNothing) {
    PreparedProgram program;
    EXPECT_TRUE(program.Export());
    for (const auto leave : {+[](frmImport& dialog) { EXPECT_TRUE(dialog.ButtonCancel.UserPress()); },
                             +[](frmImport& dialog) { EXPECT_TRUE(dialog.UserEscape()); },
                             +[](frmImport& dialog) { EXPECT_TRUE(dialog.UserClose()); }}) {
        program.Open([&](frmImport& dialog) {
            leave(dialog);
            EXPECT_FALSE(dialog.IsOpen() || dialog.FilesModified());
        });
        EXPECT_EQ(program.Items(1), Strings{"old_50"});
        EXPECT_TRUE(program.Window().ResultsValid);
        EXPECT_TRUE(program.List(0).Enabled() && program.List(5).Enabled());
        EXPECT_EQ(program.CameraFolder(), Strings{"old_50.asc"});
    }
}

TEST(ImportDialogTest, RunEmptiesTheFolderAndRebuildsTheListsWatchedOrNot) {
    for (const int source : {kOv2, kTxt}) {
        for (const bool isWatched : {true, false}) {
            PreparedProgram program;
            program.toolkit.SkipsYields = !isWatched;
            program.memory.Put("/p/asc/.hidden", "");
            program.memory.Put("/p/asc/folder/kept.asc", "kept");
            program.Open([&](frmImport& dialog) {
                program.Click(dialog.OptionSource[source]);
                program.Click(dialog.ButtonStart);
                program.ExpectDone(dialog);
                EXPECT_EQ(ShownPicture(dialog), "PictureFinished");
                EXPECT_EQ(dialog.LabelAddedRecords.AccessibleName(),
                          source == kTxt ? "3 Camera(s)" : "Camera(s)");
                EXPECT_EQ(program.toolkit.Announced,
                          Strings{source == kTxt ? "Import Files ✓, 2 File(s), 3 Camera(s)"
                                                 : "Import Files ✓, 2 File(s)"});
                EXPECT_TRUE(program.Items(1).empty()) << "emptied at once";
                program.Click(dialog.OptionSource[3 - source]);
                EXPECT_TRUE(dialog.OptionSource[source].Value()) << "a run cannot be changed any more";
                program.Click(dialog.ButtonFinish);
                EXPECT_FALSE(dialog.IsOpen());
            });
            EXPECT_EQ(program.toolkit.Yields() > 0, isWatched);
            if (source == kOv2) {
                EXPECT_EQ(program.Camera("two"), kComment + Repeated("1.50000, 52.50000, \"n\"\r\n", 2));
                EXPECT_EQ(program.Items(0), (Strings{"one", "two"}));
            } else {
                EXPECT_EQ(program.Items(0), (Strings{"Fixed_Camera_050", "RedSpeed_Camera_060"}));
            }
            EXPECT_FALSE(program.memory.Has("/p/asc/.hidden"));
            EXPECT_EQ(program.Text("/p/asc/folder/kept.asc"), "kept");
            EXPECT_TRUE(program.Window().ButtonClassifyFiles.HasFocus());
        }
    }
}

TEST(ImportDialogTest, StopLeavesWhatWasWritten) {
    for (const bool byButton : {true, false}) {
        PreparedProgram program;
        program.Open([&](frmImport& dialog) {
            program.toolkit.OnYield = [&, yields = 0]() mutable {
                if (++yields != 2) return;  // the folder is empty, and one source is done
                EXPECT_TRUE(dialog.Busy());
                EXPECT_FALSE(dialog.UserEscape()) << "no button has Escape during a run";
                EXPECT_TRUE(byButton ? dialog.ButtonCancel.UserPress() : dialog.UserClose());
                EXPECT_TRUE(dialog.IsOpen()) << "refused: the run has to wind down";
            };
            program.Click(dialog.ButtonStart);
            program.ExpectDone(dialog);
            EXPECT_EQ(ShownPicture(dialog), "PictureIncomplete");
            EXPECT_EQ(program.toolkit.Announced, Strings{"Import Files ✗, 1 File(s)"})
                << "nothing has failed";
        });
        EXPECT_EQ(program.CameraFolder(), Strings{"one.asc"});
    }
}

}  // namespace
}  // namespace halvenmoor
