#pragma once

#include "platform/files.h"
#include "platform/services.h"

namespace halvenmoor::qt {

/// Qt's own dialogs: they ask about the file that is then written, whatever its letter case and with its
/// extension, which those of the desktop do not promise.
class QtFileDialogs : public platform::FileDialogs {
public:
    /// The files must outlive it.
    explicit QtFileDialogs(platform::HostFiles& files) : files_(files) {}

    std::optional<std::string> AskSavePath(const platform::FileDialog& dialog) override;
    std::optional<std::string> AskOpenPath(const platform::FileDialog& dialog) override;

private:
    platform::HostFiles& files_;
};

}  // namespace halvenmoor::qt
