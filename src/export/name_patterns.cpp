#include "export/name_patterns.h"

#include "core/text/compare.h"
#include "core/text/decode.h"
#include "core/text/lettercase.h"
#include "core/text/trim.h"

#include <algorithm>

namespace halvenmoor {

namespace {

constexpr char32_t kFirstBeyondAscii = 0x80;
/// Behind the last letter that has a capital and a small form.
constexpr char32_t kPastLastLetter = 0x3000;

/// The UTF-8 forms of all characters beyond ASCII that are equal to the folded one when case is ignored.
std::vector<std::string> Spellings(char32_t folded) {
    std::vector<std::string> spellings{text::EncodeUtf8(std::u32string_view(&folded, 1))};
    for (char32_t letter = kFirstBeyondAscii; letter < kPastLastLetter; ++letter) {
        if (letter != folded && text::FoldCase(letter) == folded) {
            spellings.push_back(text::EncodeUtf8(std::u32string_view(&letter, 1)));
        }
    }
    return spellings;
}

}  // namespace

NamePatterns::NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage)
    : codePage_(codePage) {
    for (int type = kFirstType; type <= kLastType; ++type) {
        for (const std::string& pattern : Elements(patterns[static_cast<std::size_t>(type)])) {
            Add(text::FoldedCharacters(text::Trim(pattern), codePage), type);
        }
    }
    for (State& state : states_) state.next.resize(classCount_, 0);
    MarkStarts(0, 0, 0);
}

void NamePatterns::Add(std::u32string_view foldedPattern, int type) {
    std::uint32_t state = 0;
    for (const char32_t character : foldedPattern) state = StateBehind(state, character);
    states_[state].type = std::min(states_[state].type, type);
}

std::uint32_t NamePatterns::StateBehind(std::uint32_t state, char32_t character) {
    if (character < kFirstBeyondAscii) return LinkOrNew(state, static_cast<char>(character));
    hasPatternBeyondAscii_ = true;
    std::uint32_t end = 0;
    for (const std::string& spelling : Spellings(character)) {
        std::uint32_t last = state;
        for (const char byte : std::string_view(spelling).substr(0, spelling.size() - 1))
            last = LinkOrNew(last, byte);
        if (end == 0) end = LinkOrNew(last, spelling.back());
        Link(last, spelling.back()) = end;
    }
    return end;
}

std::uint32_t& NamePatterns::Link(std::uint32_t state, char byte) {
    std::uint8_t& byteClass = classOfByte_[static_cast<unsigned char>(byte)];
    if (byteClass == 0) byteClass = static_cast<std::uint8_t>(classCount_++);
    if (byte >= 'a' && byte <= 'z') classOfByte_[static_cast<unsigned char>(byte - 'a' + 'A')] = byteClass;
    std::vector<std::uint32_t>& next = states_[state].next;
    if (next.size() <= byteClass) next.resize(byteClass + std::size_t{1}, 0);
    return next[byteClass];
}

std::uint32_t NamePatterns::LinkOrNew(std::uint32_t state, char byte) {
    if (Link(state, byte) == 0) {
        Link(state, byte) = static_cast<std::uint32_t>(states_.size());
        states_.emplace_back();
    }
    return Link(state, byte);
}

/// Marks what patterns can start with, from a state that so many bytes lead to.
void NamePatterns::MarkStarts(std::uint32_t state, unsigned start, unsigned length) {
    const bool hasPatternEnded = state != 0 && states_[state].type != kNoType;
    if (length == kStartLength || hasPatternEnded) {
        const unsigned freeBits = kBitsOfByte * (kStartLength - length);
        std::fill_n(canStart_.begin() + (start << freeBits), 1u << freeBits, 1);
        return;
    }
    for (unsigned byte = 0; byte < classOfByte_.size(); ++byte) {
        const std::uint32_t next = states_[state].next[classOfByte_[byte]];
        if (next != 0) MarkStarts(next, WithByte(start, static_cast<char>(byte)), length + 1);
    }
}

/// The lowest type of the patterns that the text begins with.
int NamePatterns::LowestTypeAt(std::string_view text) const {
    int lowest = kNoType;
    std::uint32_t state = 0;
    for (const char byte : text) {
        state = states_[state].next[classOfByte_[static_cast<unsigned char>(byte)]];
        if (state == 0) break;
        lowest = std::min(lowest, states_[state].type);
    }
    return lowest;
}

int NamePatterns::LowestTypeIn(std::string_view text) const {
    int lowest = kNoType;
    unsigned bytes = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bytes = WithByte(bytes, text[i]);
        if (canStart_[StartOf(bytes)] == 0 || i + 1 < kStartLength) continue;
        lowest = std::min(lowest, LowestTypeAt(text.substr(i + 1 - kStartLength)));
    }
    // The last places have too few bytes for the table.
    for (std::size_t length = 1; length < kStartLength && length <= text.size(); ++length) {
        lowest = std::min(lowest, LowestTypeAt(text.substr(text.size() - length)));
    }
    return lowest;
}

int NamePatterns::NameMatchesAnyPattern(std::string_view name) {
    if (name.empty()) return 0;
    std::string_view utf8 = name;
    // Characters beyond ASCII, in whatever encoding, matter only if a pattern holds one.
    if (hasPatternBeyondAscii_ && !text::IsValidUtf8(name)) {
        folded_.clear();
        text::AppendFoldedKey(folded_, name, codePage_);
        utf8 = folded_;
    }
    const int typeOfEmptyPattern = states_[0].type;
    const int lowest = std::min(LowestTypeIn(utf8), typeOfEmptyPattern);
    return lowest == kNoType ? 0 : lowest;
}

}  // namespace halvenmoor
