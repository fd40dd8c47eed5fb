#include "base/text/codepage.h"
#include "base/text/compare.h"
#include "base/text/decode.h"
#include "base/text/lettercase.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor::text {
namespace {

using namespace std::string_literals;

const CodePage& western = WindowsCodePage(1252);

TEST(CodePages, GiveEveryByteACharacterOfItsOwn) {
    for (int number = 1250; number <= 1258; ++number) {
        const CodePage& page = WindowsCodePage(number);
        EXPECT_EQ(page.number, number);
        EXPECT_EQ(std::set<char32_t>(page.characters.begin(), page.characters.end()).size(), 256U) << number;
        for (char32_t byte = 0; byte < 128; ++byte) EXPECT_EQ(page.characters[byte], byte) << number;
    }
}

TEST(CodePages, HoldTheLettersOfTheirLanguages) {
    EXPECT_EQ(ToUtf8("\x8A\x9C\xA5\xB3\xD8\xFB", WindowsCodePage(1250)), "ŠśĄłŘű");
    EXPECT_EQ(ToUtf8("\xC6\xF3\xEA\xA8\xB9\xFF", WindowsCodePage(1251)), "ЖукЁ№я");
    EXPECT_EQ(ToUtf8("\x80\x8C\xC4\xDF\xFC\xFF", western), "€ŒÄßüÿ");
    EXPECT_EQ(ToUtf8("\xC1\xE8\xDE\xED\xA2\xFE", WindowsCodePage(1253)), "ΑθήνΆώ");
    EXPECT_EQ(ToUtf8("\xDD\xFD\xF0\xFE", WindowsCodePage(1254)), "İığş");
    EXPECT_EQ(ToUtf8("\xC0\xE8\xE6\xEB\xF8", WindowsCodePage(1257)), "Ąčęėų");
    EXPECT_EQ(ToUtf8("\xD0\xF4\xF5\xFE", WindowsCodePage(1258)), "Đôơ₫");
    EXPECT_EQ(WindowsCodePage(1253).characters[0xD2], 0xF7D2U);  // undefined: private use
}

TEST(CodePages, FollowTheLanguage) {
    const std::pair<int, std::vector<std::string_view>> cases[] = {
        {1250, {"pl", "pl_PL.UTF-8", "CS-cz", "sr-Latn-RS", "sr_RS@latin"}},
        {1251, {"ru_RU", "bg.CP1251", "sr", "sr_Cyrl", "uz_UZ@cyrillic"}},
        {1252, {"de-DE", "C", "", "xx_YY"}},
        {1253, {"el_GR@euro"}},
        {1254, {"tr", "az_Latn_AZ"}},
        {1257, {"lt"}}};
    for (const auto& [page, tags] : cases) {
        for (const auto tag : tags) EXPECT_EQ(WindowsCodePageForLanguage(tag), page) << tag;
    }
}

TEST(Decoding, AcceptsOnlyWellFormedUtf8) {
    for (const auto& valid : {""s, "plain ASCII text, longer than a word"s, "Köln – Ελλάδα €"s, "\0x"s,
                              "\xEF\xBF\xBF"s, "\xF0\x9F\x9A\x97"s, "\xF4\x8F\xBF\xBF"s, "\xED\x9F\xBF"s}) {
        EXPECT_TRUE(IsValidUtf8(valid)) << valid;
    }
    for (const auto& invalid :
         {"K\xF6ln"s, "\x80"s, "\xC1\xBF"s, "\xE0\x9F\xBF"s, "\xF0\x8F\xBF\xBF"s, "\xED\xA0\x80"s,
          "\xF4\x90\x80\x80"s, "abcdefgh\xC3"s, "\xE2\x82x"s, "\xF0\x9F\x9A"s}) {
        EXPECT_FALSE(IsValidUtf8(invalid)) << invalid;
    }
}

TEST(Decoding, ReadsEachTextByItsOwnEncoding) {
    EXPECT_EQ(Decode("K\xC3\xB6ln \xF0\x9F\x9A\x97", western), U"Köln \U0001F697");
    EXPECT_EQ(Decode("K\xF6ln \x80", western), U"Köln €");
    EXPECT_EQ(Decode("\xC3\xB6\xF6", western), U"Ã¶ö");  // one bad byte makes the whole text single-byte
    EXPECT_EQ(EncodeUtf8(U"z߿ࠀ\uFFFD\U00010000\U0010FFFF"),
              "z\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
    EXPECT_EQ(ToUtf8("K\xF6ln", western), "K\xC3\xB6ln");
    EXPECT_EQ(CharacterCount("K\xC3\xB6ln\xF0\x9F\x9A\x97"), 5U);
    EXPECT_TRUE(IsAscii("0123456789~"));
    EXPECT_FALSE(IsAscii("\x80----------"));
}

TEST(LetterCase, KnowsLatinGreekAndCyrillicPairs) {
    const std::u32string_view capitals = U"AZÀÞĀĹŊŸŽƏƠǺȘȚẀẼỲΆΏΑΡΣΫЀЏАЯҐӀӁӘ";
    const std::u32string_view small = U"azàþāĺŋÿžəơǻșțẁẽỳάώαρσϋѐџаяґӏӂә";
    ASSERT_EQ(capitals.size(), small.size());
    for (std::size_t i = 0; i < capitals.size(); ++i) {
        EXPECT_EQ(LowerCase(capitals[i]), small[i]) << i;
        EXPECT_EQ(UpperCase(small[i]), capitals[i]) << i;
        EXPECT_EQ(FoldCase(capitals[i]), small[i]) << i;
    }
    for (const char32_t alone : U"@[`{0×÷ßİıĸŉſǅµΐΰẞẖ€\U0001F697") {
        EXPECT_EQ(LowerCase(alone), alone);
        EXPECT_EQ(UpperCase(alone), alone);
    }
    EXPECT_EQ(FoldCase(U'ς'), U'σ');
    EXPECT_EQ(LowerCase(U'ς'), U'ς');
}

TEST(LetterCase, IsOneToOne) {
    for (char32_t c = 0; c < 0x2200; ++c) {
        EXPECT_TRUE(LowerCase(c) == c || UpperCase(LowerCase(c)) == c) << static_cast<unsigned>(c);
        EXPECT_TRUE(UpperCase(c) == c || LowerCase(UpperCase(c)) == c) << static_cast<unsigned>(c);
    }
}

TEST(Comparing, IgnoresCaseAndEncoding) {
    const std::vector<std::pair<std::string, std::string>> equals = {
        {"", ""}, {"M25 North", "m25 nORTH"}, {"KÖLN", "k\xF6ln"}, {"\xC9t\xE9", "éTÉ"}, {"ΟΔΟΣ", "οδος"}};
    for (const auto& [a, b] : equals) {
        EXPECT_TRUE(EqualIgnoringCase(a, b, western)) << a;
        EXPECT_EQ(FoldedKey(a, western), FoldedKey(b, western)) << a;
    }
    const std::vector<std::pair<std::string, std::string>> different = {
        {"a", ""},    {"", "a"}, {"ab", "a"}, {"@", "`"}, {"[", "{"}, {"straße", "STRASSE"},
        {"Kı", "KI"}, {"ö", "o"}};
    for (const auto& [a, b] : different) {
        EXPECT_FALSE(EqualIgnoringCase(a, b, western)) << a;
        EXPECT_NE(FoldedKey(a, western), FoldedKey(b, western)) << a;
    }
    EXPECT_TRUE(EqualIgnoringCase("\xC6\xD3\xCA", "жук", WindowsCodePage(1251)));
}

TEST(Comparing, SortsByBaseLettersThenByCharacters) {
    const std::vector<std::string> sorted = {
        "_",    "a",    "Apfel", "a\u0308pfel", "\xE4pfel", "apfelb", "Çan", "İstanbul", "Ister",
        "Iz",   "Łódź", "Lz",    "Zebra",       "άλφα",     "αλφα",   "αν",  "Ђак",      "дно",
        "елка", "Ёлка", "Єлка",  "ест",         "жук",      "игла",   "йод"};
    for (std::size_t i = 1; i < sorted.size(); ++i)
        EXPECT_LT(CollationKey(sorted[i - 1], western), CollationKey(sorted[i], western)) << sorted[i];
}

TEST(Comparing, FindsEndings) {
    EXPECT_EQ(WithoutEnding("M1_70MPH", "mph", western), "M1_70");
    EXPECT_EQ(WithoutEnding("mph", "MPH", western), "");
    EXPECT_EQ(WithoutEnding("\xC6-\xCA\xCC/\xD7", "км/ч", WindowsCodePage(1251)), "\xC6-");
    EXPECT_EQ(WithoutEnding("ph", "mph", western), std::nullopt);
}

}  // namespace
}  // namespace halvenmoor::text
