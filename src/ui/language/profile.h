#pragma once

#include "base/text/codepage.h"
#include "platform/files.h"

#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor {

/// The longest value of a profile file, in characters.
inline constexpr std::size_t kMaxProfileValue = 254;

/// One value of a private-profile file: a section header in brackets on a line of its own, then lines of key,
/// equals sign and value. Letter case of section and key does not matter, blanks and tabs around them and the
/// value are cut, the first section of the name and the first key in it win. The value is UTF-8, cut to
/// kMaxProfileValue. Nothing when file, section or key is missing or cannot be read.
std::optional<std::string> ReadProfileValue(platform::FileSystem& fileSystem, std::string_view path,
                                            std::string_view section, std::string_view key,
                                            const text::CodePage& codePage);

}  // namespace halvenmoor
