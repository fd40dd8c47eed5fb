#include "base/failure.h"
#include "export/camera_line.h"
#include "export/file_name_speed.h"
#include "platform/fakes/services.h"
#include "tools/file_helpers.h"

#include <array>
#include <gtest/gtest.h>

namespace halvenmoor {
namespace {

/// Whether the quotes are closed, and the fields.
using Split = std::pair<bool, Strings>;

Split SplitLine(std::string_view line) {
    FieldList list;
    const bool isClosed = SplitCameraLine(list, line);
    EXPECT_TRUE(line.empty());
    return {isClosed, Strings(list.fields.begin(), list.fields.begin() + static_cast<long>(list.count))};
}

TEST(SplitCameraLineTest, SplitsAtCommasOutsideOfQuotes) {
    EXPECT_EQ(SplitLine("  1.5 ,\t2.5 ,, a b  "), (Split{true, {"1.5", "\t2.5", "", "a b"}}));
    EXPECT_EQ(SplitLine(" "), (Split{true, {""}}));
    EXPECT_EQ(SplitLine(R"("A,B" , 2)"), (Split{true, {R"("A,B")", "2"}}));
    EXPECT_EQ(SplitLine(R"(1,"A"x"y",3)"), (Split{true, {"1", R"("A")", "3"}}));
    EXPECT_EQ(SplitLine(R"(1,"A"",3)"), (Split{true, {"1", R"("A")", "3"}})) << "no escape";
    EXPECT_EQ(SplitLine(R"(1.5,50.25,"open, 4)"), (Split{false, {"1.5", "50.25"}}));
    EXPECT_EQ(SplitLine(R"(in"side,2)"), (Split{false, {""}}));
    const Strings ten{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
    EXPECT_EQ(SplitLine("1,2,3,4,5,6,7,8,9,10," + std::string(40000, 'x')), (Split{true, ten}));
}

bool Overflows(const std::string& line) {
    return FailureNumber([&] { SplitLine(line); }) == failure::Overflow;
}

TEST(SplitCameraLineTest, PositionsAre16BitNumbers) {
    const std::string longest(32766, 'x');
    EXPECT_EQ(SplitLine(longest + "," + longest), (Split{true, {longest, longest}}))
        << "positions count in what is left of the line";
    EXPECT_TRUE(Overflows(longest + "x,2"));
    EXPECT_TRUE(Overflows("1," + longest + "x")) << "behind the last field too stands a comma";
    EXPECT_EQ(SplitLine(std::string(40000, ' ') + "1,2"), (Split{true, {"1", "2"}}));
    EXPECT_TRUE(Overflows("\"" + longest + "\"")) << "the comma is looked for before the quote";
}

TEST(SplitCameraLineTest, PositionsCountCharacters) {
    std::string umlauts;
    for (int i = 0; i < 32766; ++i) umlauts += "\xC3\xB6";
    EXPECT_EQ(SplitLine(umlauts + ",2"), (Split{true, {umlauts, "2"}}));
    EXPECT_TRUE(Overflows(umlauts + "\xC3\xB6,2"));
    EXPECT_TRUE(Overflows(umlauts + "\xF6,2")) << "no UTF-8, so every byte is a character";
}

TEST(PositionTest, NeedsNumbersWithAPoint) {
    EXPECT_TRUE(IsValidPosition("-0.12345", "51.50000"));
    EXPECT_TRUE(IsValidPosition("+1.5e1", ".5"));
    EXPECT_FALSE(IsValidPosition("5", "50.25"));
    EXPECT_FALSE(IsValidPosition("5.5", "50"));
    for (const auto* text : {"", ".", "1.2.3", "1.5x", "1. 5", "\t1.5", "1,5", "5.0,5", "&H1.", "nan."})
        EXPECT_FALSE(IsValidPosition(text, "50.25")) << text;
}

TEST(PositionTest, MustLieOnTheGlobe) {
    EXPECT_TRUE(IsValidPosition("180.0", "90.0"));
    EXPECT_TRUE(IsValidPosition("-180.00000000000000001", "-9.0e1")) << "as near as a double tells";
    EXPECT_TRUE(IsValidPosition("0.0", "1.0e-300"));
    for (const auto* x : {"180.00001", "-180.5", "1.0e999"}) EXPECT_FALSE(IsValidPosition(x, "50.25")) << x;
    for (const auto* y : {"90.00001", "-90.5", "0.0", "-0.000", "1.0e-999"})
        EXPECT_FALSE(IsValidPosition("5.5", y)) << y;
}

std::string Speed(std::string_view name, const std::string& separator = ".") {
    fakes::FixedLocale locale;
    locale.Separator = separator;
    return SpeedFromFileName(name, Strings{"mph", "km/h", "\xC3\xB6h"}, locale);
}

TEST(SpeedFromFileNameTest, ReadsTheEndOfTheName) {
    const std::array<const char*, 2> speeds[] = {
        {"Fixed 50 mph", "50"}, {"Fixed_120MPH", "120"}, {"Fixed_1120", "120"},
        {"Fixed-30", "30"},     {"Fixed050", "50"},      {"7", "7"},
        {"50km/h", "50"},       {"x&H9", "9"},           {"x1e3", "1000"},
        {"x 1 2", "12"},        {"120\xC3\xA9", "20"},   {"80\xD6H", "80"}};
    for (const auto& [name, speed] : speeds) EXPECT_EQ(Speed(name), speed) << name;
    for (const auto* name : {"", "mph", "Fixed K5", "Fixed-5", "Fixed 50 mph new", "Fixed000"}) {
        EXPECT_EQ(Speed(name), "0") << name;
    }
    EXPECT_EQ(Speed("x1.5", ","), "1,5");
    EXPECT_EQ(Speed("x1,5", ","), "1") << "a name has its point whatever the locale";
    EXPECT_EQ(Speed("x 120 mph"), "20") << "the blank before a unit stays";
}

}  // namespace
}  // namespace halvenmoor
