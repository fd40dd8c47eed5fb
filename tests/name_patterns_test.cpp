#include "export/name_patterns.h"

#include "base/failure.h"
#include "tools/file_helpers.h"

#include <gtest/gtest.h>

namespace halvenmoor {
namespace {

using namespace std::string_literals;
using Patterns = TypeTable<PatternList>;

const text::CodePage& kPage = text::WindowsCodePage(1252);

Patterns Lists(Strings one, Strings two = {}, Strings three = {}, Strings four = {}, Strings five = {}) {
    return {PatternList(), one, two, three, four, five};
}

TEST(NamePatternsTest, LowestTypeOfThePatternsFoundWins) {
    const std::string manyLetters(60'000, 'a');
    const struct {
        std::string name;
        Patterns patterns;
        int type;
    } cases[] = {
        {"\"A40 (FIXED)\"", Lists({"(fixed)"}), 1},
        {"\"automobiles\"", Lists({}, {}, {}, {}, {" Mobile "}), 5},  // a pattern is trimmed
        {"\"mobil\"", Lists({"mobile"}), 0},
        {"\"m*bile?\"", Lists({"m*bile?"}), 1},  // no wildcards
        {"\"name\"", Lists({"\"name"}), 1},      // the quotes belong to the name
        {"\"name\"", Lists({}), 0},
        {"mobile section", Lists({}, {"section"}, {}, {"mobile"}), 2},
        {"redlight", Lists({}, {}, {"redlight"}, {"red"}, {"edl"}), 3},
        {"abcd", Lists({"bcx"}, {}, {"bc"}, {}, {"abcd"}), 3},  // one inside another
        {"mobile", Lists({"mobil"}, {}, {}, {}, {"mobile section"}), 1},
        {"aab", Lists({}, {}, {}, {"ab"}, {"aac"}), 4},  // one begins within another that fails
        {std::string(39, 'a'), Lists({std::string(40, 'a')}), 0},
        {manyLetters + "b", Lists({}, {manyLetters.substr(1) + "B"}), 2},  // more states than the table has
        {"red", Lists({}, {"red"}, {"  "}, {"section"}), 2},
        {"section", Lists({}, {"red"}, {"  "}, {"section"}), 3},  // the empty one is found everywhere
        {"", Lists({}, {}, {"  "}), 0},                           // but in nothing
        {"K\xD6LN", Lists({"k\xC3\xB6ln"}), 1},
        {"K\xC3\x96LN", Lists({"k\xF6ln"}), 1},
        {"\xC3\xB6", Lists({"\xB6"}), 0},  // no character begins inside another
        {"ab", Lists({"ab\0"s}), 0},
        {"ab\0"s, Lists({"ab\0"s}), 1},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(NamePatterns(test.patterns, kPage).NameMatchesAnyPattern(test.name), test.type)
            << testing::PrintToString(test.name) << testing::PrintToString(test.patterns);
    }
    EXPECT_EQ(FailureNumber([] { NamePatterns(Patterns(), kPage).NameMatchesAnyPattern("name"); }),
              failure::TypeMismatch);
}

}  // namespace
}  // namespace halvenmoor
