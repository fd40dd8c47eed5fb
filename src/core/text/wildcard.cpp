#include "core/text/wildcard.h"

#include "core/failure.h"
#include "core/text/compare.h"

namespace halvenmoor::text {
namespace {

// Elements that are no plain character; anything from firstList on is a list.
constexpr char32_t anyCharacter = 0x110000;
constexpr char32_t anyRun = 0x110001;
constexpr char32_t anyDigit = 0x110002;
constexpr char32_t firstList = 0x110003;

}  // namespace

WildcardPattern::WildcardPattern(std::string_view pattern, const CodePage& page) : page_(&page) {
    Parse(FoldedCharacters(pattern, page));
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
            if (!elements_.ends_with(anyRun)) elements_.push_back(anyRun);
        } else {
            AddSingle(character == U'?' ? anyCharacter : character == U'#' ? anyDigit : character);
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
    AddSingle(firstList + static_cast<char32_t>(lists_.size()));
    lists_.push_back(std::move(list));
}

void WildcardPattern::AddSingle(char32_t element) {
    elements_.push_back(element);
    ++minimumLength_;
}

bool WildcardPattern::Matches(std::string_view name) const {
    return MatchesFolded(FoldedCharacters(name, *page_));
}

bool WildcardPattern::MatchesFolded(std::u32string_view foldedName) const {
    if (isMalformed_) throw Failure(failure::BadPattern, "a [ in the pattern is not closed");
    if (foldedName.size() < minimumLength_) return false;

    // A mismatch lengthens the run of the last star by one character. Earlier stars need no second look:
    // what stands between two stars matches best where it is first found.
    std::size_t element = 0;
    std::size_t position = 0;
    std::size_t behindStar = 0;  // 0 while there was no star
    std::size_t runEnd = 0;
    while (position < foldedName.size()) {
        if (element < elements_.size() && elements_[element] == anyRun) {
            behindStar = ++element;
            runEnd = position;
            if (behindStar == elements_.size()) return true;
        } else if (element < elements_.size() && Accepts(elements_[element], foldedName[position])) {
            ++element;
            ++position;
        } else if (behindStar != 0) {
            element = behindStar;
            position = ++runEnd;
        } else {
            return false;
        }
    }
    // The name is used up, and runs are never doubled: one star may be left, and nothing else.
    return element == elements_.size() || (element + 1 == elements_.size() && elements_[element] == anyRun);
}

bool WildcardPattern::Accepts(char32_t element, char32_t character) const noexcept {
    if (element < anyCharacter) return element == character;
    if (element == anyCharacter) return true;
    if (element == anyDigit) return character >= U'0' && character <= U'9';
    return lists_[element - firstList].Accepts(character);
}

bool WildcardPattern::List::Accepts(char32_t character) const noexcept {
    for (const auto& [first, last] : ranges) {
        if (character >= first && character <= last) return !isNegated;
    }
    return isNegated;
}

}  // namespace halvenmoor::text
