#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor::text {

/// The text without blanks and tabs at both ends.
std::string_view WithoutWhiteSpace(std::string_view text);

/// The section that a header line names; what follows the bracket is a remark.
std::optional<std::string_view> IniSection(std::string_view line);

// Values as the file of the user's options stores them, in UTF-8. What would be taken for something else is
// escaped by a backslash as in C, or the whole value stands in quotes. A value that begins with @ gets
// another one in front. Sections and keys are compared with their case; a section or key has no line end and
// no =.

/// The value of the last line with this key in the section.
std::optional<std::string> IniValue(std::string_view text, std::string_view section, std::string_view key);

/// Replaces that line, or adds one at the end of the section, which is added too if there is none. All other
/// lines stay as they are.
void SetIniValue(std::string& text, std::string_view section, std::string_view key, std::string_view value);

}  // namespace halvenmoor::text
