#include "platform/windows/paths.h"

#include "base/text/decode.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <windows.h>

namespace halvenmoor::system {
namespace {

constexpr std::wstring_view kPrefix = LR"(\\?\)";
constexpr std::wstring_view kNetworkPrefix = LR"(\\?\UNC\)";
constexpr std::wstring_view kSeparators = LR"(\/)";

constexpr char32_t kFirstHighSurrogate = 0xD800;
constexpr char32_t kFirstLowSurrogate = 0xDC00;
constexpr char32_t kFirstBeyondSurrogates = 0xE000;
constexpr char32_t kFirstPair = 0x10000;
constexpr char32_t kLastCharacter = 0x10FFFF;

bool IsHighSurrogate(char32_t unit) {
    return unit >= kFirstHighSurrogate && unit < kFirstLowSurrogate;
}

bool IsLowSurrogate(char32_t unit) {
    return unit >= kFirstLowSurrogate && unit < kFirstBeyondSurrogates;
}

struct Sequence {
    char32_t character;
    std::size_t size;
};

/// The character that the bytes begin with; nothing for bytes that are no UTF-8, surrogates aside.
std::optional<Sequence> FirstCharacter(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes[0]);
    if (lead < 0x80) return Sequence{lead, 1};
    const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC0 || lead >= 0xF8 || bytes.size() < size) return std::nullopt;
    char32_t character = lead & (0x7Fu >> size);
    for (const char next : bytes.substr(1, size - 1)) {
        const auto byte = static_cast<unsigned char>(next);
        if ((byte & 0xC0) != 0x80) return std::nullopt;
        character = character << 6 | (byte & 0x3F);
    }
    constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, kFirstPair};
    if (character < kSmallest[size] || character > kLastCharacter) return std::nullopt;
    return Sequence{character, size};
}

/// CON, NUL, COM1 and others, in any letter case and with any extension.
bool IsDeviceName(std::wstring_view name) {
    std::wstring stem(name.substr(0, name.find(L'.')));
    stem.erase(stem.find_last_not_of(L' ') + 1);
    for (wchar_t& unit : stem) {
        if (unit >= L'a' && unit <= L'z') unit = static_cast<wchar_t>(unit - L'a' + L'A');
    }
    for (const wchar_t* const device : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"}) {
        if (stem == device) return true;
    }
    constexpr std::wstring_view kPorts = L"123456789\u00B9\u00B2\u00B3";
    return stem.size() == 4 && (stem.starts_with(L"COM") || stem.starts_with(L"LPT")) &&
           kPorts.find(stem[3]) != std::wstring_view::npos;
}

bool IsDrive(std::wstring_view name) {
    return name.size() == 2 && name[1] == L':';
}

/// Whether it can be the name of a file or folder.
bool IsName(std::wstring_view name) {
    if (name.empty() || name == L"." || name == L"..") return true;
    const bool hasOnlyGood = std::none_of(name.begin(), name.end(), [](wchar_t unit) {
        constexpr std::wstring_view kRefused = LR"(<>:"|?*)";
        return unit < L' ' || kRefused.find(unit) != std::wstring_view::npos;
    });
    return hasOnlyGood && name.back() != L' ' && name.back() != L'.' && !IsDeviceName(name);
}

bool HasOnlyNames(std::wstring_view path) {
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find_first_of(kSeparators, begin), path.size());
        const std::wstring_view name = path.substr(begin, end - begin);
        if (!IsName(name) && !(begin == 0 && IsDrive(name))) return false;
        begin = end + 1;
    }
    return true;
}

/// The absolute path with "\" between its names, and behind a bare drive only; empty if there is none.
std::wstring FullPath(const std::wstring& path) {
    std::wstring full(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD size = static_cast<DWORD>(full.size());
    full.resize(::GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    while (full.ends_with(L'\\') && !IsDrive(full.substr(0, full.size() - 1))) full.pop_back();
    return full;
}

}  // namespace

std::string FromWide(std::wstring_view wide) {
    std::string bytes;
    bytes.reserve(wide.size());
    for (std::size_t i = 0; i < wide.size(); ++i) {
        char32_t character = wide[i];
        if (IsHighSurrogate(character) && i + 1 < wide.size() && IsLowSurrogate(wide[i + 1])) {
            ++i;
            character =
                kFirstPair + ((character - kFirstHighSurrogate) << 10) + (wide[i] - kFirstLowSurrogate);
        }
        text::AppendUtf8(bytes, character);
    }
    return bytes;
}

std::optional<std::wstring> ToWide(std::string_view bytes) {
    std::wstring wide;
    wide.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::optional<Sequence> first = FirstCharacter(bytes);
        if (!first) return std::nullopt;
        bytes.remove_prefix(first->size);
        char32_t character = first->character;
        if (character >= kFirstPair) {
            character -= kFirstPair;
            wide.push_back(static_cast<wchar_t>(kFirstHighSurrogate + (character >> 10)));
            character = kFirstLowSurrogate + (character & 0x3FF);
        }
        wide.push_back(static_cast<wchar_t>(character));
    }
    return wide;
}

std::wstring SystemPath(std::string_view path) {
    const std::optional<std::wstring> wide = ToWide(path);
    if (!wide || !HasOnlyNames(*wide)) return {};
    const std::wstring full = FullPath(*wide);
    if (full.empty()) return {};
    const bool isOnNetwork = full.starts_with(LR"(\\)");
    return isOnNetwork ? std::wstring(kNetworkPrefix) + full.substr(2) : std::wstring(kPrefix) + full;
}

std::string FromSystemPath(std::wstring_view path) {
    if (path.starts_with(kNetworkPrefix)) return R"(\\)" + FromWide(path.substr(kNetworkPrefix.size()));
    return FromWide(path.starts_with(kPrefix) ? path.substr(kPrefix.size()) : path);
}

}  // namespace halvenmoor::system
