#pragma once

#include "catalogue/frmMain.h"
#include "import/frmImport.h"
#include "platform/headless/toolkit.h"

#include <functional>
#include <string>

namespace halvenmoor {

// What a user does in a program without windows, from a click to the end of what it opens. False where it
// came to nothing.

bool UserChoosesLanguage(frmMain& window, const std::string& language);
/// By mode 1 to 3, with the path for the file dialog of modes 2 and 3. Whether the results came up.
bool UserExports(headless::HeadlessToolkit& toolkit, headless::PreparedFileDialogs& fileDialogs,
                 frmMain& window, int mode, const std::string& path = "");
/// From OV2 (1) or TXT (2); somebody may look at the dialog when the import is done. Returns the name of the
/// picture that it ended with, or nothing if it did not open.
std::string UserImports(headless::HeadlessToolkit& toolkit, frmMain& window, int source,
                        const std::function<void(frmImport&)>& look = {});
bool UserRenames(headless::HeadlessToolkit& toolkit, frmMain& window, const std::string& entry,
                 const std::string& newName);

/// The name of the picture of state that shows, or the names, should there be more than one.
std::string ShownPicture(const frmImport& dialog);

}  // namespace halvenmoor
