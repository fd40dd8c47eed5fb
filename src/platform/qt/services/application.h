#pragma once

#include <QApplication>

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

/// Qt's message handler while the application is made. Where no window can be shown, it ends the process with
/// one line and status 1. Warnings, which are about what Qt tries on the way, are not printed.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message);

}  // namespace halvenmoor::qt
