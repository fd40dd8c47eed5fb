#include "base/text/wildcard.h"

#include "base/failure.h"
#include "base/text/compare.h"

namespace halvenmoor::text {
namespace {

// Elements that are no plain character; anything from kFirstList on is a list.
constexpr char32_t kAnyCharacter = 0x110000;
constexpr char32_t kAnyDigit = 0x110001;
constexpr char32_t kFirstList = 0x110002;

}  // namespace

WildcardPattern::WildcardPattern(std::string_view pattern, const CodePage& page) : page_(&page) {
    Parse(FoldedCharacters(pattern, page));
    for (const Piece& piece : pieces_) minimumLength_ += piece.size();
}

void WildcardPattern::Parse(std::u32string_view pattern) {
    while (!pattern.empty()) {
        const char32_t character = pattern.front();
        pattern.remove_prefix(1);
        if (character == U'[') {
            const std::size_t end = pattern.find(U']');
            isMalformed_ = end == std::u32string_view::npos;
            if (isMalformed_) return;
            AddList(pattern.substr(0, end));
            pattern.remove_prefix(end + 1);
        } else if (character == U'*') {
            const bool isDoubled = pieces_.size() > 1 && pieces_.back().empty();
            if (!isDoubled) pieces_.emplace_back();
        } else {
            pieces_.back() += character == U'?' ? kAnyCharacter : character == U'#' ? kAnyDigit : character;
        }
    }
}

void WildcardPattern::AddList(std::u32string_view content) {
    if (content.empty()) return;
    List list;
    list.isNegated = content.size() > 1 && content.front() == U'!';
    if (list.isNegated) content.remove_prefix(1);
    while (!content.empty()) {
        const bool isRange = content.size() > 2 && content[1] == U'-';
        list.ranges.emplace_back(content[0], content[isRange ? 2 : 0]);
        content.remove_prefix(isRange ? 3 : 1);
    }
    pieces_.back() += kFirstList + static_cast<char32_t>(lists_.size());
    lists_.push_back(std::move(list));
}

bool WildcardPattern::Matches(std::string_view name) const {
    return MatchesFolded(FoldedCharacters(name, *page_));
}

bool WildcardPattern::MatchesFolded(std::u32string_view foldedName) const {
    if (isMalformed_) throw Failure(failure::BadPattern, "a [ in the pattern is not closed");
    if (foldedName.size() < minimumLength_) return false;
    const std::size_t lastStart = foldedName.size() - pieces_.back().size();
    if (pieces_.size() == 1 && lastStart != 0) return false;
    if (!AcceptsAt(0, pieces_.front(), foldedName)) return false;
    if (!AcceptsAt(lastStart, pieces_.back(), foldedName)) return false;

    // Between both ends each piece takes the first position that fits. A later one would leave fewer
    // characters for the pieces behind it, so there is never a reason to come back.
    std::size_t position = pieces_.front().size();
    for (std::size_t i = 1; i + 1 < pieces_.size(); ++i) {
        const std::size_t length = pieces_[i].size();
        while (position + length <= lastStart && !AcceptsAt(position, pieces_[i], foldedName)) ++position;
        position += length;
        if (position > lastStart) return false;
    }
    return true;
}

bool WildcardPattern::AcceptsAt(std::size_t position, const Piece& piece,
                                std::u32string_view name) const noexcept {
    for (const char32_t element : piece) {
        const char32_t character = name[position++];
        if (element != character && (element < kAnyCharacter || !AcceptsSpecial(element, character)))
            return false;
    }
    return true;
}

bool WildcardPattern::AcceptsSpecial(char32_t element, char32_t character) const noexcept {
    if (element == kAnyCharacter) return true;
    if (element == kAnyDigit) return character >= U'0' && character <= U'9';
    return lists_[element - kFirstList].Accepts(character);
}

bool WildcardPattern::List::Accepts(char32_t character) const noexcept {
    for (const auto& [first, last] : ranges) {
        if (character >= first && character <= last) return !isNegated;
    }
    return isNegated;
}

}  // namespace halvenmoor::text
