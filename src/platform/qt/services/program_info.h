#pragma once

#include "platform/qt/services/instance_guard.h"
#include "platform/services.h"

#include <string>

namespace halvenmoor::qt {

class QtProgramInfo : public platform::ProgramInfo {
public:
    /// The folder is for the instance guard.
    explicit QtProgramInfo(const QString& runtimeFolder = InstanceGuard::RuntimeFolder());

    bool PreviousInstance() override { return !guard_.IsFirst(); }
    void ActivatePreviousInstance() override { guard_.RaiseOther(); }
    std::string ProgramFolder() const override;
    char Separator() const override { return '/'; }
    platform::ProgramVersion Version() const override;
    platform::ScreenSize Screen() const override;

private:
    InstanceGuard guard_;
};

}  // namespace halvenmoor::qt
