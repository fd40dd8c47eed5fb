#include "tests/support/import_program.h"
#include "tools/file_helpers.h"

#include <algorithm>

namespace halvenmoor {
namespace {

constexpr int kOv2 = ImportProgram::kOv2;
constexpr int kTxt = ImportProgram::kTxt;

const std::string kHeader = Crlf("; Generic Ascii file created by Halvenmoor.\n\n");

const Failure kFault(failure::FileAccess, "Device I/O error");

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

    void ExpectImported(int source) {
        if (source == kOv2) {
            EXPECT_EQ(Camera("two"), kHeader + Crlf("1.50000, 52.50000, \"n\"\n1.50000, 52.50000, \"n\"\n"));
            EXPECT_EQ(Items(0), (Strings{"one", "two"}));
            return;
        }
        EXPECT_EQ(Camera("Fixed_Camera_050"),
                  kHeader + Crlf("1, 1, \"Fixed Camera\"\n3, 3, \"Fixed Camera\"\n"));
        EXPECT_EQ(Items(0), (Strings{"Fixed_Camera_050", "RedSpeed_Camera_060"}));
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
        EXPECT_EQ(dialog.LabelTargetName.ForeColor(), forms::Rgb(1, 2, 3));
        EXPECT_EQ(dialog.LabelSourceFolder.Caption(), ".\\import\\ov2\\*.ov2");
        EXPECT_EQ(dialog.LabelTargetFolder.Caption(), ".\\asc\\*.asc");
        EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "2 File(s)");
        EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "1 File(s)");
        EXPECT_EQ(dialog.LabelTargetFiles.ForeColor(), std::nullopt);
        EXPECT_EQ(dialog.CheckDelete.Caption(), "Delete any existing files in target folder, then ...");
        EXPECT_EQ(ShownPicture(dialog), "PictureDelete");
        EXPECT_TRUE(dialog.ButtonStart.HasFocus());
        EXPECT_FALSE(dialog.ButtonFinish.Enabled());
        EXPECT_FALSE(program.List(0).Enabled());
        EXPECT_FALSE(program.List(5).Enabled());

        program.Click(dialog.CheckDelete);
        EXPECT_TRUE(dialog.CheckDelete.Value());
        program.memory.Remove("/p/import/txt/two.txt");
        program.Click(dialog.OptionSource[kTxt]);
        EXPECT_EQ(dialog.LabelSourceFolder.Caption(), ".\\import\\txt\\*.txt");
        EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "1 File(s)");
        EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "1 File(s)");
        program.memory.Remove(program.CameraPath("old_50"));
        program.Click(dialog.OptionSource[kOv2]);
        EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "2 File(s)");
        EXPECT_EQ(ShownPicture(dialog), "PictureNoDelete") << "other files do not count";
    });
}

TEST(ImportDialogTest, LeavingItReadyChangesNothing) {
    PreparedProgram program;
    EXPECT_TRUE(program.Export());
    EXPECT_TRUE(program.Window().ResultsValid);
    for (const auto leave : {+[](frmImport& dialog) { EXPECT_TRUE(dialog.ButtonCancel.UserPress()); },
                             +[](frmImport& dialog) { EXPECT_TRUE(dialog.UserEscape()); },
                             +[](frmImport& dialog) { EXPECT_TRUE(dialog.UserClose()); }}) {
        program.Open([&](frmImport& dialog) {
            leave(dialog);
            EXPECT_FALSE(dialog.IsOpen());
            EXPECT_FALSE(dialog.FilesModified());
        });
        EXPECT_EQ(program.Items(1), Strings{"old_50"});
        EXPECT_TRUE(program.Window().ResultsValid);
        EXPECT_TRUE(program.List(0).Enabled());
        EXPECT_TRUE(program.List(5).Enabled());
        EXPECT_EQ(program.CameraFolder(), Strings{"old_50.asc"});
    }
    program.Click(program.Window().CheckDemoMode);
    EXPECT_FALSE(program.Window().ButtonImportFiles.UserPress());
}

TEST(ImportDialogTest, RunEmptiesTheFolderAndRebuildsTheListsWatchedOrNot) {
    for (const int source : {kOv2, kTxt}) {
        for (const bool isWatched : {true, false}) {
            PreparedProgram program;
            program.toolkit.SkipsYields = !isWatched;
            program.memory.Put("/p/asc/.hidden", "");
            program.memory.Put("/p/asc/note.txt", "");
            program.memory.Put("/p/asc/folder/kept.asc", "kept");
            program.Open([&](frmImport& dialog) {
                program.Click(dialog.OptionSource[source]);
                program.Click(dialog.ButtonStart);
                program.ExpectDone(dialog);
                EXPECT_EQ(ShownPicture(dialog), "PictureFinished");
                EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "2 File(s)");
                EXPECT_EQ(dialog.LabelTargetFiles.ForeColor(), std::nullopt);
                EXPECT_EQ(dialog.LabelAddedRecords.Caption(), source == kTxt ? "3 Camera(s)" : "");
                EXPECT_EQ(dialog.PictureIncomplete.ToolTip(), "");
                EXPECT_TRUE(program.Items(1).empty()) << "emptied at once";
                EXPECT_TRUE(dialog.FilesModified());

                program.Click(dialog.OptionSource[3 - source]);
                EXPECT_TRUE(dialog.OptionSource[source].Value()) << "a run cannot be changed any more";
                EXPECT_FALSE(dialog.ButtonStart.UserPress());
                program.Click(dialog.ButtonFinish);
                EXPECT_FALSE(dialog.IsOpen());
            });
            EXPECT_EQ(program.toolkit.Yields() > 0, isWatched);
            program.ExpectImported(source);
            EXPECT_FALSE(program.memory.Has("/p/asc/.hidden"));
            EXPECT_FALSE(program.memory.Has("/p/asc/note.txt"));
            EXPECT_EQ(program.Text("/p/asc/folder/kept.asc"), "kept");
            EXPECT_TRUE(program.Window().ButtonClassifyFiles.HasFocus());
            EXPECT_TRUE(program.List(1).Enabled());
            EXPECT_TRUE(program.messages.Messages.empty());
        }
    }
}

TEST(ImportDialogTest, MissingFolders) {
    for (const int source : {kOv2, kTxt}) {
        PreparedProgram program;
        program.memory.Remove("/p/import");
        EXPECT_EQ(program.Import(source), "PictureFinished") << "the folder is empty now, and that is all";
        EXPECT_TRUE(program.CameraFolder().empty());
        EXPECT_TRUE(program.Items(1).empty());

        PreparedProgram withoutTarget;
        withoutTarget.memory.Remove("/p/asc");
        EXPECT_EQ(
            withoutTarget.Import(source, [](frmImport& dialog) { EXPECT_FALSE(dialog.FilesModified()); }),
            "PictureNoDelete");
        EXPECT_EQ(withoutTarget.Items(1), Strings{"old_50"}) << "the lists stay as they are";
        EXPECT_FALSE(withoutTarget.memory.Has("/p/asc"));
    }
}

TEST(ImportDialogTest, FileThatCannotBeDeletedEndsTheRun) {
    PreparedProgram program;
    program.AddCameraFile("a");
    program.AddCameraFile("z");
    program.Open([&](frmImport& dialog) {
        // The calls: object, folder exists, folder, its files, then the files one by one.
        program.files.FailCall(6, kFault);
        program.Click(dialog.ButtonStart);
        program.ExpectDone(dialog);
        EXPECT_EQ(ShownPicture(dialog), "PictureDelete");
        EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "3 File(s)") << "no new count";
        EXPECT_FALSE(dialog.FilesModified());
    });
    EXPECT_EQ(program.CameraFolder(), Strings{"old_50.asc"}) << "the others are gone";
    EXPECT_EQ(program.Items(1), Strings{"old_50"});
}

TEST(ImportDialogTest, StopAtEveryYield) {
    for (const int source : {kOv2, kTxt}) {
        // OV2: emptied, two files, the end. TXT: emptied, two files, three lines, sources read, three speeds,
        // two camera files before and after, the end.
        const int lastYield = source == kOv2 ? 4 : 15;
        for (int yield = 1; yield <= lastYield; ++yield) {
            SCOPED_TRACE(std::to_string(source) + " at " + std::to_string(yield));
            PreparedProgram program;
            int yields = 0;
            program.Open([&](frmImport& dialog) {
                program.Click(dialog.OptionSource[source]);
                program.toolkit.OnYield = [&] {
                    if (++yields != yield) return;
                    EXPECT_TRUE(dialog.Busy());
                    EXPECT_FALSE(dialog.UserEscape()) << "no button has Escape during a run";
                    program.Click(dialog.OptionSource[3 - source]);
                    EXPECT_TRUE(yield % 2 == 0 ? dialog.ButtonCancel.UserPress() : dialog.UserClose());
                    EXPECT_TRUE(dialog.IsOpen()) << "refused: the run has to wind down";
                };
                program.Click(dialog.ButtonStart);
                program.toolkit.OnYield = nullptr;
                program.ExpectDone(dialog);
                EXPECT_EQ(ShownPicture(dialog), yield == lastYield ? "PictureFinished" : "PictureIncomplete");
                EXPECT_TRUE(dialog.OptionSource[source].Value());
                EXPECT_EQ(dialog.PictureIncomplete.ToolTip(), "") << "nothing has failed";
            });
            EXPECT_EQ(yields == yield, yield == lastYield) << yields;
            // What had been written stays.
            const int written = source == kOv2 ? std::min(yield - 1, 2) : yield < 12 ? 0 : yield < 14 ? 1 : 2;
            EXPECT_EQ(program.CameraFolder().size(), static_cast<std::size_t>(written));
            EXPECT_EQ(program.Items(0).size(), program.CameraFolder().size());
            EXPECT_EQ(program.Import(source), "PictureFinished");
            program.ExpectImported(source);
        }
    }
}

}  // namespace
}  // namespace halvenmoor
