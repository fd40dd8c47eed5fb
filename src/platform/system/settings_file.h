#pragma once

#include "platform/services.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace halvenmoor::system {

/// The user's options in an INI file, stored at each change. The file is read at the start and just before it
/// is stored, so that what others write into it stays. It is a regular file, or a link to one; where it is
/// something else or cannot be written, an option holds for this run.
class SettingsFile : public platform::SettingsStore {
public:
    /// The folder of the file; it need not exist yet.
    explicit SettingsFile(const std::string& folder = UserFolder());

    // The application is the section of the file, the section and the name are the key. None has a = or a
    // line end.
    std::string GetSetting(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view defaultValue) override;
    void SaveSetting(std::string_view application, std::string_view section, std::string_view name,
                     std::string_view value) override;

    /// In the user's folder for options, as the system names it.
    static std::string UserFolder();

private:
    /// Puts a new file of this text into the place of the old one, behind all links, and makes the folder if
    /// need be. If that fails, the old one stays as it was.
    static void Store(const std::string& path, std::string_view text);

    using Key = std::pair<std::string, std::string>;  // the section and the key in the file

    std::string path_;
    std::string text_;  // of the file at the start
    std::map<Key, std::string> changes_;
};

}  // namespace halvenmoor::system
