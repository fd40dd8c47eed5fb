// What files must do, on the disk and in its fake in memory alike.

#include "tests/support/files_contract.h"

namespace halvenmoor {
namespace {

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

TYPED_TEST(FilesContract, AFolderHoldsEveryFileButNoFolder) {
    this->disk.AddFolder("asc/folder.asc");
    for (const char* name :
         {"asc/b.asc", "asc/C.txt", "asc/read-only.asc", "asc/\xC3\xA4", "asc/folder.asc/below"}) {
        this->disk.Put(name, "");
    }
    this->disk.MakeReadOnly("asc/read-only.asc");
    const auto folder = this->object->GetFolder(this->At("ASC"));
    EXPECT_EQ(folder->Files(), (Strings{"C.txt", "b.asc", "read-only.asc", "\xC3\xA4"}));
    folder->Delete("b.asc");
    folder->Delete("read-only.asc");
    folder->CreateTextFile("new.TXT");
    folder->Sync();
    EXPECT_EQ(folder->Files(), (Strings{"C.txt", "new.TXT", "\xC3\xA4"}));
    for (const char* name : {"b.asc", "folder.asc", "folder.asc/below", "..", ""}) {
        EXPECT_NE(FailureNumber([&] { folder->Delete(name); }), 0) << name;
    }
    EXPECT_NE(FailureNumber([&] { folder->CreateTextFile("folder.asc/below"); }), 0);
    EXPECT_EQ(this->disk.Text("asc/folder.asc/below"), "");
}

TYPED_TEST(FilesContract, SearchLeavesOutHiddenFilesAndFolders) {
    this->disk.AddFolder("asc/folder.asc");
    for (const char* name : {"asc/hidden.asc", "asc/X.ASC", "asc/y.txt", "asc/z.asc.old", "asc/asc",
                             "asc/\xC3\xA4.Asc", "asc/folder.asc/below.asc"}) {
        this->disk.Put(name, "");
    }
    const std::string hidden = this->disk.Hide("asc/hidden.asc");
    EXPECT_EQ(Search(this->host, this->At("Asc/")), (Strings{"X.ASC", "\xC3\xA4.Asc"}));

    const auto folder = this->object->GetFolder(this->At("asc"));
    EXPECT_EQ(folder->Files().size(), 6u) << "with the hidden one";
    this->object->CreateTextFile(hidden)->WriteLine("written");
    EXPECT_EQ(ReadLines(this->disk.fileSystem, hidden), Strings{"written"});
    folder->Delete(hidden.substr(hidden.rfind('/') + 1));
    EXPECT_EQ(folder->Files().size(), 5u);
}

TYPED_TEST(FilesContract, FindsAFileIgnoringCaseByItsTrueName) {
    this->disk.Put("asc/M\xC3\xBCnchen 50.ASC", "old");
    EXPECT_EQ(this->host.FindFile(this->At("asc/m\xC3\x9CNCHEN 50.asc")),
              this->At("asc/M\xC3\xBCnchen 50.ASC"));
    EXPECT_EQ(this->LinesOf("ASC/M\xC3\x9CNCHEN 50.asc"), Strings{"old"});
    EXPECT_EQ(this->host.FindFile(this->At("asc/")), std::nullopt) << "a folder";
    EXPECT_FALSE(this->object->FileExists(this->At("asc/none")));
}

TYPED_TEST(FilesContract, NamesMayHoldAnyCharacterAndPathsMayBeLong) {
    const std::string deep =
        "asc/" + std::string(100, 'a') + '/' + std::string(100, 'b') + '/' + std::string(100, 'c');
    this->disk.AddFolder(deep);
    const std::string names[] = {"\xCE\xA9 \xE6\xBC\xA2\xE5\xAD\x97.asc", "\xF0\x9F\x98\x80.asc",
                                 "a'%&#$~;,=+[]{}.asc"};
    for (const std::string& name : names) {
        const std::string path = deep + '/' + name;
        this->object->CreateTextFile(this->At(path))->WriteLine(name);
        EXPECT_EQ(Search(this->host, this->At(deep)), Strings{name});
        EXPECT_EQ(this->LinesOf(path), Strings{name});
        EXPECT_EQ(this->disk.Text(path), name + "\r\n");
        this->host.Rename(this->At(path), this->At(deep + "/new " + name));
        this->object->GetFolder(this->At(deep))->Delete("new " + name);
    }
    EXPECT_EQ(Search(this->host, this->At(deep)), Strings{});
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
