#pragma once

#include "platform/files.h"
#include "platform/services.h"

namespace halvenmoor::platform {

/// The services that the program runs on, for handing round. Their owner outlives the program's objects.
struct Platform {
    FileSystem& fileSystem;
    HostFiles& hostFiles;
    ProgramInfo& programInfo;
    Clock& clock;
    SettingsStore& settings;
    MessageBox& messages;
    FileDialogs& fileDialogs;
    Browser& browser;
    Theme& theme;
    const Locale& locale;
};

}  // namespace halvenmoor::platform
