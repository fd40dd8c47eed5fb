#include "export/name_patterns.h"

#include "core/failure.h"
#include "core/text/compare.h"
#include "core/text/trim.h"
#include "files_test_helpers.h"

#include <gtest/gtest.h>
#include <random>

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

TEST(NamePatternsTest, FindsZeroBytesOnlyWhereTheyAre) {
    const Patterns patterns = Lists({std::string("ab\0", 3)});
    EXPECT_EQ(TypeOf("ab", patterns), 0);
    EXPECT_EQ(TypeOf(std::string("ab\0", 3), patterns), 1);
}

TEST(NamePatternsTest, NeedsTheLists) {
    EXPECT_EQ(FailureNumber([] { TypeOf("name", Patterns()); }), failure::TypeMismatch);
}

/// One pattern after the other, each looked for by itself.
int SlowTypeOf(std::string_view name, const Patterns& patterns) {
    for (int type = kFirstType; type <= kLastType; ++type) {
        for (const std::string& pattern : *patterns[static_cast<std::size_t>(type)]) {
            const std::u32string wanted = text::FoldedCharacters(text::Trim(pattern), kPage);
            const bool found = text::FoldedCharacters(name, kPage).find(wanted) != std::u32string::npos;
            if (found && !name.empty()) return type;
        }
    }
    return 0;
}

/// Short texts of few different letters, so that patterns overlap and are found often.
class RandomTexts {
public:
    std::size_t Below(std::size_t limit) { return random_() % limit; }

    std::string Text(std::size_t mostPieces) {
        static const Strings pieces[] = {
            {"a", "A", "b", "B", " ", "z"},
            {"a", "B", "\xC3\xB6", "\xC3\x96", "\xC3\xB5", "я", "Я", "σ", "ς", "Σ"},
            {"a", "B", "\xF6", "\xD6", "\xC3", "\xB6"}};
        static const Strings longPieces[] = {{"abbab", "ABBaB", "abbaz", "ba"},
                                             {"abб\xC3\xB6z", "ABБ\xC3\x96Z", "яσбabab", "ЯΣБabAB", "бa"},
                                             {"a\xF6z\xD6ß", "A\xD6Z\xF6ß", "\xF6"}};
        const Strings& chosen = (hasLongPieces ? longPieces : pieces)[Below(3)];
        std::string text;
        for (std::size_t count = Below(mostPieces + 1); count > 0; --count)
            text += chosen[Below(chosen.size())];
        return text;
    }

    Patterns Lists() {
        Patterns patterns;
        for (PatternList& list : patterns) {
            list.emplace();
            for (std::size_t count = Below(4); count > 0; --count) {
                std::string text = Text(hasLongPieces ? 2 : 5);
                if (!hasLongPieces || text.size() > 5) list->push_back(std::move(text));
            }
        }
        return patterns;
    }

    /// Patterns of many bytes are looked for in another way.
    bool hasLongPieces = false;

private:
    std::mt19937 random_{20060915};
};

TEST(NamePatternsTest, AgreesWithASlowSearch) {
    RandomTexts texts;
    TypeTable<int> results{};
    for (int round = 0; round < 300; ++round) {
        texts.hasLongPieces = round % 2 == 1;
        const Patterns patterns = texts.Lists();
        const NamePatterns matcher(patterns, kPage);
        for (int i = 0; i < 20; ++i) {
            const std::string name = texts.Text(12);
            const int type = matcher.NameMatchesAnyPattern(name);
            ASSERT_EQ(type, SlowTypeOf(name, patterns))
                << testing::PrintToString(name) << testing::PrintToString(patterns);
            ++results[static_cast<std::size_t>(type)];
        }
    }
    for (const int result : results) EXPECT_GT(result, 50) << "the texts have to hit every type";
}

}  // namespace
}  // namespace halvenmoor
