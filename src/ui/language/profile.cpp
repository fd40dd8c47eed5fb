#include "ui/language/profile.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/decode.h"

#include <exception>

namespace halvenmoor {

namespace {

std::string_view WithoutWhiteSpace(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// The section that a header line names; what follows the bracket is a remark.
std::optional<std::string_view> HeaderName(std::string_view line) {
    if (line.empty() || line.front() != '[') return std::nullopt;
    const std::size_t closing = line.find(']');
    if (closing == std::string_view::npos) return std::nullopt;
    return WithoutWhiteSpace(line.substr(1, closing - 1));
}

std::string ShownValue(std::string_view bytes, const text::CodePage& codePage) {
    std::u32string characters = text::Decode(bytes, codePage);
    if (characters.size() > kMaxProfileValue) characters.resize(kMaxProfileValue);
    return text::EncodeUtf8(characters);
}

bool SkipToSection(platform::TextReader& file, std::string_view section) {
    while (!file.AtEndOfStream()) {
        const auto name = HeaderName(WithoutWhiteSpace(file.ReadLine()));
        if (name && text::EqualIgnoringAsciiCase(*name, section)) return true;
    }
    return false;
}

std::optional<std::string> FindValue(platform::TextReader& file, std::string_view key,
                                     const text::CodePage& codePage) {
    while (!file.AtEndOfStream()) {
        const std::string_view line = WithoutWhiteSpace(file.ReadLine());
        if (HeaderName(line)) return std::nullopt;
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        if (!text::EqualIgnoringAsciiCase(WithoutWhiteSpace(line.substr(0, equals)), key)) continue;
        return ShownValue(WithoutWhiteSpace(line.substr(equals + 1)), codePage);
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> ReadProfileValue(platform::FileSystem& fileSystem, std::string_view path,
                                            std::string_view section, std::string_view key,
                                            const text::CodePage& codePage) {
    try {
        const auto file = fileSystem.CreateFileSystemObject()->OpenTextFile(path);
        if (!SkipToSection(*file, section)) return std::nullopt;
        return FindValue(*file, key, codePage);
    } catch (const std::exception&) {
        TraceFailure("read a language file", path);
        return std::nullopt;
    }
}

}  // namespace halvenmoor
