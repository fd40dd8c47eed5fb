#pragma once

#include <array>
#include <string_view>

namespace halvenmoor {

/// The numbers of the camera types. Index 0 of every table by type holds nothing.
inline constexpr int kFirstType = 1;
inline constexpr int kLastType = 5;

template <class Value>
using TypeTable = std::array<Value, kLastType + 1>;

/// The types by name, as Settings.ini and the names of imported camera files have them.
inline constexpr TypeTable<std::string_view> kTypeWords{"",         "Fixed",   "RedSpeed",
                                                        "RedLight", "Section", "Mobile"};

}  // namespace halvenmoor
