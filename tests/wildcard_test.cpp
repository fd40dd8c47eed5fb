#include "core/text/wildcard.h"

#include "core/failure.h"
#include "core/text/compare.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace halvenmoor::text {
namespace {

bool Matches(std::string_view pattern, std::string_view name, int page = 1252) {
    return WildcardPattern(pattern, WindowsCodePage(page)).Matches(name);
}

TEST(Wildcards, CoverTheWholeName) {
    EXPECT_TRUE(Matches("fixed.asc", "Fixed.ASC"));
    EXPECT_FALSE(Matches("fixed", "fixed.asc"));
    EXPECT_FALSE(Matches("ixed.asc", "fixed.asc"));
    EXPECT_FALSE(Matches("fixed.asc", "fixed.as"));
    EXPECT_FALSE(Matches(" fixed*", "fixed.asc"));
    EXPECT_TRUE(Matches("a.b]c", "A.B]C"));
    EXPECT_FALSE(Matches("a.b", "axb"));
    EXPECT_TRUE(Matches("", ""));
    EXPECT_FALSE(Matches("", "x"));
}

TEST(Wildcards, QuestionMarkAndDigitTakeExactlyOneCharacter) {
    EXPECT_TRUE(Matches("M?.asc", "m1.asc"));
    EXPECT_FALSE(Matches("M?.asc", "m.asc"));
    EXPECT_FALSE(Matches("M?.asc", "m12.asc"));
    EXPECT_TRUE(Matches("K?ln", "K\xC3\xB6ln"));  // one character, not one byte
    EXPECT_TRUE(Matches("K?ln", "K\xF6ln"));
    EXPECT_TRUE(Matches("M##", "M09"));
    EXPECT_FALSE(Matches("M#", "Mx"));
    EXPECT_FALSE(Matches("M#", "M/"));
    EXPECT_FALSE(Matches("M#", "M:"));
    EXPECT_FALSE(Matches("M#", "M٣"));  // only 0 to 9
}

TEST(Wildcards, StarTakesAnyRun) {
    for (const auto* name : {"fixed_30.asc", "FIXED.asc", "my fixed cameras.asc"}) {
        EXPECT_TRUE(Matches("*fixed*.asc", name)) << name;
    }
    EXPECT_TRUE(Matches("*", ""));
    EXPECT_TRUE(Matches("**a**", "a"));
    EXPECT_TRUE(Matches("*ab*ab", "abaab"));
    EXPECT_TRUE(Matches("*aab", "aaaab"));
    EXPECT_FALSE(Matches("*ab*ab", "xab"));
    EXPECT_FALSE(Matches("a*b", "abc"));
    EXPECT_TRUE(Matches("*#0mph*", "gb_110_70MPH.asc"));
}

TEST(Wildcards, ListsIgnoreCaseToo) {
    EXPECT_TRUE(Matches("[abc]", "B"));
    EXPECT_TRUE(Matches("[A-F]", "e"));
    EXPECT_TRUE(Matches("[a-f]", "E"));
    EXPECT_FALSE(Matches("[a-f]", "g"));
    EXPECT_FALSE(Matches("[!a-f]", "E"));
    EXPECT_TRUE(Matches("[!a-f]", "g"));
    EXPECT_FALSE(Matches("[!a]", ""));
    EXPECT_TRUE(Matches("x[0-46-9]y", "X7Y"));
    EXPECT_FALSE(Matches("x[0-46-9]y", "x5y"));
    EXPECT_TRUE(Matches("[а-я][Ö]", "Жö"));
}

TEST(Wildcards, ListsHoldSpecialCharactersAsThemselves) {
    for (const auto* name : {"?", "*", "#", "["}) {
        EXPECT_TRUE(Matches("[?*#[]", name)) << name;
        EXPECT_FALSE(Matches("[?*#[]", "a")) << name;
    }
    const struct {
        std::string_view pattern, accepted, refused;
    } cases[] = {
        {"[a-]", "a-", "b`"},     {"[-a]", "a-", "b`"},  {"[!-]", "a!", "-"}, {"[!-a]", "b!", "-a"},
        {"[a-c-e]", "bc-e", "d"}, {"[!]", "!", "a"},     {"[!!]", "a", "!"},  {"[a!]", "a!", "b"},
        {"[c-a]", "", "abc-"},    {"[!c-a]", "abc", ""}, {"[]-]", "", "]-"},  {"[%--]", "%&-", ".$"},
    };
    for (const auto& [pattern, accepted, refused] : cases) {
        for (const char c : accepted) EXPECT_TRUE(Matches(pattern, std::string(1, c))) << pattern << ' ' << c;
        for (const char c : refused) EXPECT_FALSE(Matches(pattern, std::string(1, c))) << pattern << ' ' << c;
    }
}

TEST(Wildcards, AnEmptyListMatchesTheEmptyText) {
    EXPECT_TRUE(Matches("[]", ""));
    EXPECT_FALSE(Matches("[]", "]"));
    EXPECT_TRUE(Matches("a[]b", "ab"));
    EXPECT_TRUE(Matches("[]abc]", "abc]"));
    EXPECT_TRUE(Matches("*[]*", "x"));
}

TEST(Wildcards, MatchAcrossEncodings) {
    EXPECT_TRUE(Matches("*K\xD6LN*", "A1 Köln.asc"));  // pattern in the code page, name in UTF-8
    EXPECT_TRUE(Matches("*KÖLN*", "A1 k\xF6ln.asc"));  // and the reverse
    EXPECT_TRUE(Matches("*\xCF\xF3\xF2\xFC*", "ПУТЬ 60", 1251));
    EXPECT_FALSE(Matches("*KOLN*", "Köln"));
    const CodePage& western = WindowsCodePage(1252);
    const WildcardPattern pattern("m[0-9]*", western);
    EXPECT_TRUE(pattern.MatchesFolded(FoldedCharacters("M25.asc", western)));
    EXPECT_FALSE(pattern.MatchesFolded(FoldedCharacters("A25.asc", western)));
}

TEST(Wildcards, AnUnclosedBracketFailsAtTheFirstName) {
    for (const auto* text : {"[", "[!", "abc[a-z", "*[", "[a]["}) {
        const WildcardPattern pattern(text, WindowsCodePage(1252));
        for (const auto* name : {"", "abc", "x"}) {
            try {
                pattern.Matches(name);
                ADD_FAILURE() << text;
            } catch (const Failure& failure) {
                EXPECT_EQ(failure.Number(), 93) << text;
            }
        }
    }
}

TEST(Wildcards, ManyStarsStayQuick) {
    std::string stars;
    for (int i = 0; i < 100'000; ++i) stars += "*a";
    EXPECT_FALSE(Matches(stars, std::string(50'000, 'a')));
    EXPECT_FALSE(Matches(std::string(100'000, '*') + 'b', std::string(50'000, 'a')));
    EXPECT_TRUE(Matches(stars, std::string(100'000, 'a')));
    EXPECT_FALSE(Matches("*a*a*a*a*a*a*a*a*a*a*a*a*b", std::string(50'000, 'a')));
}

}  // namespace
}  // namespace halvenmoor::text
