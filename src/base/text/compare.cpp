#include "base/text/compare.h"

#include "base/text/decode.h"
#include "base/text/lettercase.h"

#include <cstddef>

namespace halvenmoor::text {
namespace {

constexpr char AsciiLowerCase(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}

/// Whether both readers give the same folded characters up to their ends.
bool EqualToTheEnd(CharacterReader& a, CharacterReader& b) {
    while (!a.AtEnd() && !b.AtEnd()) {
        if (FoldCase(a.Next()) != FoldCase(b.Next())) return false;
    }
    return a.AtEnd() && b.AtEnd();
}

/// Whether it is one of Unicode's block "Combining Diacritical Marks".
constexpr bool IsCombiningMark(char32_t character) {
    return character >= 0x0300 && character < 0x0370;
}

constexpr bool IsWordSeparator(char32_t character) {
    return character == U' ' || (character >= U'\t' && character <= U'\r') || character == U'\0';
}

}  // namespace

std::string FoldedKey(std::string_view bytes, const CodePage& page) {
    std::string key;
    AppendFoldedKey(key, bytes, page);
    return key;
}

void AppendFoldedKey(std::string& out, std::string_view bytes, const CodePage& page) {
    if (!IsAscii(bytes)) {
        for (CharacterReader reader(bytes, page); !reader.AtEnd();) AppendUtf8(out, FoldCase(reader.Next()));
        return;
    }
    const std::size_t start = out.size();
    out.append(bytes);
    char* key = out.data() + start;
    for (std::size_t i = 0; i < bytes.size(); ++i) key[i] = AsciiLowerCase(key[i]);
}

std::string CollationKey(std::string_view bytes, const CodePage& page) {
    std::string key;
    if (!IsAscii(bytes)) {
        for (CharacterReader reader(bytes, page); !reader.AtEnd();) {
            const char32_t folded = FoldCase(reader.Next());
            if (!IsCombiningMark(folded)) AppendUtf8(key, BaseLetter(folded));
        }
        key += '\0';  // sorts before all characters of a name, so a text in ASCII is the first of its equals
    }
    AppendFoldedKey(key, bytes, page);
    return key;
}

std::u32string FoldedCharacters(std::string_view bytes, const CodePage& page) {
    std::u32string characters = Decode(bytes, page);
    for (char32_t& character : characters) character = FoldCase(character);
    return characters;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b, const CodePage& page) noexcept {
    CharacterReader readerA(a, page);
    CharacterReader readerB(b, page);
    return EqualToTheEnd(readerA, readerB);
}

std::optional<std::string_view> WithoutEnding(std::string_view bytes, std::string_view ending,
                                              const CodePage& page) noexcept {
    const std::size_t count = CharacterCount(bytes);
    const std::size_t endingCount = CharacterCount(ending);
    if (endingCount > count) return std::nullopt;

    CharacterReader reader(bytes, page);
    for (std::size_t i = endingCount; i < count; ++i) reader.Next();
    const std::string_view head = bytes.substr(0, static_cast<std::size_t>(reader.Position() - bytes.data()));
    CharacterReader endingReader(ending, page);
    if (!EqualToTheEnd(reader, endingReader)) return std::nullopt;
    return head;
}

bool EqualIgnoringAsciiCase(std::string_view text, std::string_view asciiWord) noexcept {
    return text.size() == asciiWord.size() && StartsWithIgnoringAsciiCase(text, asciiWord);
}

bool StartsWithIgnoringAsciiCase(std::string_view text, std::string_view asciiPrefix) noexcept {
    if (text.size() < asciiPrefix.size()) return false;
    for (std::size_t i = 0; i < asciiPrefix.size(); ++i) {
        if (AsciiLowerCase(text[i]) != AsciiLowerCase(asciiPrefix[i])) return false;
    }
    return true;
}

bool EndsWithIgnoringAsciiCase(std::string_view text, std::string_view asciiEnding) noexcept {
    return text.size() >= asciiEnding.size() &&
           EqualIgnoringAsciiCase(text.substr(text.size() - asciiEnding.size()), asciiEnding);
}

std::string ProperCase(std::string_view utf8) {
    std::string proper;
    proper.reserve(utf8.size());
    bool startsWord = true;
    for (CharacterReader reader(utf8, WindowsCodePage(1252)); !reader.AtEnd();) {
        const char32_t character = reader.Next();
        AppendUtf8(proper, startsWord ? UpperCase(character) : LowerCase(character));
        startsWord = IsWordSeparator(character);
    }
    return proper;
}

}  // namespace halvenmoor::text
