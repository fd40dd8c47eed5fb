#include "export/name_patterns.h"

#include "base/text/compare.h"
#include "base/text/decode.h"
#include "base/text/lettercase.h"
#include "base/text/trim.h"

#include <algorithm>

namespace halvenmoor {

NamePatterns::NamePatterns(const TypeTable<PatternList>& patterns, const text::CodePage& codePage)
    : codePage_(codePage) {
    for (int type = kFirstType; type <= kLastType; ++type)
        for (const std::string& pattern : Elements(patterns[static_cast<std::size_t>(type)]))
            Add(text::FoldedKey(text::Trim(pattern), codePage), type);
    std::copy_n(&classes_['a'], 26, &classes_['A']);
    FillTable();
}

/// Only every other window of a name is looked at, so two that overlap are needed of a pattern.
void NamePatterns::AddWindows(std::string_view folded) {
    while (folded.size() >= 4 && !text::IsAscii(folded.substr(0, 4))) folded.remove_prefix(1);
    canSkip_ = canSkip_ && folded.size() >= 4;
    std::size_t window = 0;
    for (std::size_t i = 0; canSkip_ && i < 4; ++i) {
        window = window << 5 | (folded[i] & 0x1F);
        if (i >= 2) hasWindow_[window % hasWindow_.size()] = true;
    }
}

void NamePatterns::Add(std::string_view folded, int type) {
    AddWindows(folded);
    StateId state = 0;
    for (const char byte : folded) {
        std::uint8_t& byteClass = classes_[static_cast<unsigned char>(byte)];
        if (byteClass == 0) byteClass = classCount_++;
        StateId child = states_[state].child;
        while (child != 0 && states_[child].byteClass != byteClass) child = states_[child].sibling;
        if (child == 0) {
            child = static_cast<StateId>(states_.size());
            states_.push_back({.sibling = states_[state].child, .byteClass = byteClass});
            states_[state].child = child;
            types_.push_back(kNoType);
        }
        state = child;
    }
    types_[state] = std::min(types_[state], static_cast<std::uint8_t>(type));
}

/// Also finds the failures, from shorter states to longer ones.
void NamePatterns::FillTable() {
    constexpr std::size_t kMaxSize = 128 * 1024;
    tableStates_ = std::min(states_.size(), kMaxSize / classCount_);
    table_.resize(classCount_ * tableStates_);
    std::vector<StateId> byLength{0};
    for (std::size_t i = 0; i < byLength.size(); ++i) {
        const StateId state = byLength[i];
        const StateId failure = states_[state].failure;
        for (std::uint8_t c = 0; c < classCount_ && state < tableStates_; ++c)
            table_[c * tableStates_ + state] = Next(failure, c);
        for (StateId child = states_[state].child; child != 0; child = states_[child].sibling) {
            State& longer = states_[child];
            if (state != 0) longer.failure = Next(failure, longer.byteClass);
            types_[child] = std::min(types_[child], types_[longer.failure]);
            if (state < tableStates_) table_[longer.byteClass * tableStates_ + state] = child;
            byLength.push_back(child);
        }
    }
}

NamePatterns::StateId NamePatterns::Next(StateId state, std::uint8_t byteClass) const {
    for (; state >= tableStates_; state = states_[state].failure) {
        for (StateId child = states_[state].child; child != 0; child = states_[child].sibling)
            if (states_[child].byteClass == byteClass) return child;
    }
    return table_[byteClass * tableStates_ + state];
}

int NamePatterns::NameMatchesAnyPattern(std::string_view name) const {
    const std::string_view rest = FromFirstWindow(name);
    if (rest.empty()) return 0;
    const StateId* const table = table_.data();
    const std::uint8_t* const types = types_.data();
    const std::size_t tableStates = tableStates_;
    StateId state = 0;
    std::uint8_t lowest = types[state];
    const auto read = [&](std::size_t byte) {
        const std::uint8_t c = classes_[byte];
        state = state < tableStates ? table[c * tableStates + state] : Next(state, c);
        lowest = std::min(lowest, types[state]);
    };
    for (text::CharacterReader reader(rest, codePage_); !reader.AtEnd() && lowest > kFirstType;) {
        const char32_t character = reader.Next();
        if (character < 0x80) {
            read(character);
        } else {
            const char32_t folded = text::FoldCase(character);
            for (const char byte : text::EncodeUtf8({&folded, 1})) read(static_cast<unsigned char>(byte));
        }
    }
    return lowest == kNoType ? 0 : lowest;
}

/// From the first window on, but all of a name beyond ASCII, whose patterns may begin before a window.
std::string_view NamePatterns::FromFirstWindow(std::string_view name) const {
    if (!canSkip_) return name;
    std::size_t window = 0;
    for (std::size_t i = 1; i < name.size(); i += 2) {
        for (const char byte : {name[i - 1], name[i]}) window = window << 5 | (byte & 0x1F);
        if (hasWindow_[window % hasWindow_.size()])
            return text::IsAscii(name) ? name.substr(i - std::min<std::size_t>(i, 3)) : name;
    }
    return {};
}

}  // namespace halvenmoor
