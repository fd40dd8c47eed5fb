#pragma once

#include <string_view>

namespace halvenmoor::text {

/// The text without leading blanks. Only code 32 is a blank here, a tab is not.
inline std::string_view TrimLeft(std::string_view text) noexcept {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    return text;
}

/// The text without blanks (code 32) at both ends.
inline std::string_view Trim(std::string_view text) noexcept {
    text = TrimLeft(text);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

/// The empty text for a line that begins with one of the ten comment characters, otherwise the line itself.
inline std::string_view StripComment(std::string_view line) noexcept {
    if (line.empty()) return line;
    switch (line.front()) {
        // clang-format off
        case '\\': case '/': case ':': case '"': case '<': case '>': case '|': case ';': case '!': case '#':
            return {};
        // clang-format on
        default:
            return line;
    }
}

}  // namespace halvenmoor::text
