#include "ui/language/profile.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/decode.h"
#include "base/text/ini.h"

#include <exception>

namespace halvenmoor {

namespace {

std::string ShownValue(std::string_view bytes, const text::CodePage& codePage) {
    std::u32string characters = text::Decode(bytes, codePage);
    if (characters.size() > kMaxProfileValue) characters.resize(kMaxProfileValue);
    return text::EncodeUtf8(characters);
}

bool SkipToSection(platform::TextReader& file, std::string_view section) {
    while (!file.AtEndOfStream()) {
        const auto name = text::IniSection(text::WithoutWhiteSpace(file.ReadLine()));
        if (name && text::EqualIgnoringAsciiCase(*name, section)) return true;
    }
    return false;
}

std::optional<std::string> FindValue(platform::TextReader& file, std::string_view key,
                                     const text::CodePage& codePage) {
    while (!file.AtEndOfStream()) {
        const std::string_view line = text::WithoutWhiteSpace(file.ReadLine());
        if (text::IniSection(line)) return std::nullopt;
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        if (!text::EqualIgnoringAsciiCase(text::WithoutWhiteSpace(line.substr(0, equals)), key)) continue;
        return ShownValue(text::WithoutWhiteSpace(line.substr(equals + 1)), codePage);
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
