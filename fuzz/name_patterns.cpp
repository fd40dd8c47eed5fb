// The patterns of camera names, lines up to the last one, against the name in that: the same as one search
// after the other.

#include "export/name_patterns.h"

#include "base/text/compare.h"
#include "base/text/trim.h"
#include "fuzz/property.h"

using namespace halvenmoor;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = fuzz::Text(data, size);
    TypeTable<PatternList> patterns;
    for (std::size_t type = kFirstType; type <= kLastType; ++type) patterns[type].emplace();
    for (std::size_t type = 0; rest.find('\n') != std::string_view::npos; type = (type + 1) % kLastType) {
        patterns[type + 1]->emplace_back(fuzz::TakeUpTo(rest, '\n'));
    }

    const text::CodePage& page = text::WindowsCodePage(1252);
    const std::string name = text::FoldedKey(rest, page);
    int expected = 0;
    for (int type = kLastType; type >= kFirstType; --type) {
        for (const std::string& pattern : *patterns[static_cast<std::size_t>(type)]) {
            const std::string key = text::FoldedKey(text::Trim(pattern), page);
            if (!name.empty() && name.find(key) != std::string::npos) expected = type;
        }
    }
    fuzz::Require(NamePatterns(patterns, page).NameMatchesAnyPattern(rest) == expected,
                  "the lowest type is found");
    return 0;
}
