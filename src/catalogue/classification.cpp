#include "catalogue/classification.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/wildcard.h"

#include <exception>
#include <string>
#include <vector>

namespace halvenmoor {

namespace {

/// The file names of the entries, folded once for all patterns.
std::vector<std::u32string> FoldedFileNames(const forms::ListBox& list, const text::CodePage& codePage) {
    std::vector<std::u32string> names;
    names.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int i = 0; i < list.ListCount(); ++i) {
        names.push_back(text::FoldedCharacters(list.List(i), codePage) + U".asc");
    }
    return names;
}

/// Which of the names match a pattern. A failure leaves out the pattern that failed and those behind it.
std::vector<bool> MatchAny(const std::vector<std::u32string>& names, const PatternList& patterns,
                           const text::CodePage& codePage) {
    std::vector<bool> matched(names.size(), false);
    try {
        for (const std::string& pattern : Elements(patterns)) {
            const text::WildcardPattern wildcard(pattern, codePage);
            for (std::size_t i = 0; i < names.size(); ++i) {
                if (!matched[i] && wildcard.MatchesFolded(names[i])) matched[i] = true;
            }
        }
    } catch (const std::exception&) {
        TraceFailure("match a pattern");
        // Neither a malformed pattern nor settings that could not be read are worth a message.
    }
    return matched;
}

}  // namespace

bool ClassifyFilesOfType(forms::ListBox& source, forms::ListBox& target, const PatternList& patterns,
                         const text::CodePage& codePage) {
    try {
        const std::vector<bool> matched = MatchAny(FoldedFileNames(source, codePage), patterns, codePage);
        return source.MoveItemsTo(target, [&matched](int i) { return matched[static_cast<std::size_t>(i)]; });
    } catch (const std::exception&) {
        TraceFailure("classify files");
        return false;  // a move is all or nothing
    }
}

}  // namespace halvenmoor
