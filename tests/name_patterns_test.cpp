#include "export/name_patterns.h"

#include "core/failure.h"
#include "files_test_helpers.h"

#include <gtest/gtest.h>

namespace halvenmoor {
namespace {

using Patterns = TypeTable<PatternList>;

const text::CodePage& kPage = text::WindowsCodePage(1252);

Patterns Lists(Strings one, Strings two = {}, Strings three = {}, Strings four = {}, Strings five = {}) {
    return {PatternList(), one, two, three, four, five};
}

int TypeOf(std::string_view name, const Patterns& patterns) {
    return NamePatterns(patterns, kPage).NameMatchesAnyPattern(name);
}

TEST(NamePatternsTest, FindsTextsAnywhereIgnoringCase) {
    const Patterns patterns = Lists({"(fixed)"}, {}, {}, {}, {" Mobile "});
    EXPECT_EQ(TypeOf("\"A40 (FIXED)\"", patterns), 1);
    EXPECT_EQ(TypeOf("\"automobiles\"", patterns), 5) << "a pattern is trimmed";
    EXPECT_EQ(TypeOf("\"mobil\"", patterns), 0);
    EXPECT_EQ(TypeOf("\"m*bile?\"", Lists({"m*bile?"})), 1) << "no wildcards";
    EXPECT_EQ(TypeOf("\"name\"", Lists({"\"name"})), 1) << "the quotes belong to the name";
    EXPECT_EQ(TypeOf("\"name\"", Lists({})), 0);
}

TEST(NamePatternsTest, LowestTypeWins) {
    EXPECT_EQ(TypeOf("mobile section", Lists({}, {"section"}, {}, {"mobile"})), 2);
    EXPECT_EQ(TypeOf("redlight", Lists({}, {}, {"redlight"}, {"red"}, {"edl"})), 3);
    EXPECT_EQ(TypeOf("redlight", Lists({"light"}, {}, {"redlight"}, {"red"})), 1);
    EXPECT_EQ(TypeOf("abcd", Lists({"bcx"}, {}, {"bc"}, {}, {"abcd"})), 3) << "a pattern inside another";
    EXPECT_EQ(TypeOf("mobile", Lists({"mobil"}, {}, {}, {}, {"mobile section"})), 1)
        << "one begins with another";
    EXPECT_EQ(TypeOf("red", Lists({}, {"red"}, {}, {"RED"})), 2) << "one pattern twice";
    EXPECT_EQ(TypeOf("aab", Lists({}, {}, {}, {"ab"}, {"aac"})), 4) << "a pattern begins within a failed one";
}

TEST(NamePatternsTest, TellsEqualCharactersOfAPatternApart) {
    const Patterns patterns = Lists({std::string(40, 'a')});
    EXPECT_EQ(TypeOf(std::string(39, 'a'), patterns), 0);
    EXPECT_EQ(TypeOf(std::string(40, 'a'), patterns), 1);
}

TEST(NamePatternsTest, EmptyPatternIsFoundInEveryNameThatIsNotEmpty) {
    const Patterns patterns = Lists({}, {"red"}, {"  "}, {"section"});
    EXPECT_EQ(TypeOf("x", patterns), 3);
    EXPECT_EQ(TypeOf("section", patterns), 3);
    EXPECT_EQ(TypeOf("red", patterns), 2);
    EXPECT_EQ(TypeOf("\"\"", patterns), 3);
    EXPECT_EQ(TypeOf("", patterns), 0);
}

TEST(NamePatternsTest, ComparesCharacters) {
    EXPECT_EQ(TypeOf("K\xD6LN", Lists({"k\xC3\xB6ln"})), 1);
    EXPECT_EQ(TypeOf("K\xC3\x96LN", Lists({"k\xF6ln"})), 1);
    EXPECT_EQ(TypeOf("ПОДВИЖНАЯ", Lists({}, {"подвижная"})), 2);
    EXPECT_EQ(TypeOf("\xC3\xB6", Lists({"\xB6"})), 0) << "no character begins inside another";
}

TEST(NamePatternsTest, NeedsTheLists) {
    EXPECT_EQ(FailureNumber([] { TypeOf("name", Patterns()); }), failure::TypeMismatch);
}

TEST(NamePatternsTest, FindsPatternsOfAnyLengthAtAnyPlace) {
    const std::pair<const char*, Strings> cases[] = {
        {"x", {"x", "X"}},
        {"ab", {"ab", "AB"}},
        {"köln", {"köln", "KÖLN", "k\xF6ln", "K\xD6LN"}},
        {"κόσμος", {"κόσμος", "ΚΌΣΜΟΣ", "κόςμοσ"}},
        {"я", {"я", "Я"}},
        {"section", {"section", "SECTION"}},
        {"überwachung",
         {"Überwachung", "ÜBERWACHUNG",
          "\xFC"
          "berwachung",
          "\xDC"
          "BERWACHUNG"}},
        {"подвижная камера", {"подвижная камера", "ПОДВИЖНАЯ КАМЕРА"}},
    };
    // The shortest pattern of all decides how the others are looked for.
    for (const char* const other : {"z", "zz", "zzzz zzzz"}) {
        for (const auto& [pattern, spellings] : cases) {
            const NamePatterns patterns(Lists({pattern}, {}, {other}), kPage);
            for (const std::string& spelling : spellings) {
                const std::string almost = spelling.substr(0, spelling.size() - 1) + '-';
                for (std::size_t place = 0; place < 20; ++place) {
                    SCOPED_TRACE(spelling + " at " + std::to_string(place));
                    const std::string before(place, '-');
                    EXPECT_EQ(patterns.NameMatchesAnyPattern(before + spelling), 1);
                    EXPECT_EQ(patterns.NameMatchesAnyPattern(before + spelling + "-----------"), 1);
                    EXPECT_EQ(patterns.NameMatchesAnyPattern(before + almost), 0);
                    EXPECT_EQ(patterns.NameMatchesAnyPattern(before + almost + other), 3);
                }
            }
        }
    }
}

}  // namespace
}  // namespace halvenmoor
