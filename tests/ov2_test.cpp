#include "tests/support/temporary_folder.h"
#include "tests/support/test_program.h"

#include <limits>

namespace halvenmoor {
namespace {

using namespace std::string_literals;
constexpr int kOv2 = ImportProgram::kOv2;

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

TEST(Ov2ImportTest, FilesOfAnotherProgram) {
    ImportProgram program;
    program.AddOv2("places", BytesOf(HALVENMOOR_TEST_DATA "/places.ov2"));
    program.memory.Put("/p/import/ov2/Madrid.v2.OV2", BytesOf(HALVENMOOR_TEST_DATA "/madrid.ov2"));
    program.memory.Put("/p/import/ov2/madrid.gpx", BytesOf(HALVENMOOR_TEST_DATA "/madrid.gpx"));
    EXPECT_EQ(program.Import(kOv2), "PictureFinished");
    EXPECT_EQ(program.Camera("places"), kComment +
                                            "13.37700, 52.51600, \"Berlin; Pariser Platz\"\r\n"
                                            "151.21530, -33.85679, \"Sydney\"\r\n"
                                            "-0.12344, 51.50000, \"Mill Lane 'school'\"\r\n"
                                            "11.57549, 48.13743, \"M\xfcnchen Marienplatz\"\r\n");
    EXPECT_EQ(program.Camera("Madrid.v2"), kComment + "-3.70378, 40.41678, \"Puerta del Sol\"\r\n");
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
        kComment + LineOf("a") + "-0.00001, -21474.83648, \"b\"\r\n0.00000, 0.00000, \"c\"\r\n";
    EXPECT_EQ(imported("[Settings]\nSourceStructure=1\n"), plain);
    const std::string lines = Crlf(
        "1.50000, 52.50000, \"a\", 0, 0\n-0.00001, -21474.83648, \"b\", 0, 0\n0.00000, 0.00000, \"c\", 0, "
        "0\n");
    EXPECT_EQ(imported("[Settings]\nSourceStructure=2\n"), kComment2 + lines);
    EXPECT_EQ(imported("[Settings]\nSourceStructure=3\n"), kComment3 + lines);
}

TEST(Ov2ImportTest, FailedFilesLeaveNoTraceAndAreCounted) {
    ImportProgram program;
    program.AddOv2("good", Point("n"));
    const std::string head = kSkipper + Point("lost");
    program.AddOv2("bad", head + '\4' + Point("never read"));
    program.AddOv2(".hidden", Point("n"));
    program.AddOv2("bad too", head + Record(2, 13, Int32(0) + Int32(0)));
    EXPECT_EQ(program.Import(kOv2,
                             [](frmImport& dialog) {
                                 EXPECT_EQ(dialog.PictureIncomplete.ToolTip(), "\u2717 2 File(s)");
                                 EXPECT_EQ(dialog.LabelSourceFiles.Caption(), "3 File(s)");
                                 EXPECT_EQ(dialog.LabelTargetFiles.ForeColor(), forms::Rgb(255, 0, 0));
                             }),
              "PictureIncomplete");
    EXPECT_EQ(program.Camera("good"), kComment + LineOf("n"));
    EXPECT_EQ(program.CameraFolder(), Strings{"good.asc"});
}

TEST(Ov2ImportTest, SourcesWithOneTargetAreNotWrittenOverOneAnother) {
    ImportProgram program;
    program.AddOv2("\xC4", Point("n"));
    for (const char* name : {"\xE4.OV2", "\xE4.ov2"})
        program.memory.Put("/p/import/ov2/"s + name, Point("m"));
    EXPECT_EQ(program.Import(kOv2), "PictureIncomplete");
    EXPECT_EQ(program.CameraFolder(), Strings{"\xC4.asc"});
    EXPECT_EQ(program.Camera("\xC4"), kComment + LineOf("n"));
}

}  // namespace
}  // namespace halvenmoor
