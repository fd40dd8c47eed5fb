#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace halvenmoor::fuzz {

/// What holds for every input. If it does not, the run ends, and the input is kept.
inline void Require(bool holds, const char* property) {
    if (holds) return;
    std::fprintf(stderr, "This does not hold: %s\n", property);
    std::abort();
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Takes the text up to the mark, and the mark, from the front of the rest.
inline std::string_view TakeUpTo(std::string_view& rest, char mark) {
    const std::string_view taken = rest.substr(0, rest.find(mark));
    rest.remove_prefix(taken.size() < rest.size() ? taken.size() + 1 : rest.size());
    return taken;
}

}  // namespace halvenmoor::fuzz
