#include "base/text/numbers.h"

#include "tools/file_helpers.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>

namespace halvenmoor::text {
namespace {

using namespace std::string_literals;

struct Reading {
    std::string text;
    double number;
};

TEST(LeadingNumber, ReadsAsFarAsTheNumberGoes) {
    const std::pair<double, Strings> cases[] = {
        {0, {"", ".", "-", "E5", "--30", "+-30", "_30", "inf", "nan", "0x10"}},
        {0.5, {".5"}},
        {1, {"1,5", "1\0002"s, "1\u00A02", "1\r2"}},
        {1.5, {"1.5.5"}},
        {5, {"5."}},
        {7, {"7E", "7E+", "7E-x", "7EE2"}},
        {30, {"30mph"}},
        {50, {"50", "050"}},
        {-30, {"-30"}},
        {-0.12345, {"-0.12345"}},
        {-0.25, {"-.25x"}},
        {51.507351, {"+51.507351"}},
        {0.02, {"2d-2x"}},
        {100, {"1E+2"}},
        {150, {"1.5D2"}},
        {700, {"7E2.5"}},
        {1000, {"1e3"}},
    };
    for (const auto& [number, texts] : cases) {
        for (const std::string& text : texts) EXPECT_EQ(LeadingNumber(text), number) << text;
    }
}

TEST(LeadingNumber, SkipsWhiteSpaceAnywhere) {
    EXPECT_EQ(LeadingNumber(" \t\n- 1 2\t.\n5 E - 1 "), -1.25);
    EXPECT_EQ(LeadingNumber(" & H 1\tF"), 31);
    EXPECT_EQ(LeadingNumber(" 5 0 mph 3"), 50);
}

TEST(LeadingNumber, ReadsHexadecimalAndOctal) {
    const Reading cases[] = {{"&H1f", 31}, {"&hFFFF", 65535}, {"&O17", 15}, {"&o178", 15}, {"&HG", 0},
                             {"&12", 0},   {"-&H10", 0},      {"1&H10", 1}, {"&", 0},      {"&H-1", 0}};
    for (const auto& [text, number] : cases) EXPECT_EQ(LeadingNumber(text), number) << text;
}

TEST(LeadingNumber, IsInfiniteBeyondADouble) {
    for (const auto& text : {"1E309"s, "1E99999999999999999999999"s, "12E2147483647"s, std::string(400, '9'),
                             "&H" + std::string(300, 'F')})
        EXPECT_EQ(LeadingNumber(text), HUGE_VAL) << text;
    EXPECT_EQ(LeadingNumber("-1E400"), -HUGE_VAL);
    EXPECT_EQ(LeadingNumber("1.7976931348623157E308"), std::numeric_limits<double>::max());
    for (const auto* text : {"1E-400", "1E-99999999999999999999999", "0E99999999999999999999999"})
        EXPECT_EQ(LeadingNumber(text), 0) << text;
    EXPECT_EQ(LeadingNumber("5E-324"), std::numeric_limits<double>::denorm_min());
}

TEST(LeadingNumber, RoundsNumbersOfAnyLengthRightly) {
    EXPECT_EQ(LeadingNumber("0." + std::string(5000, '0') + "15E5001"), 1.5);
    EXPECT_EQ(LeadingNumber("25" + std::string(5000, '0') + "E-5001"), 2.5);
    EXPECT_EQ(LeadingNumber("0.1000000000000000055511151231257827"), 0.1);
    // Halfway between 2^53 and the next double goes to the even one, anything above goes up.
    EXPECT_EQ(LeadingNumber("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(LeadingNumber("9007199254740993." + std::string(2000, '0')), 9007199254740992.0);
    EXPECT_EQ(LeadingNumber("9007199254740993." + std::string(2000, '0') + "1"), 9007199254740994.0);
}

TEST(IsNumericText, TakesTheWholeText) {
    for (const auto* text :
         {"5", "-5", "+5", "0.5", ".5", "5.", "-.5", "1E5", "1e+5", "1.5D-10", "5.E1", "00"}) {
        EXPECT_TRUE(IsNumericText(text, ".")) << text;
    }
    for (const auto* text : {"",    ".",   "-",  "+.", "E5",  ".E5", "5E", "5E+", "5E1.5", "5E1x", "1.5.5",
                             "1,5", "--5", " 5", "5 ", "5 0", "&H5", "5x", "inf", "1_0",   "\"5\""}) {
        EXPECT_FALSE(IsNumericText(text, ".")) << text;
    }
    EXPECT_TRUE(IsNumericText("-1,5E2", ","));
    EXPECT_FALSE(IsNumericText("1.5", ","));
    EXPECT_TRUE(IsNumericText("1٫5", "٫"));  // two bytes
    EXPECT_FALSE(IsNumericText("1\xD9", "٫"));
    EXPECT_TRUE(IsNumericText("15", ""));
}

TEST(GeneralNumber, WritesTheShortForm) {
    const Reading cases[] = {{"0", 0},
                             {"0", -0.0},
                             {"50", 50},
                             {"-30", -30},
                             {"0.5", 0.5},
                             {"-0.25", -0.25},
                             {"100", 100},
                             {"0.3", 0.1 + 0.2},
                             {"1E+20", 1e20},
                             {"1.5E-10", 1.5e-10},
                             {"1E+15", 1e15},
                             {"123456789012345", 123456789012345},
                             {"900000000000000", 9e14},
                             {"0.333333333333333", 1.0 / 3},
                             {"1.23456789012346E+15", 1234567890123456}};
    for (const auto& [text, number] : cases) EXPECT_EQ(GeneralNumber(number, "."), text);
    EXPECT_EQ(GeneralNumber(2.5, ","), "2,5");
    EXPECT_EQ(GeneralNumber(-1.5e300, "٫"), "-1٫5E+300");
    EXPECT_EQ(GeneralNumber(1000, ","), "1000");
}

TEST(Overflow, EndsInAFailure) {
    EXPECT_EQ(CheckedInt16(32767), 32767);
    EXPECT_EQ(CheckedInt16(-32768), -32768);
    EXPECT_EQ(FailureNumber([] { CheckedInt16(32768); }), failure::Overflow);
    EXPECT_EQ(FailureNumber([] { CheckedInt16(-32769); }), failure::Overflow);
    EXPECT_EQ(FailureNumber([] { GeneralNumber(HUGE_VAL, "."); }), failure::Overflow);

    constexpr std::int16_t kMaxInt16 = 32767;
    constexpr std::int32_t kMaxInt32 = 2147483647;
    EXPECT_EQ(CheckedAdd(std::int16_t{32766}, 1), 32767);
    EXPECT_EQ(CheckedAdd(kMaxInt32, -1), 2147483646);
    EXPECT_EQ(FailureNumber([] { CheckedAdd(kMaxInt16, 1); }), failure::Overflow);
    EXPECT_EQ(FailureNumber([] { CheckedAdd(std::int16_t{-32768}, -1); }), failure::Overflow);
    EXPECT_EQ(FailureNumber([] { CheckedAdd(kMaxInt32, 1); }), failure::Overflow);
}

}  // namespace
}  // namespace halvenmoor::text
