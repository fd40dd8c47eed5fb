#include "export/file_name_speed.h"

#include "base/text/compare.h"
#include "base/text/decode.h"
#include "base/text/numbers.h"
#include "base/text/trim.h"

#include <algorithm>
#include <cstddef>

namespace halvenmoor {

std::string_view StripUnitSuffix(std::string_view name, const PatternList& units,
                                 const text::CodePage& codePage) {
    for (const std::string& unit : Elements(units)) {
        if (const auto stripped = text::WithoutEnding(name, text::Trim(unit), codePage)) return *stripped;
    }
    return name;
}

std::string SpeedFromFileName(std::string_view name, const PatternList& units,
                              const platform::Locale& locale) {
    const std::u32string characters =
        text::Decode(StripUnitSuffix(name, units, locale.CodePage()), locale.CodePage());
    for (const std::size_t length : {std::size_t{3}, std::size_t{2}}) {
        const std::size_t start = characters.size() - std::min(length, characters.size());
        const double speed =
            text::LeadingNumber(text::EncodeUtf8(std::u32string_view(characters).substr(start)));
        if (speed > 0) return text::GeneralNumber(speed, locale.DecimalSeparator());
    }
    return "0";
}

}  // namespace halvenmoor
