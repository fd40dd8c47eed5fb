#include "base/text/ini.h"

#include "base/text/decode.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace halvenmoor::text {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";
// What a letter behind a backslash stands for.
constexpr std::string_view kEscaped = "\a\b\f\n\r\t\v\"\\";
constexpr std::string_view kEscapeLetters = "abfnrtv\"\\";

/// Appends the character whose number a text begins with. Returns how many digits the number has.
std::size_t AppendHexCharacter(std::string& out, std::string_view text) {
    constexpr std::size_t kMaxDigits = 4;
    const std::string_view digits = text.substr(0, kMaxDigits);
    unsigned number = 0;
    const char* const end = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    if (end != digits.data()) AppendUtf8(out, number);
    return static_cast<std::size_t>(end - digits.data());
}

std::string Unescaped(std::string_view stored) {
    std::string value;
    for (std::size_t i = 0; i < stored.size(); ++i) {
        if (stored[i] == '"') continue;
        if (stored[i] != '\\' || i + 1 == stored.size()) {
            value += stored[i];
            continue;
        }
        const char letter = stored[++i];
        const std::size_t known = kEscapeLetters.find(letter);
        if (known != std::string_view::npos) value += kEscaped[known];
        if (letter == 'x') i += AppendHexCharacter(value, stored.substr(i + 1));
    }
    if (value.starts_with("@@")) value.erase(0, 1);
    return value;
}

std::string Escaped(std::string_view value) {
    std::string stored(value.starts_with('@') ? "@" : "");
    bool isHex = false;
    for (const char c : value) {
        const std::size_t known = kEscaped.find(c);
        const bool isControl = static_cast<unsigned char>(c) < ' ';
        // A digit behind such a number would be taken for one of its own.
        isHex = (isControl && known == std::string_view::npos) ||
                (isHex && kHexDigits.find(c) != std::string_view::npos);
        if (isHex) {
            const auto number = static_cast<unsigned char>(c);
            stored += {'\\', 'x', kHexDigits[number / 16], kHexDigits[number % 16]};
        } else if (known != std::string_view::npos) {
            stored += {'\\', kEscapeLetters[known]};
        } else {
            stored += c;
        }
    }
    const bool needsQuotes = value.starts_with(' ') || value.ends_with(' ') ||
                             value.find_first_of(",;=") != std::string_view::npos;
    return needsQuotes ? '"' + stored + '"' : stored;
}

/// Where a key is in a text, as offsets.
struct Found {
    std::optional<std::size_t> sectionEnd;  // behind its last line that is not empty
    std::optional<std::size_t> lineBegin;
    std::size_t lineSize = 0;  // without its end
    std::string_view stored;
};

Found Find(std::string_view text, std::string_view section, std::string_view key) {
    Found found;
    bool isInSection = false;
    std::size_t begin = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        std::string_view whole = text.substr(begin, end - begin);
        if (whole.ends_with('\r')) whole.remove_suffix(1);
        const std::string_view line = WithoutWhiteSpace(whole);
        if (const auto name = IniSection(line)) isInSection = *name == section;
        if (isInSection && !line.empty()) found.sectionEnd = end;
        const std::size_t equals = line.find('=');
        const bool hasKey =
            equals != std::string_view::npos && WithoutWhiteSpace(line.substr(0, equals)) == key;
        if (isInSection && hasKey) {
            found.lineBegin = begin;
            found.lineSize = whole.size();
            found.stored = WithoutWhiteSpace(line.substr(equals + 1));
        }
        begin = end + 1;
    }
    return found;
}

}  // namespace

std::string_view WithoutWhiteSpace(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<std::string_view> IniSection(std::string_view line) {
    if (line.empty() || line.front() != '[') return std::nullopt;
    const std::size_t closing = line.find(']');
    if (closing == std::string_view::npos) return std::nullopt;
    return WithoutWhiteSpace(line.substr(1, closing - 1));
}

std::optional<std::string> IniValue(std::string_view text, std::string_view section, std::string_view key) {
    const Found found = Find(text, section, key);
    return found.lineBegin ? std::optional(Unescaped(found.stored)) : std::nullopt;
}

void SetIniValue(std::string& text, std::string_view section, std::string_view key, std::string_view value) {
    const Found found = Find(text, section, key);
    const std::string line = std::string(key) + '=' + Escaped(value);
    if (found.lineBegin) {
        text.replace(*found.lineBegin, found.lineSize, line);
    } else if (found.sectionEnd) {
        text.insert(*found.sectionEnd, '\n' + line);
    } else {
        if (!text.empty()) text += text.back() == '\n' ? "\n" : "\n\n";
        text.append("[").append(section).append("]\n").append(line) += '\n';
    }
}

}  // namespace halvenmoor::text
