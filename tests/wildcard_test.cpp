#include "base/text/wildcard.h"

#include "tools/file_helpers.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor::text {
namespace {

bool Matches(std::string_view pattern, std::string_view name) {
    return WildcardPattern(pattern, WindowsCodePage(1252)).Matches(name);
}

struct Case {
    std::string_view pattern;
    Strings accepted;
    Strings refused;
};

void ExpectMatches(const std::vector<Case>& cases) {
    for (const auto& [pattern, accepted, refused] : cases) {
        for (const std::string& name : accepted)
            EXPECT_TRUE(Matches(pattern, name)) << pattern << ' ' << name;
        for (const std::string& name : refused)
            EXPECT_FALSE(Matches(pattern, name)) << pattern << ' ' << name;
    }
}

TEST(Wildcards, MatchTheWholeNameIgnoringCase) {
    ExpectMatches({{"fixed.asc", {"Fixed.ASC"}, {"fixed.as"}},
                   {"ixed", {}, {"fixed.asc"}},
                   {" fixed*", {}, {"fixed.asc"}},
                   {"a.b]c", {"A.B]C"}, {"axb]c"}},
                   {"*K\xD6LN*", {"A1 Köln.asc"}, {"Koln"}},  // the code page meets UTF-8
                   {"", {""}, {"x"}},
                   {"M?.asc", {"m1.asc"}, {"m.asc", "m12.asc"}},
                   {"K?ln", {"K\xC3\xB6ln", "K\xF6ln"}, {}},  // one character, not one byte
                   {"M#", {"M0", "M9"}, {"Mx", "M/", "M:", "M٣"}},
                   {"*fixed*.asc", {"fixed_30.asc", "FIXED.asc", "my fixed cameras.asc"}, {}},
                   {"*", {""}, {}},
                   {"*ab*ab", {"abaab"}, {"xab", "ababc"}}});
}

TEST(Wildcards, ListsTakeOneCharacterAndIgnoreCase) {
    // The characters that a list takes, and some that it does not take.
    const struct {
        std::string_view pattern, accepted, refused;
    } cases[] = {
        {"[abc]", "bB", "d["},    {"[A-F]", "e", "g"}, {"[!a-f]", "g", "E"},   {"[-a]", "a-", "b`"},
        {"[a-c-e]", "bc-e", "d"}, {"[!]", "!", "a"},   {"[!!]", "a", "!"},     {"[a!]", "a!", "b"},
        {"[c-a]", "", "abc-"},    {"[]-]", "", "]-"},  {"[%--]", "%&-", ".$"}, {"[?*#[]", "?*#[", "a"},
    };
    for (const auto& [pattern, accepted, refused] : cases) {
        for (const char c : accepted) EXPECT_TRUE(Matches(pattern, std::string(1, c))) << pattern << ' ' << c;
        for (const char c : refused) EXPECT_FALSE(Matches(pattern, std::string(1, c))) << pattern << ' ' << c;
    }
    ExpectMatches({{"[!a]", {}, {""}}, {"x[0-46-9]y", {"X7Y"}, {"x5y"}}, {"[а-я][Ö]", {"Жö"}, {}}});
}

TEST(Wildcards, AnEmptyListMatchesTheEmptyTextAndAnOpenOneFailsAtTheFirstName) {
    ExpectMatches({{"[]", {""}, {"]"}}, {"a[]b", {"ab"}, {}}, {"[]abc]", {"abc]"}, {}}});
    for (const auto* text : {"[", "[!", "*[", "[a]["}) {
        const WildcardPattern pattern(text, WindowsCodePage(1252));
        EXPECT_EQ(FailureNumber([&] { pattern.Matches("x"); }), failure::BadPattern) << text;
    }
}

/// One that tries every way would not come to an end.
TEST(Wildcards, ManyStarsStayQuick) {
    std::string stars;
    for (int i = 0; i < 100'000; ++i) stars += "*a";
    EXPECT_FALSE(Matches(stars, std::string(50'000, 'a')));
    EXPECT_TRUE(Matches(stars, std::string(100'000, 'a')));
}

}  // namespace
}  // namespace halvenmoor::text
