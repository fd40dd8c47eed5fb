#pragma once

#include "platform/services.h"

namespace halvenmoor::qt {

/// Qt's own dialogs: they ask about the name that is then written, with its extension, which those of the
/// desktop do not promise.
class QtFileDialogs : public platform::FileDialogs {
public:
    std::optional<std::string> AskSavePath(const platform::FileDialog& dialog) override;
    std::optional<std::string> AskOpenPath(const platform::FileDialog& dialog) override;
};

}  // namespace halvenmoor::qt
