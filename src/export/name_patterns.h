#pragma once

#include "base/text/codepage.h"
#include "core/camera_types.h"
#include "core/patterns.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// The texts that set a camera's type by its name, searched for all at once and ignoring case: an automaton
/// over the bytes of case-folded UTF-8, as in A. V. Aho and M. J. Corasick, "Efficient string matching: an
/// aid to bibliographic search", CACM 18(6), 1975.
class NamePatterns {
public:
    /// Patterns are trimmed of blanks. Throws Failure(TypeMismatch) for a type without a list. The code page
    /// must outlive the object.
    NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage);

    /// The lowest type of which a pattern is found in the name, 0 when there is none. An empty pattern is
    /// found in every name that is not empty.
    int NameMatchesAnyPattern(std::string_view name) const;

private:
    static constexpr std::uint8_t kNoType = kLastType + 1;
    using StateId = std::uint32_t;

    /// The longest beginning of a pattern that the bytes read so far end with. State 0 is the empty one.
    struct State {
        StateId failure = 0;         // the longest shorter beginning that these bytes end with
        StateId child = 0;           // the first beginning with one byte more, 0 for none
        StateId sibling = 0;         // the next child of the same state, 0 for none
        std::uint8_t byteClass = 0;  // of the last byte
    };

    void AddWindows(std::string_view folded);
    void Add(std::string_view folded, int type);
    void FillTable();
    StateId Next(StateId state, std::uint8_t byteClass) const;
    std::string_view FromFirstWindow(std::string_view name) const;

    const text::CodePage& codePage_;
    /// One class for each byte in a pattern, the same for both cases of a letter, and 0 for all other bytes.
    std::array<std::uint8_t, 256> classes_{};
    std::uint8_t classCount_ = 1;
    std::vector<State> states_{State()};
    /// By state: the lowest type of the patterns that its bytes end with.
    std::vector<std::uint8_t> types_{kNoType};
    /// By class and state: the next state. Only for so many states, which bounds its size.
    std::vector<StateId> table_;
    std::size_t tableStates_ = 0;
    /// By three bytes, five bits of each, which both cases of an ASCII letter share: whether a name with a
    /// pattern may have them. Most names have none, which takes a fifth off an export with 20 patterns.
    std::array<bool, 32 * 32 * 32> hasWindow_{};
    /// Whether every pattern has four ASCII bytes in a row, and so two windows.
    bool canSkip_ = true;
};

}  // namespace halvenmoor
