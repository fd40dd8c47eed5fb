#pragma once

#include "base/text/codepage.h"
#include "base/text/decode.h"
#include "core/camera_types.h"
#include "core/patterns.h"
#include "export/pattern_filter.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// The texts that set a camera's type by its name, prepared so that a name is searched for all of them at
/// once, ignoring case: a filter finds the places where they begin, and a tree of their characters follows
/// the longer ones to their ends.
class NamePatterns {
public:
    /// Patterns are trimmed of blanks. Throws Failure(TypeMismatch) for a type without a list. The code page
    /// must outlive the object.
    NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage);

    /// The lowest type of which a pattern is found in the name, 0 when there is none. An empty pattern is
    /// found in every name that is not empty.
    int NameMatchesAnyPattern(std::string_view name) const;

private:
    static constexpr int kNoType = PatternFilter::kNoType;

    static constexpr std::uint32_t kRoot = 0xFFFFFFFF;
    static constexpr std::uint32_t kNone = 0xFFFFFFFE;

    /// A node of the tree, with the character that leads to it from its parent. Nodes go by their places in
    /// the table.
    struct Node {
        /// kNone in a free place.
        std::uint32_t parent = kNone;
        char32_t character = 0;
        /// The lowest type of which a pattern ends here.
        int type = kNoType;
    };

    void Add(std::u32string_view foldedPattern, int type);
    /// The place of the child, which is free if there is no such child.
    std::uint32_t PlaceOfChild(std::uint32_t parent, char32_t character) const;
    int LowestTypeIn(std::string_view name) const;
    int LowestTypeAt(text::CharacterReader& text) const;

    const text::CodePage& codePage_;
    /// For short patterns and for long ones, which have longer keys.
    std::vector<PatternFilter> filters_;
    /// A hash table with a power of two places, half of them free.
    std::vector<Node> nodes_;
    int typeOfEmptyPattern_ = kNoType;
};

}  // namespace halvenmoor
