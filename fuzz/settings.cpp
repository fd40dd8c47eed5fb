// Settings.ini. What is read, written down again, one line a section, reads as the same.

#include "core/cSettingsClass.h"
#include "fuzz/memory_platform.h"
#include "fuzz/property.h"

using namespace halvenmoor;
using fuzz::Require;

namespace {

cSettingsClass Read(fuzz::MemoryPlatform& platform, std::string_view text) {
    platform.memory.Put("/Settings.ini", text);
    cSettingsClass settings(platform.memory, "/Settings.ini");
    platform.memory.ForgetCalls();
    return settings;
}

std::string Section(std::string_view header, const PatternList& list) {
    std::string text = std::string(header) + "\r\n";
    for (std::size_t i = 0; i < list->size(); ++i) {
        const std::string& item = (*list)[i];
        Require(item.find_first_of(",\n") == std::string::npos, "an item ends at a comma and at a line end");
        text += (i > 0 ? "," : "") + item;
    }
    return text + "\r\n";
}

std::string Written(const cSettingsClass& settings) {
    std::string text = "[Settings]\r\nSourceStructure=" + std::to_string(settings.SourceStructure()) + "\r\n";
    constexpr std::array<std::string_view, 6> searches{"",           "[Fixed]",   "[RedSpeed]",
                                                       "[RedLight]", "[Section]", "[Mobile]"};
    for (std::size_t type = kFirstType; type <= kLastType; ++type) {
        text += Section("[Type" + std::to_string(type) + "]", settings.TypeFileNamePatterns()[type]);
        text += Section(searches[type], settings.TypeSearchPatterns()[type]);
    }
    return text + Section("[Units]", settings.UnitSearchPatterns());
}

void RequireSame(const cSettingsClass& a, const cSettingsClass& b) {
    Require(a.SourceStructure() == b.SourceStructure(), "the structure is the same");
    Require(a.TypeFileNamePatterns() == b.TypeFileNamePatterns(), "the file-name patterns are the same");
    Require(a.TypeSearchPatterns() == b.TypeSearchPatterns(), "the search patterns are the same");
    Require(a.UnitSearchPatterns() == b.UnitSearchPatterns(), "the units are the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::MemoryPlatform platform;
    const std::string text(fuzz::Text(data, size));
    const cSettingsClass settings = Read(platform, text);
    Require(settings.SourceStructure() >= 1 && settings.SourceStructure() <= 3, "a file gives a structure");
    Require(!settings.TypeFileNamePatterns()[0] && !settings.TypeSearchPatterns()[0], "type 0 has no list");
    RequireSame(settings, Read(platform, Written(settings)));
    RequireSame(settings, Read(platform, text + "\r\n; a remark\n"));
    return 0;
}
