#pragma once

#include "platform/headless/services.h"
#include "platform/headless/toolkit.h"
#include "platform/platform.h"

#include <string>
#include <utility>

namespace halvenmoor::headless {

/// The services of a program without windows, all but the files and the locale. Options are in memory and at
/// their defaults.
struct HeadlessPlatform {
    HeadlessPlatform(std::string programFolder, Tell tell)
        : programInfo(std::move(programFolder)), messages(std::move(tell)) {}

    /// The platform of these services and the ones given. All of them outlive it.
    platform::Platform With(platform::FileSystem& fileSystem, platform::HostFiles& hostFiles,
                            const platform::Locale& locale) {
        return {fileSystem, hostFiles,   programInfo, clock, settings,
                messages,   fileDialogs, browser,     theme, locale};
    }

    HeadlessProgramInfo programInfo;
    SkippingClock clock;
    MemorySettings settings;
    ToldMessages messages;
    PreparedFileDialogs fileDialogs;
    NoBrowser browser;
    ColorlessTheme theme;
    HeadlessToolkit toolkit{clock};
};

}  // namespace halvenmoor::headless
