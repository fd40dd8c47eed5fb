#include "base/text/lettercase.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace halvenmoor::text {
namespace {

/// Capitals from first to last, each `step` characters apart, whose small letters lie `distance` behind them.
struct CapitalRange {
    char32_t first;
    char32_t last;
    char32_t step;
    char32_t distance;
};

constexpr CapitalRange kCapitalRanges[] = {
    {U'A', U'Z', 1, 32},      // Latin
    {0x00C0, 0x00D6, 1, 32},  // À to Ö
    {0x00D8, 0x00DE, 1, 32},  // Ø to Þ
    {0x0100, 0x012E, 2, 1},   // Ā to Į; then İ and ı, which are no pair
    {0x0132, 0x0136, 2, 1},   // Ĳ to Ķ
    {0x0139, 0x0147, 2, 1},   // Ĺ to Ň
    {0x014A, 0x0176, 2, 1},   // Ŋ to Ŷ
    {0x0179, 0x017D, 2, 1},   // Ź to Ž
    {0x01A0, 0x01A4, 2, 1},   // Ơ to Ƥ
    {0x01CD, 0x01DB, 2, 1},   // Ǎ to Ǜ
    {0x01DE, 0x01EE, 2, 1},   // Ǟ to Ǯ
    {0x01F8, 0x021E, 2, 1},   // Ǹ to Ȟ
    {0x0222, 0x0232, 2, 1},   // Ȣ to Ȳ
    {0x0246, 0x024E, 2, 1},   // Ɇ to Ɏ
    {0x0391, 0x03A1, 1, 32},  // Greek: Α to Ρ
    {0x03A3, 0x03AB, 1, 32},  // Σ to Ϋ
    {0x03D8, 0x03EE, 2, 1},   // Ϙ to Ϯ
    {0x0400, 0x040F, 1, 80},  // Cyrillic: Ѐ to Џ
    {0x0410, 0x042F, 1, 32},  // А to Я
    {0x0460, 0x0480, 2, 1},   // Ѡ to Ҁ
    {0x048A, 0x04BE, 2, 1},   // Ҋ to Ҿ
    {0x04C1, 0x04CD, 2, 1},   // Ӂ to Ӎ
    {0x04D0, 0x052E, 2, 1},   // Ӑ to Ԯ
    {0x1E00, 0x1E94, 2, 1},   // Latin Extended Additional: Ḁ to Ẕ
    {0x1EA0, 0x1EFE, 2, 1},   // Ạ to Ỿ
};

// Pairs that lie apart, capital above small letter.
constexpr std::u32string_view kSingleCapitals = U"ŸƁƂƄƆƇƉƊƋƎƏƐƑƓƔƖƗƘƜƝƟƦƧƩƬƮƯƱƲƳƵƷƸƼǶǷǴȠȻȽɁɃɄɅΆΈΉΊΌΎΏӀ";
constexpr std::u32string_view kSingleSmall = U"ÿɓƃƅɔƈɖɗƌǝəɛƒɠɣɩɨƙɯɲɵʀƨʃƭʈưʊʋƴƶʒƹƽƕƿǵƞȼƚɂƀʉʌάέήίόύώӏ";
static_assert(kSingleCapitals.size() == kSingleSmall.size());

/// Small letters that stand beside another one in a sorted list.
struct MarkedLetters {
    char32_t base;
    std::u32string_view letters;
};

constexpr MarkedLetters kMarkedLetters[] = {
    {U'a', U"àáâãäåæāăąǎǟǡǣǻǽȁȃȧḁạảấầẩẫậắằẳẵặ"},
    {U'b', U"ƀƃḃḅḇ"},
    {U'c', U"çćĉċčƈȼḉ"},
    {U'd', U"ðďđƌḋḍḏḑḓ"},
    {U'e', U"èéêëēĕėęěȅȇȩɇḕḗḙḛḝẹẻẽếềểễệ"},
    {U'f', U"ƒḟ"},
    {U'g', U"ĝğġģǥǧǵḡ"},
    {U'h', U"ĥħȟḣḥḧḩḫẖ"},
    {U'i', U"ìíîïĩīĭįİıĳǐȉȋḭḯỉị"},
    {U'j', U"ĵǰɉ"},
    {U'k', U"ķĸƙǩḱḳḵ"},
    {U'l', U"ĺļľŀłƚḷḹḻḽ"},
    {U'm', U"ḿṁṃ"},
    {U'n', U"ñńņňŉŋƞǹṅṇṉṋ"},
    {U'o', U"òóôõöøōŏőœơǒǫǭǿȍȏȫȭȯȱṍṏṑṓọỏốồổỗộớờởỡợ"},
    {U'p', U"ƥṕṗ"},
    {U'r', U"ŕŗřȑȓɍṙṛṝṟ"},
    {U's', U"ßśŝşšſșȿṡṣṥṧṩẛẞ"},
    {U't', U"þţťŧƫƭțṫṭṯṱẗ"},
    {U'u', U"ùúûüũūŭůűųưǔǖǘǚǜȕȗṳṵṷṹṻụủứừửữự"},
    {U'v', U"ṽṿ"},
    {U'w', U"ŵẁẃẅẇẉẘ"},
    {U'x', U"ẋẍ"},
    {U'y', U"ýÿŷƴȳɏẏẙỳỵỷỹ"},
    {U'z', U"źżžƶɀẑẓẕ"},
    {U'ʒ', U"ǯ"},
    {U'α', U"ά"},  // Greek
    {U'ε', U"έ"},
    {U'η', U"ή"},
    {U'ι', U"ΐίϊ"},
    {U'ο', U"ό"},
    {U'υ', U"ΰϋύ"},
    {U'ω', U"ώ"},
    {U'а', U"ӑӓ"},  // Cyrillic; й is a letter of its own and stands behind и anyway
    {U'г', U"ѓґ"},
    {U'д', U"ђ"},
    {U'е', U"ѐёєӗ"},
    {U'ж', U"ӂӝ"},
    {U'з', U"ѕӟ"},
    {U'и', U"іїјѝӣӥ"},
    {U'к', U"ќ"},
    {U'л', U"љ"},
    {U'н', U"њ"},
    {U'о', U"ӧ"},
    {U'т', U"ћ"},
    {U'у', U"ўӯӱӳ"},
    {U'ч', U"џӵ"},
    {U'ы', U"ӹ"},
    {U'э', U"ӭ"},
    {U'ә', U"ӛ"},
    {U'ө', U"ӫ"},
};

constexpr char32_t kBlockEnd = 0x0530;  // Latin, Greek and Cyrillic fill the table up to here
constexpr char32_t kAdditionalFirst = 0x1E00;
constexpr char32_t kAdditionalEnd = 0x1F00;
constexpr std::size_t kTableSize = kBlockEnd + (kAdditionalEnd - kAdditionalFirst);

/// The place of a character in the tables; kTableSize if it is in none.
constexpr std::size_t TableIndex(char32_t character) {
    if (character < kBlockEnd) return character;
    if (character >= kAdditionalFirst && character < kAdditionalEnd)
        return character - kAdditionalFirst + kBlockEnd;
    return kTableSize;
}

struct LetterTables {
    std::array<char16_t, kTableSize> lower{};
    std::array<char16_t, kTableSize> upper{};
    std::array<char16_t, kTableSize> base{};

    constexpr void Set(char32_t character, char32_t lowerForm, char32_t upperForm) {
        lower[TableIndex(character)] = static_cast<char16_t>(lowerForm);
        upper[TableIndex(character)] = static_cast<char16_t>(upperForm);
        base[TableIndex(character)] = static_cast<char16_t>(character);
    }

    constexpr void AddPair(char32_t capital, char32_t small) {
        Set(capital, small, capital);
        Set(small, small, capital);
    }
};

constexpr LetterTables MakeTables() {
    LetterTables tables;
    for (char32_t c = 0; c < kBlockEnd; ++c) tables.Set(c, c, c);
    for (char32_t c = kAdditionalFirst; c < kAdditionalEnd; ++c) tables.Set(c, c, c);
    for (const CapitalRange& range : kCapitalRanges) {
        for (char32_t c = range.first; c <= range.last; c += range.step)
            tables.AddPair(c, c + range.distance);
    }
    for (std::size_t i = 0; i < kSingleCapitals.size(); ++i)
        tables.AddPair(kSingleCapitals[i], kSingleSmall[i]);
    for (const MarkedLetters& marked : kMarkedLetters) {
        for (const char32_t letter : marked.letters)
            tables.base[TableIndex(letter)] = static_cast<char16_t>(marked.base);
    }
    return tables;
}

constexpr LetterTables kTables = MakeTables();

}  // namespace

char32_t LowerCase(char32_t character) noexcept {
    const std::size_t index = TableIndex(character);
    return index < kTableSize ? kTables.lower[index] : character;
}

char32_t UpperCase(char32_t character) noexcept {
    const std::size_t index = TableIndex(character);
    return index < kTableSize ? kTables.upper[index] : character;
}

char32_t BaseLetter(char32_t folded) noexcept {
    const std::size_t index = TableIndex(folded);
    return index < kTableSize ? kTables.base[index] : folded;
}

}  // namespace halvenmoor::text
