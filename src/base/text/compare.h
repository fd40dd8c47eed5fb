#pragma once

#include "base/text/codepage.h"

#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor::text {

// Comparing without regard to case. Each text is decoded by itself (see decode.h), so a text in UTF-8 equals
// the same text in the code page.

/// The case-folded characters of a text as UTF-8. Keys are equal when the texts are equal ignoring case, they
/// sort by bytes as the folded characters sort, and a key found within a key is a text found within a text.
std::string FoldedKey(std::string_view bytes, const CodePage& page);

/// Appends the folded key to `out`, without any other allocation. The text must not lie in `out` itself.
void AppendFoldedKey(std::string& out, std::string_view bytes, const CodePage& page);

/// Keys that sort by bytes as people expect it of the texts: by their base letters, so that "äpfel" stands
/// beside "apfel", and where these are equal by their case-folded characters. Marks written as characters of
/// their own count for the latter only.
std::string CollationKey(std::string_view bytes, const CodePage& page);

/// The case-folded characters of a text.
std::u32string FoldedCharacters(std::string_view bytes, const CodePage& page);

bool EqualIgnoringCase(std::string_view a, std::string_view b, const CodePage& page) noexcept;

/// The text without its ending; nothing when it ends otherwise. An empty ending is found in every text.
std::optional<std::string_view> WithoutEnding(std::string_view bytes, std::string_view ending,
                                              const CodePage& page) noexcept;

/// For fixed ASCII words such as headers and extensions: letters other than A to Z only equal themselves.
bool EqualIgnoringAsciiCase(std::string_view text, std::string_view asciiWord) noexcept;
bool StartsWithIgnoringAsciiCase(std::string_view text, std::string_view asciiPrefix) noexcept;
bool EndsWithIgnoringAsciiCase(std::string_view text, std::string_view asciiEnding) noexcept;

/// A UTF-8 text with all letters small, except the first one and each that stands directly behind a blank,
/// tab, line feed, vertical tab, form feed, carriage return or NUL. Invalid UTF-8 reads as Windows-1252.
std::string ProperCase(std::string_view utf8);

}  // namespace halvenmoor::text
