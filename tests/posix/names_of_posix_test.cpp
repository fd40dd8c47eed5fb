// Files whose names differ in letter case only, or are no UTF-8: on the disk of POSIX and in its fake alike.

#include "tests/support/files_contract.h"

#include <array>

namespace halvenmoor {
namespace {

template <class Files>
class NamesOfPosix : public FilesContract<Files> {};

TYPED_TEST_SUITE(NamesOfPosix, Implementations);

TYPED_TEST(NamesOfPosix, WritesToTheFileThatIsFoundOrANewOneInTheFolderThatIsFound) {
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

TYPED_TEST(NamesOfPosix, FindsIgnoringCaseTheExactNameFirst) {
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

TYPED_TEST(NamesOfPosix, SearchLeavesOutHiddenNamesAndFolders) {
    this->disk.AddFolder("asc/folder.asc");
    for (const char* name : {"asc/.asc", "asc/.hidden.asc", "asc/X.ASC", "asc/x.asc", "asc/y.txt",
                             "asc/z.asc.old", "asc/asc", "asc/\xE4.Asc", "asc/folder.asc/below.asc"}) {
        this->disk.Put(name, "");
    }
    EXPECT_EQ(Search(this->host, this->At("Asc/")), (Strings{"X.ASC", "x.asc", "\xE4.Asc"}));
}

}  // namespace
}  // namespace halvenmoor
