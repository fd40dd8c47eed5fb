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

/// The report on the last run. Its texts are fetched when it is made, in the words of the export mode and the
/// language of that moment.
class ResultsReport {
public:
    explicit ResultsReport(const modExport& exports);

    /// Hands over the lines one by one, in UTF-8. Throws Failure(Overflow) when a total has no 32-bit number.
    void Write(const std::function<void(const std::string&)>& writeLine) const;

private:
    std::string Numbers(std::int32_t files, std::int32_t cameras, std::int32_t skipped) const;

    const modExport& exports_;
    std::string title_;
    TypeTable<std::string> typeLabels_;
    std::string totalsLabel_;
    // The headings of the three columns.
    std::string files_;
    std::string cameras_;
    std::string skipped_;
};

}  // namespace halvenmoor
