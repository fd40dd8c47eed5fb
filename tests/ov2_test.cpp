#include "import/ov2_record.h"
#include "tests/support/import_program.h"
#include "tests/support/temporary_folder.h"
#include "tools/file_helpers.h"

#include <limits>

namespace halvenmoor {
namespace {

using namespace std::string_literals;
using Kind = Ov2Record::Kind;
constexpr int kOv2 = ImportProgram::kOv2;

const std::string kHeader = "; Generic Ascii file created by Halvenmoor.\r\n\r\n";

std::string Int32(std::int64_t number) {
    std::string bytes;
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(number >> 8 * i & 255);
    return bytes;
}

/// A record with a type byte, a length as it is told, and what follows.
std::string Record(char type, std::int64_t length, const std::string& rest = "") {
    return type + Int32(length) + rest;
}
std::string Point(const std::string& name, std::int64_t x = 150000, std::int64_t y = 5250000, char type = 2) {
    return Record(type, 14 + static_cast<std::int64_t>(name.size()), Int32(x) + Int32(y) + name + '\0');
}
const std::string kSkipper = '\1' + std::string(20, '\7');
const std::string kDeleted = Record(0, 9, "gone");

std::string LineOf(const std::string& name) {
    return "1.50000, 52.50000, \"" + name + "\"\r\n";
}

TEST(Ov2RecordTest, LengthsAtTheirLimits) {
    const std::int64_t most = std::numeric_limits<std::int32_t>::max();
    const auto expectKinds = [](const std::string& types, const std::vector<std::int64_t>& lengths,
                                Kind followed, Kind last) {
        for (const char type : types) {
            for (const std::int64_t length : lengths) {
                SCOPED_TRACE(std::to_string(type) + ' ' + std::to_string(length));
                EXPECT_EQ(DecodeOv2Record(Record(type, length, std::string(35, 'x')), 0).kind, followed);
                EXPECT_EQ(DecodeOv2Record(Record(type, length), 0).kind, last);
            }
        }
    };
    // A length that shows as bad fails its file even if that ends right behind it.
    expectKinds("\0"s, {0, 4, -1, -most - 1}, Kind::BadLength, Kind::BadLength);
    expectKinds("\2\3", {0, 4, 5, 12, 13, -1, -most - 1}, Kind::BadLength, Kind::BadLength);
    expectKinds("\0"s, {5}, Kind::Deleted, Kind::Deleted);
    expectKinds("\0"s, {12, 13, 14}, Kind::Deleted, Kind::Cut);
    expectKinds("\2\3", {14}, Kind::Point, Kind::Cut);
    expectKinds("\0\2\3"s, {most}, Kind::Cut, Kind::Cut);
}

TEST(Ov2RecordTest, NamesAreCleaned) {
    const std::pair<std::string, const char*> cases[] = {
        {"x", R"("")"},  // only the byte that is dropped
        {"   x", R"("")"},
        {"Cafe!", R"("Cafe")"},
        {"  a  b   c  \0"s, R"("a b c")"},
        {"a,b\0"s, R"("a; b")"},
        {"a, b\0"s, R"("a; b")"},
        {"a,\0"s, R"("a; ")"},
        {"a,  \0"s, R"("a; ")"},
        {"say \"hi\"\0"s, R"("say 'hi'")"},
        {"\ta \0"s, "\"\ta\""},          // a tab is no blank
        {"a\0 \0 b \0\0"s, R"("a b")"},  // zero bytes are not there at all
        {"abc\0defghij\0"s, R"("abcdefghij")"},
        {"abcdefg  hijklmn\0"s, R"("abcdefg hijklmn")"},
        {"abcdefg, hijklmn,o\0"s, R"("abcdefg; hijklmn; o")"},
        {"M\xfc\x81\0"s, "\"M\xfc\x81\""},
    };
    for (const auto& [name, expected] : cases) {
        std::string text;
        CleanPoiName(text, name);
        EXPECT_EQ(text, expected) << testing::PrintToString(name);
    }
}

TEST(Ov2ImportTest, FilesOfAnotherProgram) {
    ImportProgram program;
    program.AddOv2("places", BytesOf(HALVENMOOR_TEST_DATA "/places.ov2"));
    program.memory.Put("/p/import/ov2/Madrid.v2.OV2", BytesOf(HALVENMOOR_TEST_DATA "/madrid.ov2"));
    program.memory.Put("/p/import/ov2/madrid.gpx", BytesOf(HALVENMOOR_TEST_DATA "/madrid.gpx"));
    EXPECT_EQ(program.Import(kOv2), "PictureFinished");
    EXPECT_EQ(program.Camera("places"), kHeader +
                                            "13.37700, 52.51600, \"Berlin; Pariser Platz\"\r\n"
                                            "151.21530, -33.85679, \"Sydney\"\r\n"
                                            "-0.12344, 51.50000, \"Mill Lane 'school'\"\r\n"
                                            "11.57549, 48.13743, \"M\xfcnchen Marienplatz\"\r\n");
    EXPECT_EQ(program.Camera("Madrid.v2"), kHeader + "-3.70378, 40.41678, \"Puerta del Sol\"\r\n");
    EXPECT_EQ(program.Items(0), (Strings{"Madrid.v2", "places"}));
}

TEST(Ov2ImportTest, LayoutFollowsTheSettings) {
    const auto imported = [](std::string_view iniFile) {
        ImportProgram program(iniFile);
        program.AddOv2("a", kDeleted + kSkipper + Point("a") +
                                Point("b", -1, std::numeric_limits<std::int32_t>::min(), 3) +
                                Point("c", 0, 0));
        EXPECT_EQ(program.Import(kOv2), "PictureFinished");
        return program.Camera("a");
    };
    const std::string plain =
        kHeader + LineOf("a") + "-0.00001, -21474.83648, \"b\"\r\n0.00000, 0.00000, \"c\"\r\n";
    EXPECT_EQ(imported("[Settings]\nSourceStructure=1\n"), plain);
    const std::string lines =
        "\r\n\r\n1.50000, 52.50000, \"a\", 0, 0\r\n-0.00001, -21474.83648, \"b\", 0, 0\r\n0.00000, 0.00000, "
        "\"c\", 0, 0\r\n";
    EXPECT_EQ(imported("[Settings]\nSourceStructure=2\n"),
              "; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction)." + lines);
    EXPECT_EQ(imported("[Settings]\nSourceStructure=3\n"),
              "; Generic Ascii file created by Halvenmoor. (Extended with Direction and DirType)." + lines);

    ImportProgram unreadable;
    unreadable.memory.Remove("/p/Settings.ini");
    unreadable.core.ReloadWorkspace();
    unreadable.AddOv2("a", Point("a"));
    EXPECT_EQ(unreadable.Import(kOv2), "PictureFinished");
    EXPECT_EQ(unreadable.Camera("a"), kHeader + LineOf("a"));
}

TEST(Ov2ImportTest, FileCutAtEveryLength) {
    const std::string records[] = {kSkipper, Point("one"), kDeleted, Point("two", 150000, 5250000, 3)};
    std::string file;
    std::string expected = kHeader;
    ImportProgram program;
    for (std::size_t i = 0; i < std::size(records); ++i) {
        for (std::size_t cut = 0; cut < records[i].size(); ++cut) {
            program.AddOv2("a", file + records[i].substr(0, cut));
            EXPECT_EQ(program.Import(kOv2), "PictureFinished") << i << ' ' << cut;
            EXPECT_EQ(program.Camera("a"), expected) << i << ' ' << cut;
        }
        file += records[i];
        if (i == 1) expected += LineOf("one");
    }
    program.AddOv2("a", file);
    EXPECT_EQ(program.Import(kOv2), "PictureFinished");
    EXPECT_EQ(program.Camera("a"), expected + LineOf("two"));
}

TEST(Ov2ImportTest, FailedFilesLeaveNoTraceAndAreCounted) {
    ImportProgram program;
    program.AddOv2("good", Point("n"));
    const std::string head = kSkipper + Point("lost");
    for (int type = 4; type < 256; ++type) {
        program.AddOv2("bad", head + static_cast<char>(type) + Point("never read"));
        ASSERT_EQ(program.Import(kOv2), "PictureIncomplete") << type;
        ASSERT_EQ(program.CameraFolder(), Strings{"good.asc"}) << type;
    }
    program.AddOv2("bad too", head + Record(2, 13, Int32(0) + Int32(0)));
    EXPECT_EQ(program.Import(kOv2,
                             [](frmImport& dialog) {
                                 EXPECT_EQ(dialog.PictureIncomplete.ToolTip(), "2 File(s)");
                                 EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "3 File(s)");
                                 EXPECT_EQ(dialog.LabelTargetFiles.Caption(), "1 File(s)");
                                 EXPECT_EQ(dialog.LabelTargetFiles.ForeColor(), forms::Rgb(255, 0, 0));
                                 EXPECT_EQ(dialog.LabelAddedRecords.Caption(), "");
                             }),
              "PictureIncomplete");
    EXPECT_EQ(program.Camera("good"), kHeader + LineOf("n"));
}

TEST(Ov2ImportTest, SourcesWithOneTargetAreNotWrittenOverOneAnother) {
    ImportProgram program;
    program.memory.Put("/p/import/ov2/a.OV2", Point("n"));
    program.memory.Put("/p/import/ov2/a.ov2", Point("m"));
    EXPECT_EQ(program.Import(kOv2), "PictureIncomplete");
    EXPECT_EQ(program.Camera("a"), kHeader + LineOf("n"));
}

TEST(Ov2ImportTest, ManyPiecesAndLongNames) {
    std::string source;
    std::string expected = kHeader;
    for (int i = 0; i < 9000; ++i) {  // records of many sizes, so that they meet the ends of pieces anyhow
        const std::string name(static_cast<std::size_t>(1 + i % 40), static_cast<char>('a' + i % 26));
        source += Point(name);
        expected += LineOf(name);
        if (i % 100 == 0) source += Record(0, 5 + i, std::string(static_cast<std::size_t>(i), '\2'));
    }
    const std::string longName(300'000, 'n');
    ImportProgram program;
    program.AddOv2("a", source + Point(longName) + Point("end"));
    EXPECT_EQ(program.Import(kOv2), "PictureFinished");
    EXPECT_TRUE(program.Camera("a") == expected + LineOf(longName) + LineOf("end"));
}

}  // namespace
}  // namespace halvenmoor
