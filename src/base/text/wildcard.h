#pragma once

#include "base/text/codepage.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace halvenmoor::text {

/// A pattern that a whole name either matches or not, ignoring case:
///
///     ?        any one character
///     *        any run of characters, also none
///     #        one digit, 0 to 9
///     [list]   one character of the list; a hyphen between two characters makes a range
///     [!list]  one character that is not in the list
///
/// Anything else stands for itself; so do ? * # [ within brackets, ] outside a list, a hyphen at either end
/// of a list and one directly behind a range. The list ends at the first ], so [] is an empty list, which
/// matches the empty text. [!] is a list of one exclamation mark. A range whose ends stand in the wrong order
/// holds nothing.
class WildcardPattern {
public:
    /// Never fails: a malformed pattern fails when a name is tested. The code page must outlive the pattern.
    WildcardPattern(std::string_view pattern, const CodePage& page);

    /// Throws Failure(BadPattern), whatever the name, if a [ of the pattern is not closed.
    bool Matches(std::string_view name) const;

    /// The same for a name given as FoldedCharacters, for callers that test one name against many patterns.
    bool MatchesFolded(std::u32string_view foldedName) const;

private:
    struct List {
        bool isNegated = false;
        std::vector<std::pair<char32_t, char32_t>> ranges;  // first and last character, folded

        bool Accepts(char32_t character) const noexcept;
    };

    using Piece = std::u32string;  // folded characters, and codes beyond Unicode for all other elements

    void Parse(std::u32string_view pattern);
    void AddList(std::u32string_view content);
    bool AcceptsAt(std::size_t position, const Piece& piece, std::u32string_view name) const noexcept;
    bool AcceptsSpecial(char32_t element, char32_t character) const noexcept;

    const CodePage* page_;
    std::vector<Piece> pieces_ = std::vector<Piece>(1);  // what stands between the stars
    std::vector<List> lists_;
    std::size_t minimumLength_ = 0;
    bool isMalformed_ = false;
};

}  // namespace halvenmoor::text
