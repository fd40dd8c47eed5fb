#pragma once

#include "platform/services.h"

namespace halvenmoor::qt {

class QtBrowser : public platform::Browser {
public:
    void Open(const std::string& path) override;
};

}  // namespace halvenmoor::qt
