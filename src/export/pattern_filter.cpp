#include "export/pattern_filter.h"

#include "core/text/decode.h"
#include "core/text/lettercase.h"

#include <algorithm>
#include <bit>
#include <set>

namespace halvenmoor {

namespace {

constexpr char kComparedBitsOfByte = 0x1F;
constexpr text::Word kComparedBits = text::RepeatByte(kComparedBitsOfByte);
constexpr char32_t kSigma = 0x3C3;
constexpr char32_t kFinalSigma = 0x3C2;

std::string Masked(std::string bytes) {
    for (char& byte : bytes) byte &= kComparedBitsOfByte;
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

PatternFilter::PatternFilter(std::span<const std::u32string> patterns, const text::CodePage& codePage)
    : bucketShift_(64 - static_cast<int>(std::bit_width(4 * patterns.size() + 1))) {
    buckets_.resize(std::size_t{1} << (64 - bucketShift_));
    // A character has one byte at least, and the second part of a pattern lacks the first one.
    for (const std::u32string& pattern : patterns) fewestBytes_ = std::min(fewestBytes_, pattern.size() - 1);
    bucketMask_ = text::FirstBytes(kComparedBits, fewestBytes_);
    keyMask_ = text::FirstBytes(kComparedBits, fewestBytes_ + 1);
    for (const std::u32string& pattern : patterns) {
        AddParts("", pattern, Utf8Spellings);
        AddParts("", pattern, [&](char32_t folded) { return CodePageSpellings(folded, codePage); });
    }
}

/// Adds the parts of all texts that begin with the bytes and go on with a spelling of the rest.
void PatternFilter::AddParts(const std::string& bytes, std::u32string_view rest, const Spellings& spellings) {
    if (bytes.size() > sizeof(Word) || rest.empty()) {
        AddPart(std::string_view(bytes).substr(0, sizeof(Word)), 0);
        AddPart(std::string_view(bytes).substr(1, sizeof(Word)), 1);
        return;
    }
    for (const std::string& spelling : spellings(rest.front()))
        AddParts(bytes + spelling, rest.substr(1), spellings);
}

void PatternFilter::AddPart(std::string_view bytes, std::size_t offset) {
    const Part part{text::LoadShort(bytes), text::FirstBytes(kComparedBits, bytes.size()), offset, 0};
    std::uint32_t* last = &buckets_[BucketOf(part.bytes)];
    for (; *last != 0; last = &parts_[*last].next) {
        const Part& other = parts_[*last];
        if (other.bytes == part.bytes && other.mask == part.mask && other.offset == offset) return;
    }
    *last = static_cast<std::uint32_t>(parts_.size());
    parts_.push_back(part);

    for (Word open = 0; open <= kComparedBitsOfByte; ++open) {
        const Word behind = bytes.size() == fewestBytes_ ? open << 8 * fewestBytes_ : 0;
        isKnown_[Hash((part.bytes | behind) & keyMask_) >> (64 - kHashBits)] = true;
    }
}

}  // namespace halvenmoor
