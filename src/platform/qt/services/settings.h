#pragma once

#include "platform/services.h"

#include <QSettings>
#include <QString>
#include <string>
#include <string_view>

namespace halvenmoor::qt {

/// The user's options in one INI file, written at each change. What cannot be written is kept for this run.
class QtSettings : public platform::SettingsStore {
public:
    /// The folder of the file; it need not exist yet.
    explicit QtSettings(const QString& folder = DefaultFolder());

    std::string GetSetting(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view defaultValue) override;
    void SaveSetting(std::string_view application, std::string_view section, std::string_view name,
                     std::string_view value) override;

    /// In the user's folder for options.
    static QString DefaultFolder();

private:
    QSettings settings_;
    bool hasSaved_ = false;
};

}  // namespace halvenmoor::qt
