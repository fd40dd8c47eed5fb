#include "base/text/decode.h"

#include "base/text/words.h"

namespace halvenmoor::text {
namespace {

constexpr bool IsContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

/// The length of the well-formed sequence at the start of `bytes`, 0 if there is none. The ranges of the
/// second byte are those of the Unicode standard; they shut out long forms, surrogates and what lies above
/// U+10FFFF.
std::size_t SequenceLength(std::string_view bytes) {
    const auto at = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = at(0);
    if (lead < 0x80) return 1;
    if (lead < 0xC2 || lead > 0xF4) return 0;

    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (bytes.size() < length) return 0;
    const unsigned char lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned char highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (at(1) < lowest || at(1) > highest) return 0;
    for (std::size_t i = 2; i < length; ++i) {
        if (!IsContinuation(at(i))) return 0;
    }
    return length;
}

constexpr Word kHighBits = RepeatByte('\x80');

/// How many ASCII bytes the text begins with, rounded down to whole words.
std::size_t AsciiWords(std::string_view bytes) {
    std::size_t length = 0;
    while (bytes.size() - length >= sizeof(Word) && (Load<Word>(bytes.data() + length) & kHighBits) == 0)
        length += sizeof(Word);
    return length;
}

}  // namespace

bool IsAscii(std::string_view bytes) noexcept {
    bytes.remove_prefix(AsciiWords(bytes));
    return bytes.size() < sizeof(Word) && (LoadShort(bytes) & kHighBits) == 0;
}

bool IsValidUtf8(std::string_view bytes) noexcept {
    while (true) {
        bytes.remove_prefix(AsciiWords(bytes));
        if (bytes.empty()) return true;
        const std::size_t length = SequenceLength(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
}

char32_t CharacterReader::FinishSequence(unsigned char lead) noexcept {
    const int following = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    char32_t character = lead & (0x3FU >> following);
    for (int i = 0; i < following; ++i)
        character = character << 6 | (static_cast<unsigned char>(*at_++) & 0x3FU);
    return character;
}

std::u32string Decode(std::string_view bytes, const CodePage& page) {
    std::u32string characters;
    characters.reserve(bytes.size());
    for (CharacterReader reader(bytes, page); !reader.AtEnd();) characters.push_back(reader.Next());
    return characters;
}

void AppendUtf8(std::string& out, char32_t character) {
    const auto append = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    const auto appendContinuation = [&](int shift) { append(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) return append(character);
    if (character < 0x800) {
        append(0xC0 | character >> 6);
        return appendContinuation(0);
    }
    if (character < 0x10000) {
        append(0xE0 | character >> 12);
    } else {
        append(0xF0 | character >> 18);
        appendContinuation(12);
    }
    appendContinuation(6);
    appendContinuation(0);
}

std::string EncodeUtf8(std::u32string_view characters) {
    std::string utf8;
    utf8.reserve(characters.size());
    for (const char32_t character : characters) AppendUtf8(utf8, character);
    return utf8;
}

std::string ToUtf8(std::string_view bytes, const CodePage& page) {
    if (IsValidUtf8(bytes)) return std::string(bytes);
    std::string utf8;
    for (const char byte : bytes) AppendUtf8(utf8, page.characters[static_cast<unsigned char>(byte)]);
    return utf8;
}

std::size_t CharacterCount(std::string_view bytes) noexcept {
    if (!IsValidUtf8(bytes)) return bytes.size();
    std::size_t count = 0;
    for (const char byte : bytes) count += !IsContinuation(static_cast<unsigned char>(byte));
    return count;
}

}  // namespace halvenmoor::text
