#pragma once

#include "platform/services.h"

#include <string>
#include <string_view>
#include <utility>

namespace halvenmoor::system {

/// Regional settings. The program's own texts are UTF-8 in files, so that these are the same on each system.
class SystemLocale : public platform::Locale {
public:
    /// The code page outlives the locale; the separator is one character in UTF-8.
    SystemLocale(const text::CodePage& page, std::string decimalSeparator)
        : page_(page), decimalSeparator_(std::move(decimalSeparator)) {}

    /// The settings of the user: on Linux those that the environment asks for. The locale of the C library
    /// is left alone.
    static SystemLocale OfUser();

    const text::CodePage& CodePage() const override { return page_; }
    std::string DecimalSeparator() const override { return decimalSeparator_; }
    std::string ToFileText(std::string_view utf8) const override { return std::string(utf8); }

private:
    const text::CodePage& page_;
    std::string decimalSeparator_;
};

}  // namespace halvenmoor::system
