// What files must do, on the disk and in its fake in memory alike.

#include "platform/fakes/memory_files.h"
#include "tests/support/temporary_folder.h"
#include "tools/file_helpers.h"

#include <array>
#include <gtest/gtest.h>

namespace halvenmoor {
namespace {

struct RealFiles : FilesOnDisk {
    std::string Root() const { return folder.Path(); }
    void AddFolder(const std::string& name) { folder.AddFolder(name); }
    void Put(const std::string& name, const std::string& bytes) { folder.Put(name, bytes); }
    std::string Text(const std::string& name) const { return folder.Text(name); }
};

struct FilesInMemory {
    fakes::MemoryFiles files;
    platform::FileSystem& fileSystem = files;
    platform::HostFiles& hostFiles = files;

    std::string Root() const { return "/program"; }
    void AddFolder(const std::string& name) { files.AddFolder(Root() + '/' + name); }
    void Put(const std::string& name, const std::string& bytes) { files.Put(Root() + '/' + name, bytes); }
    std::string Text(const std::string& name) const { return files.Text(Root() + '/' + name); }
};

template <class Files>
class FilesContract : public testing::Test {
protected:
    std::string At(const std::string& name) const { return disk.Root() + '/' + name; }
    Strings LinesOf(const std::string& name) { return ReadLines(disk.fileSystem, At(name)); }

    Files disk;
    std::unique_ptr<platform::FileSystemObject> object = disk.fileSystem.CreateFileSystemObject();
    platform::HostFiles& host = disk.hostFiles;
};

using Implementations = testing::Types<RealFiles, FilesInMemory>;
TYPED_TEST_SUITE(FilesContract, Implementations);

TYPED_TEST(FilesContract, LinesEndAtCrLfOrLfOnly) {
    const struct {
        std::string bytes;
        Strings lines;
    } cases[] = {
        {"", {}},
        {"\n", {""}},
        {"one\r\ntwo\nthree", {"one", "two", "three"}},
        {"one\n\n\r\n", {"one", "", ""}},
        {"a\rb\r\n", {"a\rb"}},
        {"a\r\r\n", {"a\r"}},
        {std::string("a\0b\x1A\nc", 6), {std::string("a\0b\x1A", 4), "c"}},
        {"\xEF\xBB\xBFX\xE4\n", {"X\xE4"}},
        {"\xEF\xBB\xBF", {}},
        {"\xEF\xBB\n\xEF\xBB\xBF", {"\xEF\xBB", "\xEF\xBB\xBF"}},
    };
    for (const auto& [bytes, lines] : cases) {
        this->disk.Put("a.txt", bytes);
        EXPECT_EQ(this->LinesOf("a.txt"), lines) << testing::PrintToString(bytes);
    }
}

TYPED_TEST(FilesContract, ReadingPastTheEndOrAfterCloseFails) {
    this->disk.Put("a.txt", "one");
    const auto reader = this->object->OpenTextFile(this->At("a.txt"));
    EXPECT_EQ(reader->ReadLine(), "one");
    EXPECT_TRUE(reader->AtEndOfStream());
    EXPECT_EQ(FailureNumber([&] { reader->ReadLine(); }), failure::InputPastEnd);

    const auto closed = this->object->OpenTextFile(this->At("a.txt"));
    closed->Close();
    closed->Close();
    EXPECT_EQ(FailureNumber([&] { closed->ReadLine(); }), failure::FileAccess);
}

TYPED_TEST(FilesContract, OnlyFilesThatExistOpen) {
    this->disk.AddFolder("folder");
    auto& files = *this->object;
    EXPECT_EQ(FailureNumber([&] { files.OpenTextFile(this->At("none")); }), failure::FileNotFound);
    EXPECT_EQ(FailureNumber([&] { files.OpenForAppending(this->At("none")); }), failure::FileNotFound);
    EXPECT_EQ(FailureNumber([&] { this->host.OpenBytes(this->At("none")); }), failure::FileNotFound);
    EXPECT_EQ(FailureNumber([&] { files.OpenTextFile(this->At("folder")); }), failure::PermissionDenied);
    EXPECT_EQ(FailureNumber([&] { files.CreateTextFile(this->At("folder")); }), failure::PermissionDenied);
    EXPECT_EQ(FailureNumber([&] { files.CreateTextFile(this->At("none/a")); }), failure::PathNotFound);
    EXPECT_EQ(FailureNumber([&] { files.GetFolder(this->At("none")); }), failure::PathNotFound);
    EXPECT_EQ(FailureNumber([&] { Search(this->host, this->At("none")); }), failure::PathNotFound);
    EXPECT_FALSE(files.FileExists(this->At("none")));
}

TYPED_TEST(FilesContract, WritersEndLinesWithCrLf) {
    this->disk.Put("Target.txt", "what was there before\n");
    const auto writer = this->object->CreateTextFile(this->At("Target.txt"));
    writer->WriteLine("one");
    writer->WriteLine("");
    writer->Close();
    writer->Close();
    EXPECT_EQ(FailureNumber([&] { writer->WriteLine("late"); }), failure::FileAccess);
    EXPECT_EQ(this->disk.Text("Target.txt"), "one\r\n\r\n");

    this->disk.Put("Target.txt", "no line end");
    this->object->OpenForAppending(this->At("target.TXT"))->WriteLine(" now");
    EXPECT_EQ(this->disk.Text("Target.txt"), "no line end now\r\n") << "without Close";
}

TYPED_TEST(FilesContract, WritesToTheFileThatIsFoundOrANewOneInTheFolderThatIsFound) {
    this->disk.Put("ASC/old.asc", "old");
    const auto write = [this](const std::string& name) {
        this->object->CreateTextFile(this->At(name))->WriteLine(name);
    };
    EXPECT_EQ(this->host.FindFile(this->At("asc/OLD.asc")), this->At("ASC/old.asc"));
    EXPECT_EQ(this->host.FindFile(this->At("asc")), std::nullopt) << "a folder";
    write("asc/Old.asc");
    this->disk.Put("ASC/OLD.asc", "exact");
    write("asc/OLD.asc");
    EXPECT_EQ(this->host.FindFile(this->At("asc/New.asc")), std::nullopt);
    write("asc/New.asc");
    EXPECT_EQ(this->object->GetFolder(this->At("asc"))->Files(), (Strings{"New.asc", "OLD.asc", "old.asc"}));
    EXPECT_EQ(this->disk.Text("ASC/old.asc"), "asc/Old.asc\r\n");
    EXPECT_EQ(this->disk.Text("ASC/OLD.asc"), "asc/OLD.asc\r\n");
}

TYPED_TEST(FilesContract, FindsIgnoringCaseTheExactNameFirst) {
    this->disk.Put("Asc/M\xC3\xBCnchen 50.ASC", "utf-8");
    this->disk.Put("Asc/K\xF6ln.asc", "code page");
    this->disk.Put("Asc/b.asc", "b");
    this->disk.Put("Asc/B.ASC", "B");
    this->disk.Put("Asc/B.asc", "B.");
    for (const std::string name : {"ccc", "CCC", "ccC"}) this->disk.Put("Asc/" + name, name);
    const std::array<std::string, 2> found[] = {{"Asc/b.asc", "b"},
                                                {"asc/b.asc", "b"},
                                                {"asc/cCC", "CCC"},
                                                {"ASC//b.Asc", "B"},
                                                {"Asc/b.ASC/", "B"},
                                                {"asc/M\xC3\x9CNCHEN 50.asc", "utf-8"},
                                                {"asc/K\xC3\x96LN.asc", "code page"}};
    for (const auto& [name, line] : found) EXPECT_EQ(this->LinesOf(name), Strings{line}) << name;
    EXPECT_FALSE(this->object->FileExists(this->At("ASC/KOLN.asc")));

    EXPECT_TRUE(this->object->FolderExists(this->At("asc/")));
    EXPECT_FALSE(this->object->FileExists(this->At("asc")));
    EXPECT_FALSE(this->object->FolderExists(this->At("asc/b.asc")));
    EXPECT_FALSE(this->object->FileExists(this->At("asc/b.asc/c")));
    EXPECT_FALSE(this->object->FileExists(this->At(std::string("asc/b.asc\0x", 11))));
}

TYPED_TEST(FilesContract, AFolderHoldsEveryFileButNoFolder) {
    this->disk.AddFolder("asc/folder.asc");
    for (const char* name : {"asc/b.asc", "asc/C.txt", "asc/.hidden", "asc/\xE4", "asc/folder.asc/below"}) {
        this->disk.Put(name, "");
    }
    const auto folder = this->object->GetFolder(this->At("ASC"));
    EXPECT_EQ(folder->Files(), (Strings{".hidden", "C.txt", "b.asc", "\xE4"}));
    folder->Delete("b.asc");
    folder->Delete(".hidden");
    folder->CreateTextFile("c.TXT");
    EXPECT_EQ(folder->Files(), (Strings{"C.txt", "c.TXT", "\xE4"}));
    for (const char* name : {"b.asc", "folder.asc", "folder.asc/below", "..", ""}) {
        EXPECT_NE(FailureNumber([&] { folder->Delete(name); }), 0) << name;
    }
    EXPECT_NE(FailureNumber([&] { folder->CreateTextFile("folder.asc/below"); }), 0);
    EXPECT_EQ(this->disk.Text("asc/folder.asc/below"), "");
}

TYPED_TEST(FilesContract, SearchLeavesOutHiddenNamesAndFolders) {
    this->disk.AddFolder("asc/folder.asc");
    for (const char* name : {"asc/.asc", "asc/.hidden.asc", "asc/X.ASC", "asc/x.asc", "asc/y.txt",
                             "asc/z.asc.old", "asc/asc", "asc/\xE4.Asc", "asc/folder.asc/below.asc"}) {
        this->disk.Put(name, "");
    }
    EXPECT_EQ(Search(this->host, this->At("Asc/")), (Strings{"X.ASC", "x.asc", "\xE4.Asc"}));
}

TYPED_TEST(FilesContract, RenameNeverReplaces) {
    this->disk.Put("asc/Old.ASC", "old");
    this->disk.Put("asc/taken.asc", "taken");
    const auto rename = [&](const std::string& from, const std::string& to) {
        return FailureNumber([&] { this->host.Rename(this->At(from), this->At(to)); });
    };
    EXPECT_EQ(rename("asc/old.asc", "asc/TAKEN.asc"), failure::FileExists);
    EXPECT_NE(rename("asc/old.asc", "none/new.asc"), 0);
    EXPECT_EQ(rename("asc/none.asc", "asc/new.asc"), failure::FileNotFound);
    EXPECT_EQ(rename("asc/old.asc", "asc/new.asc"), 0);
    EXPECT_EQ(this->disk.Text("asc/new.asc"), "old");
    EXPECT_EQ(this->disk.Text("asc/taken.asc"), "taken");
    EXPECT_FALSE(this->object->FileExists(this->At("asc/Old.ASC")));
}

}  // namespace
}  // namespace halvenmoor
