#pragma once

#include "core/patterns.h"
#include "core/text/codepage.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// The texts that set a camera's type by its name, prepared so that one pass over a name looks for all of
/// them at once, ignoring case.
///
/// The patterns stand in a tree of bytes in which all spellings of a letter, capital or small, lead to the
/// same state. A table tells by three bytes whether they can be the first bytes of a pattern, or those behind
/// its first one; asking it at every other place of a name is enough to find where the tree has to be
/// entered.
class NamePatterns {
public:
    /// Patterns are trimmed of blanks. Throws Failure(TypeMismatch) for a type without a list. The code page
    /// must outlive the object.
    NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage);

    /// The lowest type of which a pattern is found in the name, 0 when there is none. An empty pattern is
    /// found in every name that is not empty.
    int NameMatchesAnyPattern(std::string_view name);

private:
    static constexpr int kNoType = kLastType + 1;
    /// Of each byte the table uses five bits, which capital and small ASCII letters have in common.
    static constexpr unsigned kBitsOfByte = 5;
    static constexpr std::size_t kKeyLength = 3;

    struct State {
        /// The lowest type of which a pattern ends here.
        int type = kNoType;
        /// By byte class; 0 for none, since no state leads back to the root.
        std::vector<std::uint32_t> next;
    };

    static unsigned WithByte(unsigned key, char byte) {
        return key << kBitsOfByte | (static_cast<unsigned char>(byte) & ((1u << kBitsOfByte) - 1));
    }
    static unsigned KeyAt(const char* bytes) {
        return WithByte(WithByte(WithByte(0, bytes[0]), bytes[1]), bytes[2]);
    }

    void Add(std::u32string_view foldedPattern, int type);
    std::uint32_t StateBehind(std::uint32_t state, char32_t character);
    std::uint32_t& Link(std::uint32_t state, char byte);
    std::uint32_t LinkOrNew(std::uint32_t state, char byte);
    void MarkKeys(std::uint32_t state, unsigned key, std::size_t length);
    int LowestTypeAt(std::string_view text) const;
    int LowestTypeIn(std::string_view text) const;

    const text::CodePage& codePage_;
    /// Bytes that no pattern holds share class 0; a capital ASCII letter has the class of its small letter.
    std::array<std::uint8_t, 256> classOfByte_{};
    std::size_t classCount_ = 1;
    std::vector<State> states_{1};
    /// By key: whether a pattern may be near.
    std::vector<char> isNear_;
    bool hasPatternBeyondAscii_ = false;
    std::string folded_;
};

}  // namespace halvenmoor
