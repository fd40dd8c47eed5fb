#include "platform/system/locale.h"

#include "base/text/decode.h"
#include "platform/windows/paths.h"

#include <array>
#include <windows.h>

namespace halvenmoor::system {
namespace {

std::string UserDecimalSeparator() {
    std::array<wchar_t, 8> separator{};
    if (::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator.data(), separator.size()) == 0)
        return ".";
    const std::string utf8 = FromWide(separator.data());
    return text::CharacterCount(utf8) == 1 ? utf8 : ".";
}

}  // namespace

SystemLocale SystemLocale::OfUser() {
    // Pages of two bytes for a character, and UTF-8, are none of the program's: it then takes 1252.
    return {text::WindowsCodePage(static_cast<int>(::GetACP())), UserDecimalSeparator()};
}

}  // namespace halvenmoor::system
