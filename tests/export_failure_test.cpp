#include "program.h"

namespace halvenmoor {
namespace {

const std::string kHeader = "X,Y,TYPE,SPEED,DirType,Direction\r\n";

/// Two camera files, an older target, and the results of an export.
struct ExportedProgram : TestProgram {
    explicit ExportedProgram(int mode) {
        AddCameraFile("a_50", "1.5,52.5,x\n");
        AddCameraFile("b", "2.5,52.5,x\n");
        Start();
        Move(1, {"a_50"});
        Move(2, {"b"});
        EXPECT_TRUE(ExportTo(2, path));
        memory.Put(path, old);
        Click(Window().OptionExportMode[mode]);
    }

    bool ExportAgain() {
        fileDialogs.Answers = {path};
        return Export();
    }
    std::string Text() { return TestProgram::Text(path); }

    const std::string path = "/p/target.txt";
    const std::string old = kHeader + "old\r\n";
};

/// Makes each call of an export fail in turn; the first ones come before the run.
void FailEachCall(int mode, int callsBefore) {
    const std::string cameras = "1.5,52.5,1,50,0,0\r\n2.5,52.5,2,0,0,0\r\n";
    const Failure fault(failure::DiskFull, "Disk full");
    constexpr int kCallsOfResultsFile = 15;
    constexpr int kCallsOfMainWindow = 2;  // at its activations, after the run and after the results

    ExportedProgram undisturbed(mode);
    const std::string whole = (mode == 3 ? undisturbed.old : kHeader) + cameras;
    undisturbed.files.FailCall(0, fault);
    EXPECT_TRUE(undisturbed.ExportAgain());
    EXPECT_EQ(undisturbed.Text(), whole);
    const int calls = undisturbed.files.Calls() - kCallsOfMainWindow;
    ASSERT_GT(calls, callsBefore + kCallsOfResultsFile);
    int failuresBehindTheLastLine = 0;
    for (int call = 1; call <= calls; ++call) {
        SCOPED_TRACE(call);
        ExportedProgram program(mode);
        const bool isBefore = call <= callsBefore;
        const bool isFinished = call > calls - kCallsOfResultsFile;
        program.files.FailCall(call, fault);
        EXPECT_EQ(program.ExportAgain(), isFinished);
        EXPECT_EQ(program.Window().ResultsValid, isBefore || isFinished);
        EXPECT_EQ(program.Window().ButtonShowResults.Enabled(), isBefore || isFinished);
        EXPECT_TRUE(program.desktop.Accepts(program.Window()));
        EXPECT_EQ(program.messages.Messages.size(), isBefore && call > 2 ? 1u : 0u);
        const std::string broken = program.Text();
        const bool isWhole = broken == whole;
        EXPECT_TRUE(isFinished ? isWhole : broken == program.old || (!isBefore && whole.starts_with(broken)));
        if (isWhole && !isFinished) ++failuresBehindTheLastLine;

        EXPECT_TRUE(program.ExportAgain());
        EXPECT_EQ(program.Text(), (mode == 3 ? broken : kHeader) + cameras);
        EXPECT_EQ(program.ResultsFile(), undisturbed.ResultsFile());
    }
    EXPECT_EQ(failuresBehindTheLastLine, 3) << "the source's end, its close and the target's close";
}

TEST(ExportFailureTest, AnyCallMayFail) {
    FailEachCall(2, 2);
    FailEachCall(3, 6);
}

}  // namespace
}  // namespace halvenmoor
