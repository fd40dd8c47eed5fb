#include "files_test_helpers.h"
#include "import_program.h"

#include <algorithm>
#include <stdexcept>

namespace halvenmoor {
namespace {

constexpr int kOv2 = ImportProgram::kOv2;
constexpr int kTxt = ImportProgram::kTxt;

const std::string kHeader = Crlf("; Generic Ascii file created by Halvenmoor.\n\n");
/// A point record: 1.5, 52.5, "n".
const std::string kPoint("\2\xf\0\0\0\xf0\x49\2\0\xd0\x1b\x50\0n\0", 15);

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
    void ExpectImportWorks(int source) {
        EXPECT_EQ(Import(source), "PictureFinished");
        ExpectImported(source);
    }
};

TEST(ImportDialogTest, OpensReady) {
    PreparedProgram program;
    program.memory.Put("/p/asc/note.txt", "");
    program.Open([&](frmImport& dialog) {
        EXPECT_EQ(dialog.Caption(), "Import Files");
        const forms::Point main = program.Window().Position();
        EXPECT_EQ(dialog.Position().left, main.left + 1200);
        EXPECT_EQ(dialog.Position().top, main.top + 1580);
        EXPECT_EQ(dialog.LabelSourceName.Caption(), "Source Folder");
        EXPECT_EQ(dialog.LabelTargetName.Caption(), "Target Folder");
        EXPECT_EQ(dialog.LabelSourceFolder.Caption(), ".\\import\\ov2\\*.ov2");
        EXPECT_EQ(dialog.LabelTargetFolder.Caption(), ".\\asc\\*.asc");
        EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "2 File(s)");
        EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "1 File(s)");
        EXPECT_EQ(dialog.LabelTargetFiles.ForeColor(), std::nullopt);
        EXPECT_EQ(dialog.CheckDelete.Caption(), "Delete any existing files in target folder, then ...");
        EXPECT_EQ(dialog.OptionSource[2].Caption(),
                  "Convert all TXT source files to Ascii and save in target folder");
        EXPECT_EQ(program.PictureOf(dialog), "PictureDelete");
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
        EXPECT_EQ(program.PictureOf(dialog), "PictureNoDelete") << "other files do not count";
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

TEST(ImportDialogTest, RunEmptiesTheFolderAndRebuildsTheLists) {
    for (const int source : {kOv2, kTxt}) {
        PreparedProgram program;
        program.memory.Put("/p/asc/.hidden", "");
        program.memory.Put("/p/asc/note.txt", "");
        program.memory.Put("/p/asc/folder/kept.asc", "kept");
        program.Open([&](frmImport& dialog) {
            program.Click(dialog.OptionSource[source]);
            program.Click(dialog.ButtonStart);
            program.ExpectDone(dialog);
            EXPECT_EQ(program.PictureOf(dialog), "PictureFinished");
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
        program.ExpectImported(source);
        EXPECT_FALSE(program.memory.Has("/p/asc/.hidden"));
        EXPECT_FALSE(program.memory.Has("/p/asc/note.txt"));
        EXPECT_EQ(program.Text("/p/asc/folder/kept.asc"), "kept");
        EXPECT_TRUE(program.Window().ButtonClassifyFiles.HasFocus());
        EXPECT_TRUE(program.List(1).Enabled());
        EXPECT_TRUE(program.messages.Messages.empty());
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
        EXPECT_EQ(program.PictureOf(dialog), "PictureDelete");
        EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "3 File(s)") << "no new count";
        EXPECT_FALSE(dialog.FilesModified());
    });
    EXPECT_EQ(program.CameraFolder(), Strings{"old_50.asc"}) << "the others are gone";
    EXPECT_EQ(program.Items(1), Strings{"old_50"});
}

/// Runs an import in which the user does something at one turn; 1 is the first after the start. False when
/// there are no so many turns.
bool ActAtTurn(ImportProgram& program, int source, int turn, const std::function<void(frmImport&)>& act,
               const std::function<void(frmImport&)>& look) {
    int left = turn;
    program.Open([&](frmImport& dialog) {
        program.Click(dialog.OptionSource[source]);
        program.toolkit.OnTurn = [&] {
            if (--left == 0) act(dialog);
        };
        program.Click(dialog.ButtonStart);
        program.toolkit.OnTurn = nullptr;
        look(dialog);
    });
    return left <= 0;
}

TEST(ImportDialogTest, StopAtEveryTurn) {
    for (const int source : {kOv2, kTxt}) {
        // OV2: emptied, two files, the end. TXT: emptied, two files, three lines, sources read, three speeds,
        // two camera files before and after, the end.
        const int lastTurn = source == kOv2 ? 4 : 15;
        for (int turn = 1; turn <= lastTurn; ++turn) {
            PreparedProgram program;
            const bool byButton = turn % 2 == 0;
            const auto stop = [&](frmImport& dialog) {
                EXPECT_FALSE(dialog.UserEscape()) << "no button has Escape during a run";
                program.Click(dialog.OptionSource[3 - source]);
                EXPECT_TRUE(byButton ? dialog.ButtonCancel.UserPress() : dialog.UserClose());
                EXPECT_TRUE(dialog.IsOpen()) << "refused: the run has to wind down";
            };
            EXPECT_TRUE(ActAtTurn(program, source, turn, stop, [&](frmImport& dialog) {
                program.ExpectDone(dialog);
                EXPECT_EQ(program.PictureOf(dialog),
                          turn == lastTurn ? "PictureFinished" : "PictureIncomplete");
                EXPECT_TRUE(dialog.OptionSource[source].Value());
                EXPECT_EQ(dialog.PictureIncomplete.ToolTip(), "") << "nothing has failed";
            })) << turn;
            // What had been written stays.
            const int written = source == kOv2 ? std::min(turn - 1, 2) : turn < 12 ? 0 : turn < 14 ? 1 : 2;
            EXPECT_EQ(program.CameraFolder().size(), static_cast<std::size_t>(written)) << source << turn;
            EXPECT_EQ(program.Items(0).size(), program.CameraFolder().size());
            program.ExpectImportWorks(source);
        }
        PreparedProgram program;
        EXPECT_FALSE(ActAtTurn(
            program, source, lastTurn + 1, [](frmImport&) {}, [](frmImport&) {}));
    }
}

TEST(ImportDialogTest, ShutdownOrFailureAtATurn) {
    for (const int source : {kOv2, kTxt}) {
        for (int turn = 1; turn <= 4; ++turn) {
            PreparedProgram failing;
            ActAtTurn(
                failing, source, turn, [](frmImport&) { throw std::runtime_error("turn"); },
                [&](frmImport& dialog) { failing.ExpectDone(dialog); });
            failing.ExpectImportWorks(source);

            PreparedProgram closed;
            ActAtTurn(
                closed, source, turn, [&](frmImport&) { EXPECT_TRUE(closed.desktop.CloseAll()); },
                [](frmImport& dialog) { EXPECT_FALSE(dialog.IsOpen()); });
            EXPECT_TRUE(closed.desktop.Ended());
        }
    }
}

TEST(ImportDialogTest, RunThatNobodyWatchesGivesTheSameFiles) {
    for (const int source : {kOv2, kTxt}) {
        PreparedProgram program;
        program.toolkit.SkipsTurns = true;
        const int before = program.toolkit.Turns();
        EXPECT_EQ(
            program.Import(
                source, [](frmImport& dialog) { EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "2 File(s)"); }),
            "PictureFinished");
        EXPECT_EQ(program.toolkit.Turns(), before);
        program.ExpectImported(source);
    }
}

TEST(ImportDialogTest, HeadingsTakeTheColourOfGroupBoxes) {
    PreparedProgram program;
    program.Open([](frmImport& dialog) {
        EXPECT_EQ(dialog.LabelSourceName.ForeColor(), forms::kButtonText);
        EXPECT_EQ(dialog.LabelTargetName.ForeColor(), forms::kButtonText);
    });
    program.theme.Themed = true;
    program.theme.GroupBoxText = forms::Rgb(1, 2, 3);
    program.Open([](frmImport& dialog) {
        EXPECT_EQ(dialog.LabelSourceName.ForeColor(), forms::Rgb(1, 2, 3));
        EXPECT_EQ(dialog.LabelTargetName.ForeColor(), forms::Rgb(1, 2, 3));
    });
}

}  // namespace
}  // namespace halvenmoor
