#include "files_test_helpers.h"
#include "import/ov2_import.h"
#include "import/ov2_record.h"
#include "import_program.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <limits>

namespace halvenmoor {
namespace {

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

std::string TestData(const std::string& name) {
    std::ifstream file(HALVENMOOR_TEST_DATA "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Ov2RecordTest, LengthsAtTheirLimits) {
    const std::int64_t most = std::numeric_limits<std::int32_t>::max();
    for (const char type : {'\0', '\2', '\3'}) {
        for (const std::int64_t length :
             {std::int64_t{0}, std::int64_t{4}, std::int64_t{5}, std::int64_t{12}, std::int64_t{13},
              std::int64_t{14}, most, std::int64_t{-1}, -most - 1}) {
            const bool isBad = length < (type == 0 ? 5 : 14);
            const Kind whole = type == 0 ? Kind::Deleted : Kind::Point;
            const Kind expected = isBad ? Kind::BadLength : length == most ? Kind::Cut : whole;
            EXPECT_EQ(DecodeOv2Record(Record(type, length, std::string(35, 'x')), 0).kind, expected)
                << int{type} << ' ' << length;
            // A length that shows as bad fails its file even if that ends right behind it.
            EXPECT_EQ(DecodeOv2Record(Record(type, length), 0).kind, isBad ? Kind::BadLength
                                                                     : type == 0 && length == 5
                                                                         ? Kind::Deleted
                                                                         : Kind::Cut)
                << int{type} << ' ' << length;
        }
    }
}

TEST(Ov2RecordTest, CoordinatesKeepEachDigit) {
    const std::pair<std::int32_t, const char*> cases[] = {
        {0, "0.00000"},
        {1, "0.00001"},
        {-1, "-0.00001"},
        {-99999, "-0.99999"},
        {100000, "1.00000"},
        {-12345678, "-123.45678"},
        {2147483647, "21474.83647"},
        {std::numeric_limits<std::int32_t>::min(), "-21474.83648"},
    };
    for (const auto& [value, expected] : cases) {
        std::string text = ">";
        ScaleCoordinate(text, value);
        EXPECT_EQ(text, std::string(">") + expected);
    }
}

TEST(Ov2RecordTest, NamesAreCleaned) {
    using namespace std::string_literals;
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
    program.AddOv2("places", TestData("places.ov2"));
    program.memory.Put("/p/import/ov2/Madrid.v2.OV2", TestData("madrid.ov2"));
    program.memory.Put("/p/import/ov2/madrid.gpx", TestData("madrid.gpx"));
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
    const std::string sources = kDeleted + kSkipper + Point("a") + Point("b", -1, 0, 3);
    const auto imported = [&](std::string_view iniFile) {
        ImportProgram program(iniFile);
        program.AddOv2("a", sources);
        EXPECT_EQ(program.Import(kOv2), "PictureFinished");
        return program.Camera("a");
    };
    EXPECT_EQ(imported("[Settings]\nSourceStructure=1\n"),
              kHeader + LineOf("a") + "-0.00001, 0.00000, \"b\"\r\n");
    const std::string lines = "\r\n\r\n1.50000, 52.50000, \"a\", 0, 0\r\n-0.00001, 0.00000, \"b\", 0, 0\r\n";
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

/// A file that tells the largest piece that was asked of it.
class WatchedFiles : public headless::MemoryFiles {
public:
    std::size_t LargestRead = 0;

    std::unique_ptr<platform::ByteReader> OpenBytes(std::string_view path) override {
        return std::make_unique<Reader>(*this, MemoryFiles::OpenBytes(path));
    }

private:
    class Reader : public platform::ByteReader {
    public:
        Reader(WatchedFiles& files, std::unique_ptr<ByteReader> reader)
            : files_(files), reader_(std::move(reader)) {}
        std::size_t Read(std::span<char> buffer) override {
            files_.LargestRead = std::max(files_.LargestRead, buffer.size());
            return reader_->Read(buffer);
        }
        std::uint64_t Remaining() const override { return reader_->Remaining(); }

    private:
        WatchedFiles& files_;
        std::unique_ptr<ByteReader> reader_;
    };
};

struct NoProgress : ImportProgress {
    void Turn() override {}
    bool StopRequested() const override { return false; }
    void FileDone() override {}
    void RecordsAdded(std::int32_t) override {}
};

TEST(Ov2ImportTest, NoRoomIsMadeForWhatIsNotThere) {
    ImportProgram program;
    WatchedFiles files;
    files.AddFolder("/asc");
    for (const char type : {'\0', '\2', '\3'}) {
        files.Put("/ov2/a.ov2", Point("n") + Record(type, std::numeric_limits<std::int32_t>::max(), "x"));
        NoProgress progress;
        const platform::Platform& services = program.core.Services();
        const platform::Platform watched{files,
                                         files,
                                         services.application,
                                         services.clock,
                                         services.settings,
                                         services.messages,
                                         services.fileDialogs,
                                         services.theme,
                                         services.locale};
        EXPECT_EQ(ConvertOv2Files({watched, progress, "/ov2/", "/asc/", 1}), 0);
        EXPECT_EQ(files.Text("/asc/a.asc"), kHeader + LineOf("n"));
        EXPECT_LE(files.LargestRead, 65536u);
    }
}

}  // namespace
}  // namespace halvenmoor
