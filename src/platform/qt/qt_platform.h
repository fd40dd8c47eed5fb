#pragma once

#include "platform/qt/services/application.h"
#include "platform/qt/services/browser.h"
#include "platform/qt/services/file_dialogs.h"
#include "platform/qt/services/message_box.h"
#include "platform/qt/services/theme.h"
#include "platform/qt/windows/toolkit.h"

#include <array>
#include <memory>

namespace halvenmoor::qt {

/// All of the Qt side, in the order in which it has to be made. The program's forms end before it does.
struct QtPlatform {
    /// The program's name as main gets it, the first of its arguments; all of them outlive the platform.
    QtPlatform(char* programName, const platform::Locale& locale, platform::HostFiles& files);

    struct Arguments {
        explicit Arguments(char* programName);

        int count = 1;
        std::array<char*, 2> values;
    };

    Arguments arguments;
    std::unique_ptr<SafeApplication> application;
    QtToolkit toolkit;
    QtMessageBox messages;
    QtFileDialogs fileDialogs;
    QtBrowser browser;
    QtTheme theme;
};

}  // namespace halvenmoor::qt
