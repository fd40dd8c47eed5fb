#pragma once

#include <QString>
#include <QWidget>

namespace halvenmoor::qt {

/// From now on screen readers are told what the program's own kinds of widgets are: windows and pictures.
void InstallAccessibility();

/// Has screen readers say a text, as a notification in the window.
void AnnounceIn(QWidget& window, const QString& text);

}  // namespace halvenmoor::qt
