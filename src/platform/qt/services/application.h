#pragma once

#include "platform/qt/services/instance_guard.h"
#include "platform/services.h"

#include <QApplication>
#include <string>

namespace halvenmoor::qt {

/// Qt's application; no exception passes through its event loop.
class SafeApplication : public QApplication {
public:
    /// As main gets them; both outlive the application.
    SafeApplication(int& argumentCount, char** arguments);

    bool notify(QObject* receiver, QEvent* event) override;
};

/// To be called before the application is made: where both window systems answer, X11 is used, since only
/// there a window can say where it wants to be. A choice of the user's own is left alone.
void PreferX11();

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
