#pragma once

namespace halvenmoor::text {

// Letter case by a table of one-to-one pairs of Latin, Greek and Cyrillic letters, the same under every
// locale. Characters without such a partner (ß, the Turkish İ and ı, digits …) stay as they are.

char32_t LowerCase(char32_t character) noexcept;
char32_t UpperCase(char32_t character) noexcept;

/// The character that stands for all letters that are equal when case is ignored: the small letter, and for
/// the final sigma the ordinary one.
inline char32_t FoldCase(char32_t character) noexcept {
    constexpr char32_t kSmallFromCapital = 'a' - 'A';
    if (character < 0x80) return character - 'A' < 26 ? character + kSmallFromCapital : character;
    return character == U'ς' ? U'σ' : LowerCase(character);
}

}  // namespace halvenmoor::text
