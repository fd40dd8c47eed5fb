#pragma once

#include "export/modExport.h"

#include <functional>
#include <string>
#include <string_view>

namespace halvenmoor {

// The results file: 12 lines with rules, a heading, one line a type and the totals, as wide as the texts of
// the language need. Widths and lengths count characters.

/// The text, dots, and a colon: width characters in all.
std::string DotLeader(std::string_view text, int width);
/// The text right-aligned in width + 2 characters; a longer one keeps two blanks in front of it.
std::string ColumnHeading(std::string_view text, int width);
/// The text at the right end of exactly width characters; a longer one is cut.
std::string RightAlign(std::string_view text, int width);

/// Hands over the lines of the results file, one by one and in UTF-8, for the counters of the last run.
void WriteResults(const modExport& exports, const std::function<void(const std::string&)>& writeLine);

}  // namespace halvenmoor
