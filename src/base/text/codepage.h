#pragma once

#include <array>
#include <string_view>

namespace halvenmoor::text {

/// A Windows single-byte code page. The 256 bytes stand for 256 different characters, so text maps both ways:
/// a byte that Windows leaves undefined is the control character of the same number below 0xA0, and the
/// private-use character U+F700 + byte from there on.
struct CodePage {
    int number;
    std::array<char32_t, 256> characters;
};

/// The code page of that number, 1250 to 1258; Windows-1252 for any other number. It lives as long as the
/// process.
const CodePage& WindowsCodePage(int number) noexcept;

/// The number of the code page that Windows uses for a language, given as "pl", "pl_PL.UTF-8", "sr-Latn-RS",
/// "sr_RS@latin" …; 1252 when the language has no page of its own.
int WindowsCodePageForLanguage(std::string_view languageTag) noexcept;

}  // namespace halvenmoor::text
