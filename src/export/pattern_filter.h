#pragma once

#include "base/text/codepage.h"
#include "base/text/words.h"
#include "core/camera_types.h"
#include "core/patterns.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// A text that sets the type of the cameras in whose name it is found.
struct NamePattern {
    std::u32string foldedText;
    int type;
};

/// Finds the places in a text where a pattern begins or may begin, ignoring case and whatever the encoding.
///
/// It knows up to eight bytes of each pattern in all their spellings. The bytes from the second one on are a
/// key to them as well as those from the first one on, so it has to look only at every other place. Of a byte
/// a key has the five bits that capital and small ASCII letters have in common.
class PatternFilter {
public:
    static constexpr int kNoType = kLastType + 1;
    /// In bytes. Patterns with fewer characters shorten the key for all.
    static constexpr std::size_t kLongestKey = 5;

    /// What patterns begin with.
    struct Start {
        /// The lowest type of those that end with it, kNoType if none does.
        int type = kNoType;
        /// Whether some go on, or cannot be told from other texts by these bytes alone.
        bool goesOn = false;
    };

    /// The patterns are not empty.
    PatternFilter(std::span<const NamePattern> patterns, const text::CodePage& codePage);

    /// Calls visit(place, start) for each place in the text with the start of a pattern, in no strict order.
    template <typename Visit>
    void ForEachStart(std::string_view text, Visit visit) const {
        std::size_t place = 1;
        const std::size_t pastWords = std::max(text.size(), sizeof(Word)) - sizeof(Word) + 1;
        for (; place < pastWords; place += 2)
            VisitNear(text::Load<Word>(text.data() + place), text, place, visit);
        for (; place + fewestBytes_ <= text.size(); place += 2)
            VisitNear(text::LoadShort(text.substr(place)), text, place, visit);
    }

private:
    using Word = text::Word;
    /// The masked bytes of all forms of a character.
    using Spellings = std::function<std::vector<std::string>(char32_t)>;

    static constexpr int kHashBits = 15;

    struct Entry {
        Word bytes;
        Word mask;
        Start start;
        /// Of the key in the pattern, 0 or 1.
        std::uint32_t offset;
        /// The next entry in the same bucket, 0 for none.
        std::uint32_t next;
    };

    static std::uint64_t Hash(Word key) { return key * 0x9E3779B97F4A7C15u; }
    template <typename Visit>
    void VisitNear(Word bytes, std::string_view text, std::size_t place, Visit& visit) const {
        if (!isKnown_[Hash(bytes & keyMask_) >> (64 - kHashBits)]) return;
        const Word fromOneBefore = bytes << 8 | static_cast<unsigned char>(text[place - 1]);
        for (std::uint32_t next = buckets_[BucketOf(bytes)]; next != 0;) {
            const Entry& entry = entries_[next];
            const Word found = entry.offset == 0 ? bytes : fromOneBefore;
            if ((found & entry.mask) == entry.bytes) visit(place - entry.offset, entry.start);
            next = entry.next;
        }
    }
    void AddSpellings(const std::string& bytes, std::u32string_view rest, int type,
                      const Spellings& spellings);
    void AddStart(std::string_view bytes, const Start& start);
    void AddEntry(Word key, const Entry& entry);
    /// Of a key, or of bytes that begin with one.
    std::size_t BucketOf(Word key) const {
        return Hash(text::FirstBytes(key & keyMask_, fewestBytes_)) >> bucketShift_;
    }

    /// How many bytes of a key every pattern has behind its first one.
    std::size_t fewestBytes_ = kLongestKey - 1;
    /// Has one byte more, which is open in the key of a pattern that has no more.
    Word keyMask_ = 0;
    /// By hash of the key: whether there may be an entry. Small enough for the fastest memory.
    std::array<bool, std::size_t{1} << kHashBits> isKnown_{};
    /// By hash of those bytes of the key that none leaves open: the first entry, 0 for none.
    std::vector<std::uint32_t> buckets_;
    int bucketShift_;
    std::vector<Entry> entries_{1};
};

}  // namespace halvenmoor
