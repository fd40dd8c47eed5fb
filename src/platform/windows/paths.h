#pragma once

#include <optional>
#include <string>
#include <string_view>

// Inside the program paths and names are UTF-8. A name of Windows is a row of 16-bit units, which need not be
// good UTF-16: a surrogate without its other half then takes three bytes, as a character of its number would.
// So each name of a disk has bytes of its own, which lead back to it; as text, they are shown by the code
// page.

namespace halvenmoor::system {

std::string FromWide(std::wstring_view wide);
/// Nothing for bytes that FromWide does not make.
std::optional<std::wstring> ToWide(std::string_view bytes);

/// The path as system calls take it: absolute, with the prefix that lifts the limit of 260 characters. Empty,
/// which every call refuses, for a path that is none, holds the name of a device, or has a name that ends in
/// a blank or a point: behind the prefix Windows would make such a file, and hardly a program could open or
/// delete it.
std::wstring SystemPath(std::string_view path);

/// The bytes of a path that the system gave, without such a prefix.
std::string FromSystemPath(std::wstring_view path);

}  // namespace halvenmoor::system
