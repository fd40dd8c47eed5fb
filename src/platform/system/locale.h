#pragma once

#include "platform/services.h"

#include <string>
#include <string_view>

namespace halvenmoor::system {

/// Regional settings of a system whose own texts are UTF-8.
class SystemLocale : public platform::Locale {
public:
    /// A language such as "de_DE.UTF-8", and one character in UTF-8.
    SystemLocale(std::string_view languageTag, std::string decimalSeparator);

    /// The settings that the environment asks for; the locale of the C library is left alone.
    static SystemLocale FromEnvironment();

    const text::CodePage& CodePage() const override { return page_; }
    std::string DecimalSeparator() const override { return decimalSeparator_; }
    std::string ToFileText(std::string_view utf8) const override { return std::string(utf8); }

private:
    const text::CodePage& page_;
    std::string decimalSeparator_;
};

}  // namespace halvenmoor::system
