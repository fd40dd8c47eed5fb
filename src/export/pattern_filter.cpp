#include "export/pattern_filter.h"

#include "base/text/decode.h"
#include "base/text/lettercase.h"

#include <algorithm>
#include <bit>
#include <set>

namespace halvenmoor {

namespace {

constexpr char kBitsOfKey = 0x1F;
constexpr char32_t kSigma = 0x3C3;
constexpr char32_t kFinalSigma = 0x3C2;

constexpr bool IsAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

/// The bits of a pattern's byte that are compared: all, but for an ASCII letter's case, and for what may
/// differ with the case beyond ASCII.
constexpr char ComparedBits(char byte) {
    if (!IsAscii(byte)) return '\x80' | kBitsOfKey;
    const char capital = byte & '\xDF';
    return capital >= 'A' && capital <= 'Z' ? '\xDF' : '\xFF';
}

/// Bytes of which only the compared bits are left have the same ones again.
std::string Masked(std::string bytes) {
    for (char& byte : bytes) byte &= ComparedBits(byte);
    return bytes;
}

std::vector<std::string> Utf8Spellings(char32_t folded) {
    std::set<std::string> spellings;
    for (const char32_t letter : {folded, text::UpperCase(folded), folded == kSigma ? kFinalSigma : folded})
        spellings.insert(Masked(text::EncodeUtf8({&letter, 1})));
    return {spellings.begin(), spellings.end()};
}

std::vector<std::string> CodePageSpellings(char32_t folded, const text::CodePage& codePage) {
    std::set<std::string> spellings;
    for (std::size_t byte = 0; byte < codePage.characters.size(); ++byte) {
        if (text::FoldCase(codePage.characters[byte]) == folded)
            spellings.insert(Masked(std::string(1, static_cast<char>(byte))));
    }
    return {spellings.begin(), spellings.end()};
}

}  // namespace

PatternFilter::PatternFilter(std::span<const NamePattern> patterns, const text::CodePage& codePage)
    : bucketShift_(64 - static_cast<int>(std::bit_width(4 * patterns.size() + 1))) {
    buckets_.resize(std::size_t{1} << (64 - bucketShift_));
    // A character has one byte at least.
    for (const NamePattern& pattern : patterns)
        fewestBytes_ = std::min(fewestBytes_, pattern.foldedText.size() - 1);
    keyMask_ = text::FirstBytes(text::RepeatByte(kBitsOfKey), fewestBytes_ + 1);
    for (const auto& [text, type] : patterns) {
        AddSpellings("", text, type, Utf8Spellings);
        AddSpellings("", text, type, [&](char32_t folded) { return CodePageSpellings(folded, codePage); });
    }
}

/// Adds the starts of all texts that begin with the bytes and go on with a spelling of the rest.
void PatternFilter::AddSpellings(const std::string& bytes, std::u32string_view rest, int type,
                                 const Spellings& spellings) {
    if (bytes.size() > sizeof(Word))
        return AddStart(std::string_view(bytes).substr(0, sizeof(Word)), {.goesOn = true});
    if (!rest.empty()) {
        for (const std::string& spelling : spellings(rest.front()))
            AddSpellings(bytes + spelling, rest.substr(1), type, spellings);
        return;
    }
    // Zeros are also found behind the end of a text.
    const bool isExact =
        std::all_of(bytes.begin(), bytes.end(), [](char byte) { return IsAscii(byte) && byte != 0; });
    AddStart(bytes, isExact ? Start{.type = type} : Start{.goesOn = true});
}

void PatternFilter::AddStart(std::string_view bytes, const Start& start) {
    std::string mask;
    for (const char byte : bytes) mask += ComparedBits(byte);
    for (const std::uint32_t offset : {0u, 1u}) {
        const Entry entry{text::LoadShort(bytes), text::LoadShort(mask), start, offset, 0};
        const Word key = entry.bytes >> 8 * offset & keyMask_;
        AddEntry(key, entry);
        const bool isOpen = bytes.size() - offset == fewestBytes_;
        for (Word open = 0; open <= (isOpen ? kBitsOfKey : 0); ++open)
            isKnown_[Hash(key | open << 8 * fewestBytes_) >> (64 - kHashBits)] = true;
    }
}

void PatternFilter::AddEntry(Word key, const Entry& entry) {
    std::uint32_t* last = &buckets_[BucketOf(key)];
    for (; *last != 0; last = &entries_[*last].next) {
        Entry& other = entries_[*last];
        if (other.bytes != entry.bytes || other.mask != entry.mask || other.offset != entry.offset) continue;
        other.start.type = std::min(other.start.type, entry.start.type);
        other.start.goesOn |= entry.start.goesOn;
        return;
    }
    *last = static_cast<std::uint32_t>(entries_.size());
    entries_.push_back(entry);
}

}  // namespace halvenmoor
