#include "export/name_patterns.h"

#include "base/text/compare.h"
#include "base/text/lettercase.h"
#include "base/text/trim.h"

#include <algorithm>
#include <bit>

namespace halvenmoor {

NamePatterns::NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage)
    : codePage_(codePage) {
    std::vector<NamePattern> shortOnes;
    std::vector<NamePattern> longOnes;
    std::size_t characters = 0;
    for (int type = kFirstType; type <= kLastType; ++type) {
        for (const std::string& pattern : Elements(patterns[static_cast<std::size_t>(type)])) {
            std::u32string text = text::FoldedCharacters(text::Trim(pattern), codePage);
            if (text.empty()) {
                typeOfEmptyPattern_ = std::min(typeOfEmptyPattern_, type);
                continue;
            }
            characters += text.size();
            (text.size() < PatternFilter::kLongestKey ? shortOnes : longOnes)
                .push_back({std::move(text), type});
        }
    }
    nodes_.resize(std::bit_ceil(2 * characters + 1));
    for (const auto* group : {&shortOnes, &longOnes}) {
        if (group->empty()) continue;
        filters_.emplace_back(*group, codePage);
        for (const auto& [text, type] : *group) Add(text, type);
    }
}

void NamePatterns::Add(std::u32string_view foldedPattern, int type) {
    std::uint32_t node = kRoot;
    for (const char32_t character : foldedPattern) {
        const std::uint32_t child = PlaceOfChild(node, character);
        nodes_[child].parent = node;
        nodes_[child].character = character;
        node = child;
    }
    nodes_[node].type = std::min(nodes_[node].type, type);
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
    text::CharacterReader text(name, codePage_);
    for (const PatternFilter& filter : filters_) {
        filter.ForEachStart(name, [&](std::size_t place, PatternFilter::Start start) {
            lowest = std::min(lowest, start.type);
            if (start.goesOn && text.MoveTo(place)) lowest = std::min(lowest, LowestTypeAt(text));
        });
    }
    return lowest;
}

/// The lowest type of the patterns with which the text goes on.
int NamePatterns::LowestTypeAt(text::CharacterReader& text) const {
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
