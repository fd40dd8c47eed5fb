#pragma once

#include "platform/services.h"

namespace halvenmoor::qt {

class QtMessageBox : public platform::MessageBox {
public:
    void Show(const std::string& text, const std::string& title) override;
};

}  // namespace halvenmoor::qt
