#include "platform/system/settings_file.h"

#include "base/text/ini.h"
#include "platform/system/file.h"

#include <optional>

namespace halvenmoor::system {
namespace {

std::string KeyOf(std::string_view section, std::string_view name) {
    return std::string(section) + '\\' + std::string(name);
}

}  // namespace

SettingsFile::SettingsFile(const std::string& folder)
    : path_(folder + "/halvenmoor.ini"), text_(ReadSmallFile(path_).value_or("")) {
}

std::string SettingsFile::GetSetting(std::string_view application, std::string_view section,
                                     std::string_view name, std::string_view defaultValue) {
    const Key key(application, KeyOf(section, name));
    const auto change = changes_.find(key);
    if (change != changes_.end()) return change->second;
    return text::IniValue(text_, key.first, key.second).value_or(std::string(defaultValue));
}

void SettingsFile::SaveSetting(std::string_view application, std::string_view section, std::string_view name,
                               std::string_view value) {
    changes_.insert_or_assign(Key(application, KeyOf(section, name)), std::string(value));
    const std::optional<std::string> old = ReadSmallFile(path_);
    if (!old) return;
    std::string text = *old;
    for (const auto& [key, changed] : changes_) text::SetIniValue(text, key.first, key.second, changed);
    if (text != *old) Store(path_, text);  // nothing changes at most starts, and a write waits for the disk
}

}  // namespace halvenmoor::system
