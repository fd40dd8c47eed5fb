#pragma once

#include "base/failure.h"
#include "base/text/numbers.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace halvenmoor {

/// Positions in a list are 16-bit numbers.
inline constexpr std::size_t kMaxPatterns = 32767;

/// Patterns in their order, possibly none; without a value when the settings file could not be read.
using PatternList = std::optional<std::vector<std::string>>;

/// Whether there is no list. A list without elements is one.
inline bool IsArrayEmpty(const PatternList& list) {
    return !list.has_value();
}

/// The patterns for a walk from the first to the last. Throws Failure(TypeMismatch) when there is no list,
/// and Failure(Overflow) for more than kMaxPatterns.
inline const std::vector<std::string>& Elements(const PatternList& list) {
    if (IsArrayEmpty(list)) throw Failure(failure::TypeMismatch, "Type mismatch");
    if (list->size() > kMaxPatterns) text::ThrowOverflow();
    return *list;
}

}  // namespace halvenmoor
