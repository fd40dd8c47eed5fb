#pragma once

#include <optional>
#include <string_view>

namespace halvenmoor::text {

/// The text without blanks and tabs at both ends.
std::string_view WithoutWhiteSpace(std::string_view text);

/// The section that a header line names; what follows the bracket is a remark.
std::optional<std::string_view> IniSection(std::string_view line);

}  // namespace halvenmoor::text
