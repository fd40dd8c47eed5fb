// A wildcard pattern, up to the first line feed, against the name behind it: the same as a slow matcher.

#include "base/text/wildcard.h"

#include "base/text/compare.h"
#include "fuzz/property.h"
#include "tools/file_helpers.h"

#include <optional>
#include <string>
#include <vector>

using namespace halvenmoor;
using fuzz::Require;

namespace {

/// Whether the list between brackets takes the character.
bool ListTakes(std::u32string_view list, char32_t character) {
    const bool isNegated = list.size() > 1 && list[0] == U'!';
    if (isNegated) list.remove_prefix(1);
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool isRange = i + 2 < list.size() && list[i + 1] == U'-';
        if (isRange ? character >= list[i] && character <= list[i + 2] : character == list[i])
            return !isNegated;
        if (isRange) i += 2;
    }
    return isNegated;
}

/// Walks over the ends of all beginnings of the name that the pattern's beginning matches, element by
/// element. Nothing when a list is not closed.
std::optional<bool> SlowlyMatches(std::u32string_view pattern, std::u32string_view name) {
    std::vector<bool> reached(name.size() + 1);
    reached[0] = true;
    while (!pattern.empty()) {
        const char32_t element = pattern.front();
        const std::size_t closing = element == U'[' ? pattern.find(U']') : 0;
        if (closing == std::u32string_view::npos) return std::nullopt;
        const std::u32string_view list = element == U'[' ? pattern.substr(1, closing - 1) : U"";
        pattern.remove_prefix(closing + 1);
        if (element == U'[' && list.empty()) continue;
        std::vector<bool> next(name.size() + 1);
        for (std::size_t i = 0; i <= name.size(); ++i) {
            if (element == U'*') {
                next[i] = reached[i] || (i > 0 && next[i - 1]);
            } else if (i > 0 && reached[i - 1]) {
                const char32_t character = name[i - 1];
                next[i] = element == U'?'   ? true
                          : element == U'#' ? character >= U'0' && character <= U'9'
                          : element == U'[' ? ListTakes(list, character)
                                            : character == element;
            }
        }
        reached = next;
    }
    return reached.back();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view name = fuzz::Text(data, size);
    const std::string_view pattern = fuzz::TakeUpTo(name, '\n');
    const text::CodePage& page = text::WindowsCodePage(1252);
    const text::WildcardPattern wildcard(pattern, page);
    const std::optional<bool> expected =
        SlowlyMatches(text::FoldedCharacters(pattern, page), text::FoldedCharacters(name, page));
    bool matches = false;
    const int number = FailureNumber([&] { matches = wildcard.Matches(name); });
    Require(number == (expected ? 0 : failure::BadPattern),
            "a list that is not closed fails, and nothing else");
    Require(!expected || matches == *expected, "the pattern matches as in the slow way");
    return 0;
}
