#pragma once

#include "base/text/codepage.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor::text {

/// Whether all bytes are below 0x80.
bool IsAscii(std::string_view bytes) noexcept;

/// Whether the bytes are well-formed UTF-8: shortest forms only, no surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view bytes) noexcept;

/// Reads a text character by character: valid UTF-8 as UTF-8, anything else byte by byte by the code page.
/// The bytes and the code page must outlive the reader.
class CharacterReader {
public:
    CharacterReader(std::string_view bytes, const CodePage& page) noexcept
        : bytes_(bytes), at_(bytes.data()), end_(bytes.data() + bytes.size()), page_(page) {}

    bool AtEnd() const noexcept { return at_ == end_; }

    /// The next character; only to be called before the end.
    char32_t Next() noexcept {
        const auto lead = static_cast<unsigned char>(*at_++);
        if (lead < 0x80) return lead;
        return IsUtf8() ? FinishSequence(lead) : page_.characters[lead];
    }

    /// Where the next character begins.
    const char* Position() const noexcept { return at_; }

private:
    /// Looked at only when it is needed, since most texts are ASCII.
    bool IsUtf8() noexcept {
        if (!isUtf8_) isUtf8_ = IsValidUtf8(bytes_);
        return *isUtf8_;
    }
    char32_t FinishSequence(unsigned char lead) noexcept;

    std::string_view bytes_;
    const char* at_;
    const char* end_;
    const CodePage& page_;
    std::optional<bool> isUtf8_;
};

/// The characters of a text: valid UTF-8 as UTF-8, anything else byte by byte by the code page.
std::u32string Decode(std::string_view bytes, const CodePage& page);

void AppendUtf8(std::string& out, char32_t character);

std::string EncodeUtf8(std::u32string_view characters);

/// A text as it is shown: its bytes if they are valid UTF-8, otherwise converted to UTF-8 by the code page.
std::string ToUtf8(std::string_view bytes, const CodePage& page);

/// How many characters a text has: code points if it is valid UTF-8, otherwise bytes.
std::size_t CharacterCount(std::string_view bytes) noexcept;

}  // namespace halvenmoor::text
