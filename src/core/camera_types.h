#pragma once

#include <array>

namespace halvenmoor {

/// The camera types: 1 Fixed, 2 Red Speed, 3 Red Light, 4 Section, 5 Mobile. Index 0 of every table by type
/// holds nothing.
inline constexpr int kFirstType = 1;
inline constexpr int kLastType = 5;

template <class Value>
using TypeTable = std::array<Value, kLastType + 1>;

}  // namespace halvenmoor
