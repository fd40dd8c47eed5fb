#pragma once

#include "core/patterns.h"
#include "platform/services.h"

#include <string>
#include <string_view>

namespace halvenmoor {

/// The name without the first unit of the list that it ends in, ignoring case.
std::string_view StripUnitSuffix(std::string_view name, const PatternList& units,
                                 const text::CodePage& codePage);

/// The speed at the end of a camera file's name (without extension), behind which a unit may stand; "0" when
/// there is none.
std::string SpeedFromFileName(std::string_view name, const PatternList& units,
                              const platform::Locale& locale);

}  // namespace halvenmoor
