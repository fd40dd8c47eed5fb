#include "export/name_patterns.h"

#include "core/text/compare.h"
#include "core/text/decode.h"
#include "core/text/lettercase.h"
#include "core/text/trim.h"

#include <algorithm>

namespace halvenmoor {

namespace {

constexpr char32_t kFirstBeyondAscii = 0x80;
constexpr char32_t kSigma = 0x3C3;
constexpr char32_t kFinalSigma = 0x3C2;

/// The UTF-8 forms of all characters beyond ASCII that are equal to the folded one when case is ignored.
std::vector<std::string> Spellings(char32_t folded) {
    std::vector<std::string> spellings;
    for (const char32_t letter : {folded, text::UpperCase(folded), folded == kSigma ? kFinalSigma : folded}) {
        spellings.push_back(text::EncodeUtf8(std::u32string_view(&letter, 1)));
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
    isNear_.resize(std::size_t{1} << (kBitsOfByte * kKeyLength));
    MarkKeys(0, 0, 0);
    for (const std::uint32_t behindFirstByte : states_[0].next) {
        if (behindFirstByte != 0) MarkKeys(behindFirstByte, 0, 0);
    }
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

/// Marks what can follow a state, when bytes with that key and of that number already have.
void NamePatterns::MarkKeys(std::uint32_t state, unsigned key, std::size_t length) {
    const bool hasPatternEnded = state != 0 && states_[state].type != kNoType;
    if (length == kKeyLength || hasPatternEnded) {
        const std::size_t freeBits = kBitsOfByte * (kKeyLength - length);
        std::fill_n(isNear_.begin() + (key << freeBits), 1u << freeBits, 1);
        return;
    }
    for (unsigned byte = 0; byte < classOfByte_.size(); ++byte) {
        const std::uint32_t next = states_[state].next[classOfByte_[byte]];
        if (next != 0) MarkKeys(next, WithByte(key, static_cast<char>(byte)), length + 1);
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
    std::size_t place = 1;
    for (; place + kKeyLength <= text.size(); place += 2) {
        if (isNear_[KeyAt(text.data() + place)] == 0) continue;
        lowest = std::min({lowest, LowestTypeAt(text.substr(place - 1)), LowestTypeAt(text.substr(place))});
    }
    // The last places have too few bytes for a key.
    for (--place; place < text.size(); ++place) lowest = std::min(lowest, LowestTypeAt(text.substr(place)));
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
