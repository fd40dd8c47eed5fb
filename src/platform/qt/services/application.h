#pragma once

#include <QApplication>
#include <memory>

namespace halvenmoor::qt {

/// Qt's application; no exception passes through its event loop.
class SafeApplication : public QApplication {
public:
    /// As main gets them; both outlive the application.
    SafeApplication(int& argumentCount, char** arguments);

    bool notify(QObject* receiver, QEvent* event) override;
};

/// The application at the scale of the desktop; where the main window would then not fit the screen, at the
/// largest quarter that fits, but at no less than 1. The arguments are as main gets them and outlive the
/// application.
std::unique_ptr<SafeApplication> MakeApplication(int& argumentCount, char** arguments);

/// The scale at which the main window fits an area of so many device pixels, given the scale of the desktop.
double FittedScale(double scale, const QSizeF& devicePixels);

/// To be called before the application is made: where both window systems answer, X11 is used, since only
/// there a window can say where it wants to be. A choice of the user's own is left alone.
void PreferX11();

/// Qt's message handler while the application is made. Where no window can be shown, it ends the process with
/// one line and status 1. Warnings, which are about what Qt tries on the way, are not printed.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message);

}  // namespace halvenmoor::qt
