#pragma once

#include "core/text/codepage.h"
#include "core/text/words.h"

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// Finds the places in a text where a pattern may begin, ignoring case and whatever the encoding.
///
/// It knows up to eight bytes of each pattern in all their spellings, from the first one on and from the
/// second one on, so that it has to look only at every other place. Of a byte it compares the five bits that
/// capital and small ASCII letters have in common: it may name a place where no pattern begins, but never
/// misses one.
class PatternFilter {
public:
    /// The patterns are folded and not empty.
    PatternFilter(std::span<const std::u32string> patterns, const text::CodePage& codePage);

    /// Calls visit(place) for each place where a pattern may begin, in no strict order.
    template <typename Visit>
    void ForEachPlace(std::string_view text, Visit visit) const {
        std::size_t place = 1;
        for (; place + sizeof(Word) <= text.size(); place += 2)
            VisitNear(text::Load<Word>(text.data() + place), place, visit);
        // Zeros behind the end disturb no part that ends there, since its mask leaves them out.
        for (; place + fewestBytes_ <= text.size(); place += 2)
            VisitNear(text::LoadShort(text.substr(place)), place, visit);
    }

private:
    using Word = text::Word;
    /// The masked bytes of all forms of a character.
    using Spellings = std::function<std::vector<std::string>(char32_t)>;

    static constexpr std::size_t kLongestKey = 5;
    static constexpr int kHashBits = 15;

    struct Part {
        Word bytes;
        Word mask;
        /// Of the part in its pattern, 0 or 1.
        std::size_t offset;
        /// The next part in the same bucket, 0 for none.
        std::uint32_t next;
    };

    static std::uint64_t Hash(Word bytes) { return bytes * 0x9E3779B97F4A7C15u; }
    std::size_t BucketOf(Word bytes) const { return Hash(bytes & bucketMask_) >> bucketShift_; }
    template <typename Visit>
    void VisitNear(Word bytes, std::size_t place, Visit& visit) const {
        if (!isKnown_[Hash(bytes & keyMask_) >> (64 - kHashBits)]) return;
        std::array<bool, 2> mayBegin{};
        for (std::uint32_t part = buckets_[BucketOf(bytes)]; part != 0; part = parts_[part].next)
            mayBegin[parts_[part].offset] |= (bytes & parts_[part].mask) == parts_[part].bytes;
        for (const std::size_t offset : {1u, 0u}) {
            if (mayBegin[offset]) visit(place - offset);
        }
    }
    void AddParts(const std::string& bytes, std::u32string_view rest, const Spellings& spellings);
    void AddPart(std::string_view bytes, std::size_t offset);

    /// How many bytes every part has.
    std::size_t fewestBytes_ = kLongestKey - 1;
    Word bucketMask_ = 0;
    /// Has one byte more, which a part of the fewest bytes leaves open.
    Word keyMask_ = 0;
    /// By hash of the key: whether there is such a part. Small enough for the fastest memory.
    std::array<bool, std::size_t{1} << kHashBits> isKnown_{};
    /// The first part with such bytes, 0 for none.
    std::vector<std::uint32_t> buckets_;
    int bucketShift_;
    std::vector<Part> parts_{1};
};

}  // namespace halvenmoor
