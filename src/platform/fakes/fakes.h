#pragma once

#include "platform/headless/services.h"
#include "platform/headless/toolkit.h"
#include "platform/platform.h"

#include <string>
#include <utility>

namespace halvenmoor::fakes {

/// The fakes of all services but the files, and of the toolkit.
struct Fakes {
    explicit Fakes(std::string programFolder = "/p") : programInfo(std::move(programFolder)) {}

    /// The platform of these fakes and the files given. Fakes and files outlive it.
    platform::Platform With(platform::FileSystem& fileSystem, platform::HostFiles& hostFiles) {
        return With(fileSystem, hostFiles, locale);
    }
    /// The same with another locale.
    platform::Platform With(platform::FileSystem& fileSystem, platform::HostFiles& hostFiles,
                            const platform::Locale& otherLocale) {
        return {fileSystem, hostFiles,   programInfo, clock,      settings,
                messages,   fileDialogs, theme,       otherLocale};
    }

    headless::FixedProgramInfo programInfo;
    headless::ManualClock clock;
    headless::MemorySettings settings;
    headless::MessageLog messages;
    headless::ScriptedFileDialogs fileDialogs;
    headless::FixedTheme theme;
    headless::FixedLocale locale;
    headless::HeadlessToolkit toolkit{clock};
};

}  // namespace halvenmoor::fakes
