#pragma once

namespace halvenmoor {

class frmMain;

/// Empties the lists of the window and fills the unclassified one with the files of the camera folder. A
/// failure ends the filling without a word; what was found so far stays.
void LoadCameraFiles(frmMain& window);

}  // namespace halvenmoor
