#pragma once

#include "platform/services.h"

#include <map>
#include <string>
#include <string_view>
#include <tuple>

namespace halvenmoor::headless {

/// A settings store that lasts as long as the object; empty at first.
class MemorySettings : public platform::SettingsStore {
public:
    std::string GetSetting(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view defaultValue) override {
        const auto found = values_.find(Key(application, section, name));
        return found == values_.end() ? std::string(defaultValue) : found->second;
    }

    void SaveSetting(std::string_view application, std::string_view section, std::string_view name,
                     std::string_view value) override {
        values_.insert_or_assign(Key(application, section, name), std::string(value));
    }

private:
    using Key = std::tuple<std::string, std::string, std::string>;

    std::map<Key, std::string> values_;
};

}  // namespace halvenmoor::headless
