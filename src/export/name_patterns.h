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
/// This is an automaton over the bytes of the folded name: each state stands for the longest end of what was
/// read that begins a pattern, and knows the lowest type of which a pattern ends there.
class NamePatterns {
public:
    /// Patterns are trimmed of blanks. Throws Failure(TypeMismatch) for a type without a list.
    NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage);

    /// The lowest type of which a pattern is found in the name, 0 when there is none. An empty pattern is
    /// found in every name that is not empty.
    int NameMatchesAnyPattern(std::string_view name);

private:
    /// A state's number times the number of byte classes, shifted up by kTypeBits; below it the lowest type
    /// that is found on entering the state.
    using Entry = std::uint32_t;
    static constexpr int kTypeBits = 3;
    static constexpr Entry kTypeMask = (1u << kTypeBits) - 1;
    static constexpr Entry kNoType = kTypeMask;

    struct FoldedPattern {
        std::string text;
        Entry type;
    };

    void AssignByteClasses(const std::vector<FoldedPattern>& patterns);
    void BuildStates(const std::vector<FoldedPattern>& patterns);
    Entry LowestType(std::string_view foldedName) const;

    const text::CodePage& codePage_;
    /// Bytes that no pattern holds share class 0; a capital ASCII letter has the class of its small letter.
    std::array<std::uint8_t, 256> classOfByte_{};
    std::uint32_t classCount_ = 1;
    std::vector<Entry> entries_;
    Entry typeOfEmptyPattern_ = kNoType;
    std::string folded_;
};

}  // namespace halvenmoor
