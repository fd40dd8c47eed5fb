#include "export/name_patterns.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/trim.h"
#include "tools/file_helpers.h"

#include <gtest/gtest.h>
#include <random>

namespace halvenmoor {
namespace {

using namespace std::string_literals;
using Patterns = TypeTable<PatternList>;

const text::CodePage& kPage = text::WindowsCodePage(1252);

Patterns Lists(Strings one, Strings two = {}, Strings three = {}, Strings four = {}, Strings five = {}) {
    return {PatternList(), one, two, three, four, five};
}

TEST(NamePatternsTest, LowestTypeOfThePatternsFoundWins) {
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

    std::string Text(std::size_t maxPieces) {
        static const Strings pieces[] = {
            {"a", "A", "b", "B", " ", "z"},
            {"a", "B", "\xC3\xB6", "\xC3\x96", "\xC3\xB5", "я", "Я", "σ", "ς", "Σ"},
            {"a", "B", "\xF6", "\xD6", "\xC3", "\xB6"}};
        static const Strings longPieces[] = {{"abbab", "ABBaB", "abbaz", "ba"},
                                             {"abб\xC3\xB6z", "ABБ\xC3\x96Z", "яσбabab", "ЯΣБabAB", "бa"},
                                             {"a\xF6z\xD6ß", "A\xD6Z\xF6ß", "\xF6"}};
        const Strings& chosen = (hasLongPieces ? longPieces : pieces)[Below(3)];
        std::string text;
        for (std::size_t count = Below(maxPieces + 1); count > 0; --count)
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
