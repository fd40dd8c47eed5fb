#include "platform/system/locale.h"

#include "base/text/decode.h"

#include <cstdlib>
#include <langinfo.h>
#include <locale.h>

namespace halvenmoor::system {
namespace {

/// The language that the environment sets for characters, by the rules of POSIX.
std::string EnvironmentLanguage() {
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0') return value;
    }
    return "C";
}

std::string EnvironmentDecimalSeparator() {
    const locale_t locale = ::newlocale(LC_NUMERIC_MASK, "", nullptr);
    if (locale == nullptr) return ".";  // the locale asked for is not installed
    const std::string separator = ::nl_langinfo_l(RADIXCHAR, locale);
    ::freelocale(locale);
    return text::IsValidUtf8(separator) && text::CharacterCount(separator) == 1 ? separator : ".";
}

}  // namespace

SystemLocale SystemLocale::OfUser() {
    const int page = text::WindowsCodePageForLanguage(EnvironmentLanguage());
    return {text::WindowsCodePage(page), EnvironmentDecimalSeparator()};
}

}  // namespace halvenmoor::system
