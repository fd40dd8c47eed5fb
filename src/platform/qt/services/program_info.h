#pragma once

#include "platform/qt/services/instance_guard.h"
#include "platform/services.h"

#include <string>

namespace halvenmoor::qt {

class QtProgramInfo : public platform::ProgramInfo {
public:
    /// The lock must outlive it. The folder is the program's, empty where Qt is to tell it: that is text,
    /// which cannot name every folder of every system.
    QtProgramInfo(platform::InstanceLock& lock, std::string programFolder);

    bool PreviousInstance() override { return !guard_.IsFirst(); }
    void ActivatePreviousInstance() override { guard_.RaiseOther(); }
    std::string ProgramFolder() const override { return programFolder_; }
    char Separator() const override;
    platform::ProgramVersion Version() const override;
    platform::ScreenSize Screen() const override;

private:
    InstanceGuard guard_;
    std::string programFolder_;
};

}  // namespace halvenmoor::qt
