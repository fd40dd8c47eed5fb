#include "export/name_patterns.h"

#include "core/text/compare.h"
#include "core/text/lettercase.h"
#include "core/text/trim.h"

#include <algorithm>
#include <bit>

namespace halvenmoor {

NamePatterns::NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage)
    : codePage_(codePage) {
    std::vector<std::u32string> texts;
    std::vector<int> types;
    std::size_t characters = 0;
    for (int type = kFirstType; type <= kLastType; ++type) {
        for (const std::string& pattern : Elements(patterns[static_cast<std::size_t>(type)])) {
            texts.push_back(text::FoldedCharacters(text::Trim(pattern), codePage));
            types.push_back(type);
            characters += texts.back().size();
        }
    }
    nodes_.resize(std::bit_ceil(2 * characters + 1));
    for (std::size_t i = 0; i < texts.size(); ++i) Add(texts[i], types[i]);
    std::erase(texts, U"");
    filter_.emplace(texts, codePage);
}

void NamePatterns::Add(std::u32string_view foldedPattern, int type) {
    int* typeOfEnd = &typeOfEmptyPattern_;
    std::uint32_t parent = kRoot;
    for (const char32_t character : foldedPattern) {
        const std::uint32_t child = PlaceOfChild(parent, character);
        nodes_[child].parent = parent;
        nodes_[child].character = character;
        typeOfEnd = &nodes_[child].type;
        parent = child;
    }
    *typeOfEnd = std::min(*typeOfEnd, type);
}

std::uint32_t NamePatterns::PlaceOfChild(std::uint32_t parent, char32_t character) const {
    const std::size_t mask = nodes_.size() - 1;
    std::size_t place = ((parent * 0x9E3779B1u) ^ (character * 0x85EBCA6Bu)) >> 7;
    for (place &= mask;; place = (place + 1) & mask) {
        const Node& node = nodes_[place];
        if (node.parent == kNone || (node.parent == parent && node.character == character))
            return static_cast<std::uint32_t>(place);
    }
}

int NamePatterns::NameMatchesAnyPattern(std::string_view name) const {
    if (name.empty()) return 0;
    const int lowest = std::min(typeOfEmptyPattern_, LowestTypeIn(name));
    return lowest == kNoType ? 0 : lowest;
}

int NamePatterns::LowestTypeIn(std::string_view name) const {
    int lowest = kNoType;
    std::optional<text::CharacterReader> whole;
    filter_->ForEachPlace(name, [&](std::size_t place) {
        if (!whole) whole.emplace(name, codePage_);
        if (const auto text = whole->SkipBytes(place)) lowest = std::min(lowest, LowestTypeAt(*text));
    });
    return lowest;
}

/// The lowest type of the patterns that the text begins with.
int NamePatterns::LowestTypeAt(text::CharacterReader text) const {
    int lowest = kNoType;
    std::uint32_t node = kRoot;
    while (!text.AtEnd()) {
        node = PlaceOfChild(node, text::FoldCase(text.Next()));
        if (nodes_[node].parent == kNone) break;
        lowest = std::min(lowest, nodes_[node].type);
    }
    return lowest;
}

}  // namespace halvenmoor
