#include "core/cSettingsClass.h"

#include "base/failure.h"
#include "base/text/compare.h"
#include "base/text/trim.h"

#include <algorithm>
#include <exception>

namespace halvenmoor {

namespace {

/// The data lines of all sections, each section joined with commas.
struct SectionTexts {
    TypeTable<std::string> names;
    TypeTable<std::string> searches;
    std::string units;
    std::string settings;
};

/// A section header and the text that the lines below it are added to.
struct Header {
    std::string word;
    std::string* target;
};

std::vector<Header> HeadersOf(SectionTexts& texts) {
    std::vector<Header> headers{{"[Units]", &texts.units}, {"[Settings]", &texts.settings}};
    for (std::size_t type = kFirstType; type <= kLastType; ++type) {
        headers.push_back({"[Type" + std::to_string(type) + "]", &texts.names[type]});
        headers.push_back({"[" + std::string(kTypeWords[type]) + "]", &texts.searches[type]});
    }
    return headers;
}

SectionTexts ReadSections(platform::TextReader& file) {
    SectionTexts texts;
    const std::vector<Header> headers = HeadersOf(texts);
    std::string* section = nullptr;
    while (!file.AtEndOfStream()) {
        const std::string_view line = text::StripComment(text::Trim(file.ReadLine()));
        if (line.empty()) continue;
        const auto header = std::find_if(headers.begin(), headers.end(), [line](const Header& candidate) {
            return text::StartsWithIgnoringAsciiCase(line, candidate.word);
        });
        if (header != headers.end()) {
            section = header->target;
        } else if (section != nullptr) {
            if (!section->empty()) *section += ',';
            *section += line;
        }
    }
    return texts;
}

/// A list with too many elements gets one element too many, which holds the rest of the text: Elements
/// refuses such a list, and a string for each comma would take a hundred times the memory of the file.
std::vector<std::string> SplitList(std::string_view source) {
    std::vector<std::string> list;
    if (source.empty()) return list;
    while (list.size() < kMaxPatterns) {
        const std::size_t comma = source.find(',');
        if (comma == std::string_view::npos) break;
        list.emplace_back(source.substr(0, comma));
        source.remove_prefix(comma + 1);
    }
    list.emplace_back(source);
    return list;
}

/// The structure that a settings entry names, or the present one if it is no valid entry.
int StructureAfter(std::string entry, int present) {
    entry.erase(std::remove(entry.begin(), entry.end(), ' '), entry.end());
    if (text::EqualIgnoringAsciiCase(entry, "SourceStructure=1")) return 1;
    if (text::EqualIgnoringAsciiCase(entry, "SourceStructure=2")) return 2;
    if (text::EqualIgnoringAsciiCase(entry, "SourceStructure=3")) return 3;
    return present;
}

}  // namespace

cSettingsClass::cSettingsClass(platform::FileSystem& fileSystem, std::string_view path) {
    try {
        Class_Initialize(fileSystem, path);
    } catch (const std::exception&) {
        TraceFailure("read the settings", path);
        // An unreadable file shows no message: all values stay as they were before the read.
    }
}

void cSettingsClass::Class_Initialize(platform::FileSystem& fileSystem, std::string_view path) {
    const auto file = fileSystem.CreateFileSystemObject()->OpenTextFile(path);
    const SectionTexts texts = ReadSections(*file);
    for (int type = kFirstType; type <= kLastType; ++type) {
        const auto index = static_cast<std::size_t>(type);
        typeFileNamePatterns_[index] = SplitList(texts.names[index]);
        typeSearchPatterns_[index] = SplitList(texts.searches[index]);
    }
    unitSearchPatterns_ = SplitList(texts.units);
    sourceStructure_ = 2;
    for (std::string& entry : SplitList(texts.settings)) {
        sourceStructure_ = StructureAfter(std::move(entry), sourceStructure_);
    }
    file->Close();
}

}  // namespace halvenmoor
