#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace halvenmoor::text {

// Bytes eight at a time, for what every byte of a million records goes through.

/// Eight bytes as a number, the first one in its lowest bits.
using Word = std::uint64_t;

/// As many bytes as the unsigned number has, the first one in its lowest bits.
template <typename Number>
Number Load(const char* bytes) noexcept {
    Number number = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&number, bytes, sizeof number);
    } else {
        for (std::size_t i = sizeof number; i-- > 0;)
            number = number << 8 | static_cast<unsigned char>(bytes[i]);
    }
    return number;
}

/// Sets eight bytes.
inline void Store(Word word, char* bytes) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(bytes, &word, sizeof word);
    } else {
        for (std::size_t i = 0; i < sizeof word; ++i) bytes[i] = static_cast<char>(word >> 8 * i);
    }
}

/// A text of at most eight bytes, with zeros behind it. From four bytes on, its first four and its last four
/// may overlap: shifted to where they belong, they have the same bits there, so both are in the word.
inline Word LoadShort(std::string_view text) noexcept {
    constexpr std::size_t kHalf = sizeof(std::uint32_t);
    if (text.size() >= kHalf) {
        const Word last = Load<std::uint32_t>(text.data() + text.size() - kHalf);
        return Load<std::uint32_t>(text.data()) | last << 8 * (text.size() - kHalf);
    }
    Word word = 0;
    for (std::size_t i = text.size(); i-- > 0;) word = word << 8 | static_cast<unsigned char>(text[i]);
    return word;
}

/// A word of which every byte is the same.
constexpr Word RepeatByte(char byte) noexcept {
    return 0x0101010101010101u * static_cast<unsigned char>(byte);
}

/// So many of a word's first bytes, at most eight, with zeros behind them.
constexpr Word FirstBytes(Word word, std::size_t count) noexcept {
    return count < sizeof word ? word & ((Word{1} << 8 * count) - 1) : word;
}

/// The high bit of each byte that is zero.
constexpr Word ZeroBytes(Word word) noexcept {
    constexpr Word kLowBits = RepeatByte(0x7F);
    return ~(((word & kLowBits) + kLowBits) | word | kLowBits);
}

/// The high bit of each byte that is this one.
constexpr Word BytesEqual(Word word, char byte) noexcept {
    return ZeroBytes(word ^ RepeatByte(byte));
}

}  // namespace halvenmoor::text
