#pragma once

namespace halvenmoor::text {

// Letter case and base letters by one-to-one tables of Latin, Greek and Cyrillic letters, the same under
// every locale. Characters without such a partner (digits; for case also ß and the Turkish İ and ı) stay as
// they are.

char32_t LowerCase(char32_t character) noexcept;
char32_t UpperCase(char32_t character) noexcept;

/// The character that stands for all letters that are equal when case is ignored: the small letter, and for
/// the final sigma the ordinary one.
inline char32_t FoldCase(char32_t character) noexcept {
    constexpr char32_t kSmallFromCapital = 'a' - 'A';
    if (character < 0x80) return character - 'A' < 26 ? character + kSmallFromCapital : character;
    return character == U'ς' ? U'σ' : LowerCase(character);
}

/// The letter beside which a case-folded one is sorted: its letter without marks, or its neighbour in the
/// alphabet, such as o for ö, l for ł and д for ђ.
char32_t BaseLetter(char32_t folded) noexcept;

}  // namespace halvenmoor::text
