#pragma once

namespace halvenmoor::qt {

/// From now on screen readers are told what the program's own kinds of widgets are: windows and pictures.
void InstallAccessibility();

}  // namespace halvenmoor::qt
