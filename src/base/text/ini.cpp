#include "base/text/ini.h"

namespace halvenmoor::text {

std::string_view WithoutWhiteSpace(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<std::string_view> IniSection(std::string_view line) {
    if (line.empty() || line.front() != '[') return std::nullopt;
    const std::size_t closing = line.find(']');
    if (closing == std::string_view::npos) return std::nullopt;
    return WithoutWhiteSpace(line.substr(1, closing - 1));
}

}  // namespace halvenmoor::text
