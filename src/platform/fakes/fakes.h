#pragma once

#include "platform/fakes/services.h"
#include "platform/fakes/toolkit.h"
#include "platform/platform.h"

#include <string>
#include <utility>

namespace halvenmoor::fakes {

/// The fakes of all services but the files, and of the toolkit.
struct Fakes {
    explicit Fakes(std::string programFolder = "/p") : programInfo(std::move(programFolder)) {}

    /// The platform of these fakes and the files given. Fakes and files outlive it.
    platform::Platform With(platform::FileSystem& fileSystem, platform::HostFiles& hostFiles) {
        return {fileSystem, hostFiles,   programInfo, clock, settings,
                messages,   fileDialogs, browser,     theme, locale};
    }

    FixedProgramInfo programInfo;
    headless::SkippingClock clock;
    headless::MemorySettings settings;
    MessageLog messages;
    WatchedFileDialogs fileDialogs;
    BrowserLog browser;
    FixedTheme theme;
    FixedLocale locale;
    WatchedToolkit toolkit{clock};
};

}  // namespace halvenmoor::fakes
