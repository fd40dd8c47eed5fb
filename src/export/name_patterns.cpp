#include "export/name_patterns.h"

#include "core/text/compare.h"
#include "core/text/decode.h"
#include "core/text/trim.h"

#include <algorithm>

namespace halvenmoor {

NamePatterns::NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage)
    : codePage_(codePage) {
    std::vector<FoldedPattern> folded;
    for (int type = kFirstType; type <= kLastType; ++type) {
        for (const std::string& pattern : Elements(patterns[static_cast<std::size_t>(type)])) {
            folded.push_back({text::FoldedKey(text::Trim(pattern), codePage), static_cast<Entry>(type)});
        }
    }
    AssignByteClasses(folded);
    BuildStates(folded);
}

void NamePatterns::AssignByteClasses(const std::vector<FoldedPattern>& patterns) {
    for (const FoldedPattern& pattern : patterns) {
        for (const char character : pattern.text) {
            std::uint8_t& byteClass = classOfByte_[static_cast<unsigned char>(character)];
            if (byteClass == 0) byteClass = static_cast<std::uint8_t>(classCount_++);
        }
    }
    for (std::size_t capital = 'A'; capital <= 'Z'; ++capital) {
        classOfByte_[capital] = classOfByte_[capital - 'A' + 'a'];
    }
}

void NamePatterns::BuildStates(const std::vector<FoldedPattern>& patterns) {
    // First the tree of all patterns: state 0 is its root, and 0 as a child means none.
    std::vector<std::uint32_t> children(classCount_, 0);
    std::vector<Entry> types(1, kNoType);
    for (const FoldedPattern& pattern : patterns) {
        std::uint32_t state = 0;
        for (const char character : pattern.text) {
            const std::size_t link =
                state * classCount_ + classOfByte_[static_cast<unsigned char>(character)];
            if (children[link] == 0) {
                children[link] = static_cast<std::uint32_t>(types.size());
                types.push_back(kNoType);
                children.resize(children.size() + classCount_, 0);
            }
            state = children[link];
        }
        Entry& type = state == 0 ? typeOfEmptyPattern_ : types[state];
        type = std::min(type, pattern.type);
    }

    // Then, breadth first, every missing child becomes the child of the longest shorter end of the same text.
    std::vector<std::uint32_t> shorterEnd(types.size(), 0);
    std::vector<std::uint32_t> queue{0};
    for (std::size_t next = 0; next < queue.size(); ++next) {
        const std::uint32_t state = queue[next];
        for (std::uint32_t byteClass = 0; byteClass < classCount_; ++byteClass) {
            std::uint32_t& child = children[state * classCount_ + byteClass];
            const std::uint32_t fallback =
                state == 0 ? 0 : children[shorterEnd[state] * classCount_ + byteClass];
            if (child == 0) {
                child = fallback;
                continue;
            }
            shorterEnd[child] = fallback;
            types[child] = std::min(types[child], types[fallback]);
            queue.push_back(child);
        }
    }

    entries_.reserve(children.size());
    for (const std::uint32_t child : children) {
        entries_.push_back(child * classCount_ << kTypeBits | types[child]);
    }
}

NamePatterns::Entry NamePatterns::LowestType(std::string_view foldedName) const {
    Entry lowest = kNoType;
    Entry entry = 0;
    for (const char character : foldedName) {
        entry = entries_[(entry >> kTypeBits) + classOfByte_[static_cast<unsigned char>(character)]];
        lowest = std::min(lowest, entry & kTypeMask);
    }
    return lowest;
}

int NamePatterns::NameMatchesAnyPattern(std::string_view name) {
    if (name.empty()) return 0;
    std::string_view foldedName = name;
    if (!text::IsAscii(name)) {
        folded_.clear();
        text::AppendFoldedKey(folded_, name, codePage_);
        foldedName = folded_;
    }
    const Entry lowest = std::min(LowestType(foldedName), typeOfEmptyPattern_);
    return lowest == kNoType ? 0 : static_cast<int>(lowest);
}

}  // namespace halvenmoor
