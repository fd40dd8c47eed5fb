#include "platform/headless/failing_files.h"

#include "files_test_helpers.h"
#include "platform/headless/manual_clock.h"
#include "platform/headless/memory_files.h"
#include "platform/headless/memory_settings.h"

#include <gtest/gtest.h>

namespace halvenmoor {
namespace {

const Failure fault(failure::FileAccess, "Device I/O error");

class FailingFilesTest : public testing::Test {
protected:
    FailingFilesTest() { memory.Put("/asc/a.asc", "1\n2\n"); }

    /// Seven calls: make, open, create, read, write, read, write.
    void CopyTwoLines() {
        const auto object = files.CreateFileSystemObject();
        const auto reader = object->OpenTextFile("/asc/a.asc");
        const auto writer = object->CreateTextFile("/asc/copy");
        writer->WriteLine(reader->ReadLine());
        writer->WriteLine(reader->ReadLine());
    }

    headless::MemoryFiles memory;
    headless::FailingFiles files{memory, memory};
};

TEST_F(FailingFilesTest, ExactlyOneCallFails) {
    for (int call = 1; call <= 7; ++call) {
        files.FailCall(call, fault);
        EXPECT_EQ(FailureNumber([&] { CopyTwoLines(); }), failure::FileAccess) << call;
        EXPECT_EQ(files.Calls(), call);
    }
    EXPECT_EQ(memory.Text("/asc/copy"), "1\r\n") << "what was written before the failure stays";
    CopyTwoLines();
    EXPECT_EQ(files.Calls(), 14);
    EXPECT_EQ(memory.Text("/asc/copy"), "1\r\n2\r\n");
}

TEST_F(FailingFilesTest, AllCallsFailFromOneOn) {
    memory.Put("/asc/b.asc", "");
    files.FailFromCall(3, fault);
    Strings names;
    const auto search = [&] {
        files.Search("/asc", ".asc", [&](std::string_view name) { names.emplace_back(name); });
    };
    EXPECT_EQ(FailureNumber(search), failure::FileAccess);
    EXPECT_EQ(names, Strings{"a.asc"}) << "a search fails between two names";
    EXPECT_EQ(FailureNumber([&] { files.IsListed("/asc/a.asc"); }), failure::FileAccess);
    EXPECT_EQ(FailureNumber([&] { files.CreateFileSystemObject(); }), failure::FileAccess);
}

TEST(MemoryFilesTest, RecordsWhatWasAskedFor) {
    headless::MemoryFiles files;
    files.Put("/asc/A.asc", "");
    const auto object = files.CreateFileSystemObject();
    object->OpenTextFile("/asc/a.asc");
    object->CreateTextFile("/asc/b");
    object->GetFolder("/asc")->Delete("b");
    files.Rename("/asc/a.asc", "/asc/c.asc");
    EXPECT_EQ(files.Calls(), (Strings{"open /asc/a.asc", "create /asc/b", "delete /asc/b",
                                      "rename /asc/a.asc > /asc/c.asc"}));

    files.Remove("/asc");
    EXPECT_FALSE(files.Has("/asc/c.asc"));
    EXPECT_FALSE(files.Has("/asc"));
}

TEST(MemorySettingsTest, KeepsValuesByName) {
    headless::MemorySettings settings;
    settings.SaveSetting("Application", "Section", "Name", "old");
    settings.SaveSetting("Application", "Section", "Name", "");
    EXPECT_EQ(settings.GetSetting("Application", "Section", "Name", "default"), "");
    EXPECT_EQ(settings.GetSetting("Application", "Other", "Name", "default"), "default");
}

TEST(ManualClockTest, RunsAcrossMidnight) {
    headless::ManualClock clock(86399.5);
    clock.Advance(0.75);
    EXPECT_EQ(clock.TimeOfDay(), 0.25);
}

}  // namespace
}  // namespace halvenmoor
